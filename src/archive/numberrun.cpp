#include "archive/numberrun.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <span>
#include <type_traits>

namespace tavrel {

namespace {

// What a step may read from its place on without looking again: a prefix, a value and the words that compare them.
constexpr std::ptrdiff_t stepBytes = 32;
// Series up to this length are read in one piece into the memory where they stay.
constexpr std::size_t blockSize = 4096;
// Objects up to here take a byte to refer to.
constexpr std::size_t byteReferences = 238;
constexpr std::size_t shortReferences = 65536;
// A stream holds a type or two of numbers.
constexpr std::size_t maximumPrefixes = 8;

// A not-a-number that is looked up each time it is met.
constexpr std::uint64_t unknownReal = 0x7ff4000000000000U;
constexpr std::uint64_t unknownNarrow = 0;

// A number of 32 bits with its type above them, and a mark when it is an integer that fits a byte.
constexpr std::uint64_t smallMark = 0x100;

std::uint64_t narrowType(char code) {
    return static_cast<unsigned char>(code);
}

std::uint64_t narrowNumber(std::uint32_t bits, char code) {
    const auto value = static_cast<std::int32_t>(bits);
    const bool isSmall = code != 'f' && value == static_cast<std::int8_t>(value);
    return (narrowType(code) | (isSmall ? smallMark : 0)) << 32 | bits;
}

std::uint64_t wordAt(const unsigned char* at) {
    return qFromLittleEndian<std::uint64_t>(at);
}

bool isPlain(unsigned char head) {
    return static_cast<signed char>(head) >= streamtags::firstReference;
}

bool isUnsigned(char code) {
    return code == 'S' || code == 'I' || code == 'L' || code == 'Q';
}

bool isRaw(char code) {
    return code == 'c' || code == 'C' || code == 'B';
}

}  // namespace

NumberRun::NumberRun(TypedStreamScanner& scanner) : scanner_(scanner), reals_(unknownReal), narrow_(unknownNarrow) {}

bool NumberRun::Prefix::stands(const unsigned char* at) const {
    return (((wordAt(at) ^ words[0]) & masks[0]) | ((wordAt(at + 8) ^ words[1]) & masks[1])) == 0;
}

void NumberRun::Known::keep(std::int64_t reference, std::uint64_t number) {
    if (reference == static_cast<std::int8_t>(reference)) {
        byByte[static_cast<std::uint8_t>(reference)] = number;
    }
    if (reference == static_cast<std::int16_t>(reference) && !byShort.empty()) {
        byShort[static_cast<std::uint16_t>(reference)] = number;
    }
}

void NumberRun::learn(std::size_t start, const ObjectEntry& entry) {
    const std::size_t size = entry.payload() - start;
    if (size > sizeof(Prefix::words)) {
        return;
    }
    std::array<unsigned char, sizeof(Prefix::words)> bytes{};
    std::array<unsigned char, sizeof(Prefix::words)> mask{};
    std::memcpy(bytes.data(), scanner_.begin_ + start, size);
    std::fill_n(mask.begin(), size, static_cast<unsigned char>(0xff));
    const Prefix learned{{wordAt(bytes.data()), wordAt(bytes.data() + 8)},
                         {wordAt(mask.data()), wordAt(mask.data() + 8)},
                         size,
                         entry.code()};
    const auto same = std::ranges::find(prefixes_, learned.code, &Prefix::code);
    if (same != prefixes_.end()) {
        *same = learned;
    } else if (prefixes_.size() < maximumPrefixes) {
        prefixes_.push_back(learned);
    }
}

std::size_t NumberRun::read(std::size_t limit, Series& series) {
    if (!scanner_.isLittleEndian() || scanner_.end_ - scanner_.position_ < stepBytes || !findElementType()) {
        return 0;
    }
    if (narrow_.byShort.empty() && scanner_.objects_.size() > byteReferences) {
        reals_.byShort.assign(shortReferences, unknownReal);
        narrow_.byShort.assign(shortReferences, unknownNarrow);
    }
    std::size_t total = 0;
    while (total < limit && scanner_.end_ - scanner_.position_ >= stepBytes && *scanner_.position_ == elementType_) {
        const unsigned char* const at = scanner_.position_;
        std::size_t count = 0;
        if (at[1] != streamtags::literal) {
            const ObjectEntry entry = numberAt(at);
            count = entry.kind() == Holds::number ? readReferences(entry.code(), limit - total, series) : 0;
        } else {
            const auto prefix = std::ranges::find_if(prefixes_, [at](const Prefix& known) { return known.stands(at); });
            count = prefix != prefixes_.end() ? readLiterals(*prefix, limit - total, series) : 0;
        }
        if (count == 0) {
            break;
        }
        total += count;
    }
    return total;
}

// Elements are of type "@", which is among the first strings of any stream and so takes one byte to refer to.
bool NumberRun::findElementType() {
    const auto index = static_cast<signed char>(*scanner_.position_) - streamtags::firstReference;
    if (index < 0 || static_cast<std::size_t>(index) >= scanner_.strings_.size() ||
        scanner_.strings_[static_cast<std::size_t>(index)].code != '@') {
        return false;
    }
    elementType_ = *scanner_.position_;
    return true;
}

// Numbers read into the pool's room: a whole array stays there.
template <class Value>
std::size_t NumberRun::append(const Value* room, std::size_t count, std::size_t limit, char code, Series& series) {
    if (count == limit && series.size() == 0) {
        series = pool_.series(room, count, code);
    } else if constexpr (std::is_floating_point_v<Value>) {
        series.append(std::span<const Value>(room, count));
    } else {
        series.append(std::span<const Value>(room, count), code);
    }
    return count;
}

std::size_t NumberRun::readReferences(char code, std::size_t limit, Series& series) {
    if (code == 'd') {
        return references<double>(code, limit, series);
    }
    if (code == 'f') {
        return references<float>(code, limit, series);
    }
    const std::size_t count = smallReferences(code, limit, series);
    return count > 0 ? count : references<std::int32_t>(code, limit, series);
}

std::size_t NumberRun::readLiterals(const Prefix& prefix, std::size_t limit, Series& series) {
    if (prefix.code == 'd') {
        return realLiterals<double>(prefix, limit, series);
    }
    return prefix.code == 'f' ? realLiterals<float>(prefix, limit, series) : integerLiterals(prefix, limit, series);
}

NumberRun::Reference NumberRun::referenceAt(const unsigned char* at) const {
    const std::uint64_t word = wordAt(at);
    const auto head = static_cast<unsigned char>(word >> 8);
    if (isPlain(head)) {
        return {static_cast<signed char>(head), 2};
    }
    if (head == streamtags::shortInteger) {
        return {static_cast<std::int16_t>(word >> 16), 4};
    }
    if (head == streamtags::integer) {
        return {static_cast<std::int32_t>(word >> 16), 6};
    }
    return {};
}

// The number that the element refers to; opaque when it is no such reference.
ObjectEntry NumberRun::numberAt(const unsigned char* at) const {
    const Reference reference = referenceAt(at);
    const auto number = static_cast<std::size_t>(reference.value - streamtags::firstReference);
    if (reference.size == 0 || number >= scanner_.objects_.size()) {
        return {};
    }
    const ObjectEntry entry = scanner_.objects_[number];
    return entry.kind() == Holds::number ? entry : ObjectEntry();
}

// The number and size of an element whose reference is not known yet, or is too long to be kept; false when it is no
// reference to a number of the type, or to one beyond 32 bits.
bool NumberRun::resolve(const unsigned char* at, char code, std::uint64_t& number, std::size_t& size) {
    const ObjectEntry entry = numberAt(at);
    if (entry.kind() != Holds::number || entry.code() != code) {
        return false;
    }
    const Reference reference = referenceAt(at);
    const std::size_t here = scanner_.offset();
    scanner_.seek(entry.payload());
    bool isNarrow = true;
    if (code == 'd') {
        number = std::bit_cast<std::uint64_t>(scanner_.readDouble());
    } else if (code == 'f') {
        number = narrowNumber(std::bit_cast<std::uint32_t>(scanner_.readFloat()), code);
    } else {
        const std::int64_t value = scanner_.readInteger(code);
        isNarrow = Number::ofInteger(value, code).isNarrow();
        number = narrowNumber(static_cast<std::uint32_t>(value), code);
    }
    scanner_.seek(here);
    if (isNarrow) {
        (code == 'd' ? reals_ : narrow_).keep(reference.value, number);
        size = reference.size;
    }
    return isNarrow;
}

// The first two bytes of an element with a short reference; more than two bytes can be while those are not kept.
std::uint64_t NumberRun::shortElement(const Known& known) const {
    return known.byShort.empty() ? 0x10000 : elementType_ | std::uint64_t{streamtags::shortInteger} << 8;
}

template <class Value>
std::size_t NumberRun::references(char code, std::size_t limit, Series& series) {
    constexpr bool isDouble = std::is_same_v<Value, double>;
    const Known& known = isDouble ? reals_ : narrow_;
    const auto matches = [type = narrowType(code)](std::uint64_t number) {
        return isDouble ? number != unknownReal : (number >> 32 & 0xff) == type;
    };
    const auto valueOf = [](std::uint64_t number) {
        if constexpr (isDouble) {
            return std::bit_cast<double>(number);
        } else {
            return std::bit_cast<Value>(static_cast<std::uint32_t>(number));
        }
    };
    const std::size_t most = std::min(limit, blockSize);
    auto* const block = pool_.room<Value>(most);
    const unsigned char* at = scanner_.position_;
    const unsigned char* const last = scanner_.end_ - stepBytes;
    const std::uint64_t type = elementType_;
    const std::uint64_t* const byShort = known.byShort.data();
    const std::uint64_t shortReference = shortElement(known);
    const std::uint64_t pair = shortReference | shortReference << 32;
    std::size_t count = 0;
    while (count < most && at <= last) {
        const std::uint64_t word = wordAt(at);
        if ((word & 0x0000ffff0000ffffU) == pair && count + 2 <= most) {
            const std::uint64_t first = byShort[word >> 16 & 0xffff];
            const std::uint64_t second = byShort[word >> 48];
            if (matches(first) && matches(second)) {
                block[count] = valueOf(first);
                block[count + 1] = valueOf(second);
                count += 2;
                at += 8;
                continue;
            }
        }
        std::uint64_t number = 0;
        std::size_t size = 2;
        if ((word & 0xffff) == shortReference) {
            number = byShort[word >> 16 & 0xffff];
            size = 4;
        } else if ((word & 0xff) == type) {
            number = known.byByte[word >> 8 & 0xff];
        } else {
            break;
        }
        if (!matches(number) && !resolve(at, code, number, size)) {
            break;
        }
        block[count++] = valueOf(number);
        at += size;
    }
    scanner_.position_ = at;
    return append(block, count, limit, code, series);
}

// Stops at a number that does not fit a byte; when the series begins with some that do, it is none of small ones.
std::size_t NumberRun::smallReferences(char code, std::size_t limit, Series& series) {
    const std::size_t most = std::min(limit, blockSize);
    auto* const block = pool_.room<std::int8_t>(most + 8);
    const unsigned char* at = scanner_.position_;
    const unsigned char* const last = scanner_.end_ - stepBytes;
    const std::uint64_t type = elementType_;
    const std::uint64_t quad = type * 0x0001000100010001U;
    const std::uint64_t shortReference = shortElement(narrow_);
    const std::uint64_t wanted = narrowType(code) | smallMark;
    std::size_t count = 0;
    while (count < most && at <= last) {
        const std::uint64_t word = wordAt(at);
        std::uint64_t number = 0;
        std::size_t size = 2;
        if ((word & 0xffff) == shortReference) {
            number = narrow_.byShort[word >> 16 & 0xffff];
            size = 4;
        } else if ((word & 0xff) == type) {
            number = narrow_.byByte[word >> 8 & 0xff];
        } else {
            break;
        }
        if (number >> 32 != wanted && (!resolve(at, code, number, size) || number >> 32 != wanted)) {
            break;
        }
        const auto value = static_cast<std::int8_t>(number);
        block[count++] = value;
        at += size;
        if (size > 4) {
            continue;
        }
        // As long as the same reference goes on, eight or four of them at a time; among references of a byte, four at a
        // time whatever they refer to.
        const std::uint64_t pattern =
            size == 2 ? (word & 0xffff) * 0x0001000100010001U : (word & 0xffffffff) * 0x0000000100000001U;
        const std::size_t step = 16 / size;
        for (;;) {
            while (count + step <= most && at <= last && wordAt(at) == pattern && wordAt(at + 8) == pattern) {
                std::memset(block + count, value, 8);
                count += step;
                at += 16;
            }
            const std::uint64_t next = wordAt(at);
            if (size != 2 || count + 4 > most || at > last || (next & 0x00ff00ff00ff00ffU) != quad) {
                break;
            }
            const std::uint64_t numbers[] = {narrow_.byByte[next >> 8 & 0xff], narrow_.byByte[next >> 24 & 0xff],
                                             narrow_.byByte[next >> 40 & 0xff], narrow_.byByte[next >> 56]};
            const std::uint64_t kind = wanted << 32;
            if (((numbers[0] ^ kind) | (numbers[1] ^ kind) | (numbers[2] ^ kind) | (numbers[3] ^ kind)) >> 32 != 0) {
                break;
            }
            for (std::size_t index = 0; index < 4; ++index) {
                block[count + index] = static_cast<std::int8_t>(numbers[index]);
            }
            count += 4;
            at += 8;
        }
    }
    if (count < most && series.size() == 0 && at <= last && numberAt(at).code() == code) {
        return 0;
    }
    scanner_.position_ = at;
    return append(block, count, limit, code, series);
}

template <class Value>
std::size_t NumberRun::realLiterals(const Prefix& known, std::size_t limit, Series& series) {
    using Word = std::conditional_t<std::is_same_v<Value, double>, std::uint64_t, std::uint32_t>;
    const std::size_t most = std::min(limit, blockSize);
    auto* const block = pool_.room<Value>(most);
    const Prefix prefix = known;
    const unsigned char* at = scanner_.position_;
    const unsigned char* const begin = scanner_.begin_;
    const unsigned char* const last = scanner_.end_ - stepBytes;
    ObjectEntry* const entries = scanner_.objects_.room(most);
    std::size_t count = 0;
    for (; count < most && at <= last && prefix.stands(at); ++count) {
        const unsigned char* const value = at + prefix.size;
        const unsigned char head = *value;
        const unsigned char* end = value + 1;
        if (head == streamtags::real) {
            block[count] = std::bit_cast<Value>(qFromLittleEndian<Word>(value + 1));
            end += sizeof(Value);
        } else if (isPlain(head)) {
            block[count] = static_cast<signed char>(head);
        } else if (head == streamtags::shortInteger) {
            block[count] = qFromLittleEndian<std::int16_t>(value + 1);
            end += 2;
        } else {
            break;
        }
        if (*end != streamtags::end) {
            break;
        }
        entries[count] = ObjectEntry(Holds::number, static_cast<std::uint64_t>(value - begin), prefix.code);
        at = end + 1;
    }
    scanner_.objects_.extend(count);
    scanner_.position_ = at;
    return append(block, count, limit, prefix.code, series);
}

std::size_t NumberRun::integerLiterals(const Prefix& known, std::size_t limit, Series& series) {
    const std::size_t most = std::min(limit, blockSize);
    auto* const block = pool_.room<std::int32_t>(most);
    const Prefix prefix = known;
    const bool raw = isRaw(prefix.code);
    const bool withoutSign = isUnsigned(prefix.code) || prefix.code == 'C' || prefix.code == 'B';
    const unsigned char* at = scanner_.position_;
    const unsigned char* const begin = scanner_.begin_;
    const unsigned char* const last = scanner_.end_ - stepBytes;
    ObjectEntry* const entries = scanner_.objects_.room(most);
    bool areSmall = true;
    std::size_t count = 0;
    for (; count < most && at <= last && prefix.stands(at); ++count) {
        const unsigned char* const value = at + prefix.size;
        const unsigned char* end = value + 1;
        std::int32_t number = 0;
        if (raw || isPlain(*value)) {
            number = withoutSign ? std::int32_t{*value} : std::int32_t{static_cast<signed char>(*value)};
        } else if (*value == streamtags::shortInteger) {
            const auto word = qFromLittleEndian<std::uint16_t>(value + 1);
            number = withoutSign ? std::int32_t{word} : std::int32_t{static_cast<std::int16_t>(word)};
            end += 2;
        } else {
            break;
        }
        if (*end != streamtags::end) {
            break;
        }
        areSmall = areSmall && number == static_cast<std::int8_t>(number);
        block[count] = number;
        entries[count] = ObjectEntry(Holds::number, static_cast<std::uint64_t>(value - begin), prefix.code);
        at = end + 1;
    }
    scanner_.objects_.extend(count);
    scanner_.position_ = at;
    if (!areSmall) {
        return append(block, count, limit, prefix.code, series);
    }
    auto* const small = reinterpret_cast<std::int8_t*>(block);
    for (std::size_t index = 0; index < count; ++index) {
        small[index] = static_cast<std::int8_t>(block[index]);
    }
    return append(small, count, limit, prefix.code, series);
}

}  // namespace tavrel
