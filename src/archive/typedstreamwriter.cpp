#include "archive/typedstreamwriter.h"

#include "archive/fastnumberwriter.h"
#include "archive/plainnumberwriter.h"
#include "archive/typedstreamtags.h"
#include "base/largememory.h"
#include "records/floatbits.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>

namespace tavrel {

namespace {

using Class = TypedStreamWriter::Class;

constexpr std::int64_t systemVersion = 1000;

constexpr Class arrayClass{"NSArray", 0, &TypedStreamWriter::rootClass};
constexpr Class valueClass{"NSValue", 0, &TypedStreamWriter::rootClass};
constexpr Class stringClass{"NSString", 1, &TypedStreamWriter::rootClass};
constexpr Class dateClass{"NSDate", 0, &TypedStreamWriter::rootClass};
constexpr Class colorClass{"NSColor", 0, &TypedStreamWriter::rootClass};

// Kinds of colour.
constexpr unsigned char calibratedRgb = 1;
constexpr unsigned char calibratedWhite = 3;

}  // namespace

constexpr Class TypedStreamWriter::rootClass{"NSObject", 0, nullptr};
constexpr Class TypedStreamWriter::mutableArrayClass{"NSMutableArray", 0, &arrayClass};
constexpr Class TypedStreamWriter::numberClass{"NSNumber", 0, &valueClass};

TypedStreamWriter::TypedStreamWriter(SeriesNumbers numbers, std::size_t expectedNumbers, SeriesPath path)
    : position_(nullptr), end_(nullptr) {
    if (path == SeriesPath::fast) {
        numbers_ = std::make_unique<FastNumberWriter>(*this, numbers);
    } else {
        numbers_ = std::make_unique<PlainNumberWriter>(*this, numbers);
    }
    // An element takes 4 bytes to refer to a number in most files, and 16 to hold one.
    const std::size_t expectedBytes = 4096 + expectedNumbers * (numbers == SeriesNumbers::shared ? 4 : 16);
    buffer_ = QByteArray(static_cast<qsizetype>(expectedBytes + expectedBytes / 16), Qt::Uninitialized);
    position_ = buffer_.data();
    end_ = position_ + buffer_.size();
    preferLargePages(position_, static_cast<std::size_t>(buffer_.size()));
    putSigned(streamtags::streamerVersion);
    constexpr std::string_view signature = streamtags::littleEndianSignature;
    putSigned(static_cast<std::int64_t>(signature.size()));
    put(signature);
    putSigned(systemVersion);
}

void TypedStreamWriter::beginRoot(std::size_t count) {
    beginGroup("@");
    beginLiteral(mutableArrayClass);
    beginGroup("i");
    putSigned(static_cast<std::int64_t>(count));
}

bool TypedStreamWriter::beginRecord(const Class& recordClass, const void* record) {
    beginGroup("@");
    if (const auto known = records_.constFind(record); known != records_.constEnd()) {
        putReference(*known);
        return false;
    }
    records_.insert(record, nextObject_);
    beginLiteral(recordClass);
    return true;
}

void TypedStreamWriter::endObject() {
    put(streamtags::end);
}

void TypedStreamWriter::writeInteger(qint32 value) {
    beginGroup("i");
    putSigned(value);
}

void TypedStreamWriter::writeFloat(float value) {
    beginGroup("f");
    putFloat(value);
}

void TypedStreamWriter::writeFloatBits(float value) {
    writeInteger(std::bit_cast<qint32>(value));
}

void TypedStreamWriter::writeText(const QString& text) {
    beginGroup("@");
    if (text.isNull()) {
        put(streamtags::nil);
        return;
    }
    if (const auto known = texts_.constFind(text); known != texts_.constEnd()) {
        putReference(*known);
        return;
    }
    texts_.insert(text, nextObject_);
    beginLiteral(stringClass);
    beginGroup("+");
    const QByteArray bytes = text.toUtf8();
    putSigned(bytes.size());
    put(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    endObject();
}

void TypedStreamWriter::writeDate(const Date& date) {
    beginGroup("@");
    if (date.isNull()) {
        put(streamtags::nil);
        return;
    }
    const auto bits = std::bit_cast<quint64>(date.secondsSince2001());
    if (const auto known = dates_.constFind(bits); known != dates_.constEnd()) {
        putReference(*known);
        return;
    }
    dates_.insert(bits, nextObject_);
    beginLiteral(dateClass);
    beginGroup("d");
    putDouble(date.secondsSince2001());
    endObject();
}

void TypedStreamWriter::writeSeries(const Series& series) {
    beginGroup("@");
    if (series.isNull()) {
        put(streamtags::nil);
        return;
    }
    if (const void* numbers = series.sharedNumbers()) {
        if (const auto known = series_.constFind(numbers); known != series_.constEnd()) {
            putReference(*known);
            return;
        }
        series_.insert(numbers, nextObject_);
    }
    beginLiteral(mutableArrayClass);
    beginGroup("i");
    putSigned(static_cast<std::int64_t>(series.size()));
    numbers_->write(series);
    endObject();
}

void TypedStreamWriter::writeRootColor(std::span<const float> components) {
    beginGroup("@");
    beginLiteral(colorClass);
    putByteGroup(components.size() == 2 ? calibratedWhite : calibratedRgb);
    beginGroup(std::string_view("ffff").substr(0, components.size()));
    for (const float component : components) {
        putFloat(component);
    }
    endObject();
}

QByteArray TypedStreamWriter::take() {
    buffer_.resize(position_ - buffer_.constData());
    buffer_.squeeze();
    return std::move(buffer_);
}

void TypedStreamWriter::grow(std::size_t count) {
    const std::size_t used = static_cast<std::size_t>(position_ - buffer_.constData());
    buffer_.resize(buffer_.size() * 2 + static_cast<qsizetype>(count));
    position_ = buffer_.data() + used;
    end_ = buffer_.data() + buffer_.size();
    preferLargePages(position_, static_cast<std::size_t>(end_ - position_));
}

void TypedStreamWriter::put(std::string_view bytes) {
    if (!bytes.empty()) {
        std::memcpy(room(bytes.size()), bytes.data(), bytes.size());
        position_ += bytes.size();
    }
}

void TypedStreamWriter::putWord(unsigned char tag, std::uint64_t word, int bytes) {
    char* at = room(9);
    at[0] = static_cast<char>(tag);
    qToLittleEndian(word, at + 1);  // the bytes beyond those wanted are written over
    position_ += 1 + bytes;
}

void TypedStreamWriter::putSigned(std::int64_t value) {
    const auto word = static_cast<std::uint64_t>(value);
    if (value >= streamtags::firstReference && value <= std::numeric_limits<std::int8_t>::max()) {
        put(static_cast<unsigned char>(value));
    } else if (value == static_cast<std::int16_t>(value)) {
        putWord(streamtags::shortInteger, word, 2);
    } else if (value == static_cast<std::int32_t>(value)) {
        putWord(streamtags::integer, word, 4);
    } else {
        putWord(streamtags::longInteger, word, 8);
    }
}

// A form that gives the same number whether its bytes are taken with a sign or, where the type is as wide, without one.
void TypedStreamWriter::putUnsigned(std::uint64_t value) {
    if (value <= std::numeric_limits<std::int16_t>::max()) {
        putSigned(static_cast<std::int64_t>(value));
    } else if (value <= std::numeric_limits<std::uint32_t>::max()) {
        putWord(streamtags::integer, value, 4);
    } else {
        putWord(streamtags::longInteger, value, 8);
    }
}

void TypedStreamWriter::putFloat(float value) {
    if (isIntegral(static_cast<double>(value))) {
        putSigned(static_cast<std::int64_t>(value));
    } else {
        putWord(streamtags::real, std::bit_cast<std::uint32_t>(value), 4);
    }
}

void TypedStreamWriter::putDouble(double value) {
    if (isIntegral(value)) {
        putSigned(static_cast<std::int64_t>(value));
    } else {
        putWord(streamtags::real, std::bit_cast<std::uint64_t>(value), 8);
    }
}

void TypedStreamWriter::putReference(std::size_t number) {
    putSigned(static_cast<std::int64_t>(number) + streamtags::firstReference);
}

void TypedStreamWriter::putSharedString(std::string_view text) {
    const bool isCode = text.size() == 1 && static_cast<unsigned char>(text[0]) < codeReferences_.size();
    if (isCode) {
        const Reference& known = codeReferences_[static_cast<unsigned char>(text[0])];
        if (known.size > 0) {
            std::memcpy(room(known.bytes.size()), known.bytes.data(), known.bytes.size());
            position_ += known.size;
            return;
        }
    }
    if (const auto known = strings_.find(text); known != strings_.end()) {
        putReference(known->second);
        return;
    }
    const std::size_t index = strings_.size();
    strings_.emplace(text, index);
    put(streamtags::literal);
    putSigned(static_cast<std::int64_t>(text.size()));
    put(text);
    if (isCode) {
        // Written once to see its bytes, then taken back.
        const std::ptrdiff_t start = position_ - buffer_.constData();
        putReference(index);
        Reference& reference = codeReferences_[static_cast<unsigned char>(text[0])];
        reference.size = static_cast<int>(position_ - buffer_.constData() - start);
        position_ = buffer_.data() + start;
        std::memcpy(reference.bytes.data(), position_, static_cast<std::size_t>(reference.size));
    }
}

void TypedStreamWriter::putCString(std::string_view text) {
    if (const auto known = cStrings_.find(text); known != cStrings_.end()) {
        putReference(known->second);
        return;
    }
    cStrings_.emplace(text, nextObject_++);
    put(streamtags::literal);
    putSharedString(text);
}

void TypedStreamWriter::putClass(const Class& description) {
    const auto known = std::find_if(classes_.begin(), classes_.end(), [&](const KnownClass& each) {
        return each.name == description.name && each.version == description.version;
    });
    if (known != classes_.end()) {
        putReference(known->number);
        return;
    }
    classes_.push_back({std::string(description.name), description.version, nextObject_++});
    put(streamtags::literal);
    putSharedString(description.name);
    putSigned(description.version);
    if (description.superclass) {
        putClass(*description.superclass);
    } else {
        put(streamtags::nil);
    }
}

void TypedStreamWriter::putByteGroup(unsigned char value) {
    beginGroup("c");
    put(value);
}

void TypedStreamWriter::beginLiteral(const Class& description) {
    put(streamtags::literal);
    ++nextObject_;
    putClass(description);
}

}  // namespace tavrel
