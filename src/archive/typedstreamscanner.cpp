#include "archive/typedstreamscanner.h"

#include "archive/typedstreamtags.h"
#include "base/texts.h"

#include <QtEndian>

#include <bit>
#include <limits>
#include <utility>

namespace tavrel {

namespace {

// A text that every record names by a reference of three bytes may be some hundred characters long.
constexpr std::size_t effortPerByte = 64;
constexpr std::size_t leastEffort = 1 << 24;

ValueClass valueClassOf(std::string_view name) {
    static constexpr std::pair<std::string_view, ValueClass> known[] = {
        {"NSArray", ValueClass::array},           {"NSString", ValueClass::text}, {"NSDate", ValueClass::date},
        {"NSNumber", ValueClass::number},         {"NSColor", ValueClass::color}, {"NSImage", ValueClass::image},
        {"NSBitmapImageRep", ValueClass::bitmap},
    };
    for (const auto& [className, kind] : known) {
        if (className == name) {
            return kind;
        }
    }
    return ValueClass::other;
}

template <class Word>
std::uint64_t wordAt(const unsigned char* bytes, bool littleEndian) {
    return littleEndian ? qFromLittleEndian<Word>(bytes) : qFromBigEndian<Word>(bytes);
}

}  // namespace

TypedStreamScanner::TypedStreamScanner(QByteArrayView bytes, std::string_view recordClass)
    : begin_(reinterpret_cast<const unsigned char*>(bytes.data())),
      position_(begin_),
      end_(begin_ + bytes.size()),
      recordClass_(recordClass),
      effortAllowed_(leastEffort + effortPerByte * static_cast<std::size_t>(bytes.size())) {
    // The smallest number objects that are met in mass take eight bytes or so.
    objects_.reserve(static_cast<std::size_t>(bytes.size()) / 8);
}

void TypedStreamScanner::readHeader() {
    const std::int64_t version = readSigned();
    const std::string_view signature = ok() ? readUnsharedString() : std::string_view();
    if (!ok() || (signature != streamtags::littleEndianSignature && signature != streamtags::bigEndianSignature)) {
        // Whatever stopped the reading, a file without this signature is of another kind.
        fault_.reset();
        fail(StreamFault::notTypedStream, 0);
        return;
    }
    if (version != streamtags::streamerVersion) {
        fail(StreamFault::unknownVersion, 0, textWith("Archive", "Version", static_cast<qint64>(version)));
        return;
    }
    littleEndian_ = signature == streamtags::littleEndianSignature;
    systemVersion_ = readSigned();
}

Failure TypedStreamScanner::failure() const {
    return fault_ ? streamFailure(*fault_, faultOffset_, faultDetail_) : Failure{};
}

void TypedStreamScanner::fail(StreamFault fault, std::size_t offset, const QString& what) {
    if (!fault_) {
        fault_ = fault;
        faultOffset_ = offset;
        faultDetail_ = what;
    }
    position_ = end_;
}

void TypedStreamScanner::rewind(const Mark& mark) {
    if (ok()) {
        strings_.erase(strings_.begin() + static_cast<std::ptrdiff_t>(mark.strings), strings_.end());
        classes_.erase(classes_.begin() + static_cast<std::ptrdiff_t>(mark.classes), classes_.end());
        objects_.truncate(mark.objects);
        seek(mark.offset);
    }
}

std::uint64_t TypedStreamScanner::readWord(int bytes) {
    if (bytesLeft() < static_cast<std::size_t>(bytes)) {
        fail(StreamFault::truncated, static_cast<std::size_t>(end_ - begin_));
        return 0;
    }
    const unsigned char* at = std::exchange(position_, position_ + bytes);
    switch (bytes) {
        case 2:
            return wordAt<std::uint16_t>(at, littleEndian_);
        case 4:
            return wordAt<std::uint32_t>(at, littleEndian_);
        default:
            return wordAt<std::uint64_t>(at, littleEndian_);
    }
}

// The slow half of the integers: an empty rest, or a tag.
std::int64_t TypedStreamScanner::readTagged(bool asSigned) {
    if (position_ == end_) {
        fail(StreamFault::truncated);
        return 0;
    }
    switch (*position_) {
        case streamtags::shortInteger: {
            ++position_;
            const auto word = static_cast<std::uint16_t>(readWord(2));
            return asSigned ? std::int64_t{static_cast<std::int16_t>(word)} : std::int64_t{word};
        }
        case streamtags::integer: {
            ++position_;
            const auto word = static_cast<std::uint32_t>(readWord(4));
            return asSigned ? std::int64_t{static_cast<std::int32_t>(word)} : std::int64_t{word};
        }
        case streamtags::longInteger:
            ++position_;
            return std::bit_cast<std::int64_t>(readWord(8));
        default:
            fail(StreamFault::unexpectedTag);
            return 0;
    }
}

std::uint64_t TypedStreamScanner::readUnsigned() {
    if (position_ != end_ && static_cast<signed char>(*position_) >= streamtags::firstReference) {
        return *position_++;
    }
    return std::bit_cast<std::uint64_t>(readTagged(false));
}

std::int64_t TypedStreamScanner::readInteger(char code) {
    const std::size_t start = offset();
    const auto within = [&](std::int64_t value, std::int64_t low, std::int64_t high) {
        if (value < low || value > high) {
            fail(StreamFault::valueOutOfRange, start);
            return std::int64_t{0};
        }
        return value;
    };
    switch (code) {
        case 'c':
        case 'C':
        case 'B': {
            const std::string_view raw = readRaw(1);
            if (raw.empty()) {
                return 0;
            }
            return code == 'c' ? std::int64_t{static_cast<signed char>(raw[0])}
                               : std::int64_t{static_cast<unsigned char>(raw[0])};
        }
        case 's':
            return within(readSigned(), std::numeric_limits<std::int16_t>::min(),
                          std::numeric_limits<std::int16_t>::max());
        case 'i':
            return within(readSigned(), std::numeric_limits<std::int32_t>::min(),
                          std::numeric_limits<std::int32_t>::max());
        case 'S':
            return within(std::bit_cast<std::int64_t>(readUnsigned()), 0, std::numeric_limits<std::uint16_t>::max());
        case 'I':
            return within(std::bit_cast<std::int64_t>(readUnsigned()), 0, std::numeric_limits<std::uint32_t>::max());
        case 'L':
        case 'Q':
            return std::bit_cast<std::int64_t>(readUnsigned());
        default:  // l and q
            return readSigned();
    }
}

float TypedStreamScanner::readFloat() {
    if (position_ != end_ && *position_ == streamtags::real) {
        ++position_;
        return std::bit_cast<float>(static_cast<std::uint32_t>(readWord(4)));
    }
    return static_cast<float>(readSigned());
}

double TypedStreamScanner::readDouble() {
    if (position_ != end_ && *position_ == streamtags::real) {
        ++position_;
        return std::bit_cast<double>(readWord(8));
    }
    return static_cast<double>(readSigned());
}

std::string_view TypedStreamScanner::readRaw(std::size_t count) {
    if (bytesLeft() < count) {
        fail(count == 1 ? StreamFault::truncated : StreamFault::countTooLarge);
        return {};
    }
    const unsigned char* at = std::exchange(position_, position_ + count);
    return {reinterpret_cast<const char*>(at), count};
}

std::string_view TypedStreamScanner::readUnsharedString() {
    if (position_ != end_ && *position_ == streamtags::nil) {
        ++position_;
        return {};
    }
    const std::size_t start = offset();
    const std::uint64_t length = readUnsigned();
    if (length > bytesLeft()) {
        fail(StreamFault::countTooLarge, start);
    }
    return ok() ? readRaw(length) : std::string_view();
}

// Reads a reference where one must stand; the number that it names, whether or not it was given out.
std::optional<std::size_t> TypedStreamScanner::readReference() {
    const std::size_t start = offset();
    const std::int64_t value = readSigned();
    if (ok() && value < streamtags::firstReference) {
        fail(StreamFault::undefinedReference, start);
    }
    if (!ok()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(value - streamtags::firstReference);
}

std::int64_t TypedStreamScanner::readSharedString() {
    const std::size_t start = offset();
    if (position_ != end_ && *position_ == streamtags::nil) {
        ++position_;
        return -1;
    }
    if (position_ != end_ && *position_ == streamtags::literal) {
        ++position_;
        const std::string_view text = readUnsharedString();
        if (ok() && !text.data()) {
            fail(StreamFault::nilName, start);
        }
        if (!ok()) {
            return -1;
        }
        strings_.push_back({text, text.size() == 1 ? text[0] : '\0'});
        return static_cast<std::int64_t>(strings_.size() - 1);
    }
    const auto index = readReference();
    if (index && *index >= strings_.size()) {
        fail(StreamFault::undefinedReference, start);
    }
    return ok() ? static_cast<std::int64_t>(*index) : -1;
}

std::string_view TypedStreamScanner::sharedString(std::int64_t index) const {
    return index < 0 ? std::string_view() : strings_[static_cast<std::size_t>(index)].text;
}

std::string_view TypedStreamScanner::readCString() {
    const std::size_t start = offset();
    if (position_ != end_ && *position_ == streamtags::nil) {
        ++position_;
        return {};
    }
    if (position_ != end_ && *position_ == streamtags::literal) {
        ++position_;
        const std::int64_t index = readSharedString();
        if (ok() && index < 0) {
            fail(StreamFault::nilName, start);
        }
        if (!ok()) {
            return {};
        }
        objects_.push(ObjectEntry(Holds::cString, static_cast<std::uint64_t>(index)));
        return sharedString(index);
    }
    const auto number = readReference();
    if (number && *number >= objects_.size()) {
        fail(StreamFault::undefinedReference, start);
    } else if (number && objects_[*number].kind() != Holds::cString) {
        fail(StreamFault::wrongReference, start);
    }
    return ok() ? strings_[objects_[*number].payload()].text : std::string_view();
}

std::int32_t TypedStreamScanner::readClass() {
    // A chain of literal classes is read from the subclass upwards; each waits for the one above it.
    const std::size_t firstOfChain = classes_.size();
    std::int32_t first = -1;
    const auto link = [&](std::int32_t index) {
        if (classes_.size() > firstOfChain) {
            classes_.back().superclass = index;
        } else {
            first = index;
        }
    };
    while (ok()) {
        const std::size_t start = offset();
        if (position_ != end_ && *position_ == streamtags::nil) {
            ++position_;
            break;
        }
        if (position_ == end_ || *position_ != streamtags::literal) {
            const auto number = readReference();
            if (number && *number >= objects_.size()) {
                fail(StreamFault::undefinedReference, start);
            } else if (number && objects_[*number].kind() != Holds::klass) {
                fail(StreamFault::wrongReference, start);
            } else if (number) {
                const auto index = static_cast<std::int32_t>(objects_[*number].payload());
                if (!classAt(index).complete) {
                    fail(StreamFault::classLoop, start);
                } else {
                    link(index);
                }
            }
            break;
        }
        ++position_;
        if (classes_.size() - firstOfChain >= maximumChain) {
            fail(StreamFault::tooDeep, start);
            break;
        }
        const std::size_t nameOffset = offset();
        const std::int64_t name = readSharedString();
        if (ok() && name < 0) {
            fail(StreamFault::nilName, nameOffset);
        }
        const std::int64_t version = readSigned();
        if (!ok()) {
            break;
        }
        const auto index = static_cast<std::int32_t>(classes_.size());
        link(index);
        classes_.push_back({sharedString(name), version});
        objects_.push(ObjectEntry(Holds::klass, static_cast<std::uint64_t>(index)));
    }
    if (!ok()) {
        return -1;
    }
    completeChain(firstOfChain);
    return ok() ? first : -1;
}

void TypedStreamScanner::completeChain(std::size_t firstOfChain) {
    for (std::size_t index = classes_.size(); index-- > firstOfChain;) {
        StreamClass& klass = classes_[index];
        klass.kind =
            !recordClass_.empty() && klass.name == recordClass_ ? ValueClass::record : valueClassOf(klass.name);
        if (klass.superclass >= 0) {
            const StreamClass& parent = classAt(klass.superclass);
            klass.chainLength = static_cast<std::int16_t>(parent.chainLength + 1);
            if (klass.kind == ValueClass::other) {
                klass.kind = parent.kind;
            }
        }
        klass.complete = true;
        if (klass.chainLength > maximumChain) {
            fail(StreamFault::tooDeep);
            return;
        }
    }
}

ObjectHead TypedStreamScanner::readObjectHead() {
    const std::size_t start = offset();
    if (position_ != end_ && *position_ == streamtags::nil) {
        ++position_;
        return {};
    }
    if (position_ != end_ && *position_ == streamtags::literal) {
        ++position_;
        const std::size_t number = objects_.push({});
        const std::int32_t classIndex = readClass();
        if (ok() && classIndex < 0) {
            fail(StreamFault::nilName, start);
        }
        return ok() ? ObjectHead{ObjectHead::literal, number, classIndex} : ObjectHead{};
    }
    const auto number = readReference();
    if (number && *number >= objects_.size()) {
        fail(StreamFault::undefinedReference, start);
    } else if (number && (objects_[*number].kind() == Holds::klass || objects_[*number].kind() == Holds::cString)) {
        fail(StreamFault::wrongReference, start);
    }
    return ok() ? ObjectHead{ObjectHead::reference, *number, -1} : ObjectHead{};
}

void TypedStreamScanner::readObjectEnd() {
    if (position_ == end_) {
        fail(StreamFault::truncated);
    } else if (*position_ != streamtags::end) {
        fail(StreamFault::unexpectedTag);
    } else {
        ++position_;
    }
}

}  // namespace tavrel
