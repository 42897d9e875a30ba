#include "platform/numberrun.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cstring>

namespace tavrel {

namespace {

// What a step may read from its place on without looking again: a prefix, a value and the words that compare them.
constexpr std::ptrdiff_t stepBytes = 32;
// Series up to this length are read in one piece into the memory where they stay.
constexpr std::size_t blockSize = 4096;
// Objects up to here take a byte to refer to.
constexpr std::size_t byteReferences = 238;

std::uint64_t wordAt(const unsigned char* at) {
    return qFromLittleEndian<std::uint64_t>(at);
}

bool isPlain(unsigned char head) {
    return static_cast<signed char>(head) >= streamtags::firstReference;
}

}  // namespace

bool NumberRun::Prefix::stands(const unsigned char* at) const {
    return (((wordAt(at) ^ words[0]) & masks[0]) | ((wordAt(at + 8) ^ words[1]) & masks[1])) == 0;
}

void NumberRun::learn(std::size_t start, const ObjectEntry& entry) {
    const std::size_t size = entry.payload() - start;
    if ((entry.code() != 'd' && entry.code() != 'i') || size > sizeof(Prefix::words)) {
        return;
    }
    std::array<unsigned char, sizeof(Prefix::words)> bytes{};
    std::array<unsigned char, sizeof(Prefix::words)> mask{};
    std::memcpy(bytes.data(), scanner_.begin_ + start, size);
    std::fill_n(mask.begin(), size, static_cast<unsigned char>(0xff));
    Prefix& prefix = entry.code() == 'd' ? realPrefix_ : smallPrefix_;
    prefix = {{wordAt(bytes.data()), wordAt(bytes.data() + 8)}, {wordAt(mask.data()), wordAt(mask.data() + 8)}, size};
}

std::size_t NumberRun::read(std::size_t limit, Series& series) {
    if (!scanner_.isLittleEndian() || scanner_.end_ - scanner_.position_ < stepBytes || !findElementType()) {
        return 0;
    }
    if (small_.byShort.empty() && scanner_.objects_.size() > byteReferences) {
        reals_.byShort.assign(Known<std::uint64_t>::shortReferences, reals_.unknown);
        small_.byShort.assign(Known<std::uint16_t>::shortReferences, small_.unknown);
    }
    std::size_t total = 0;
    while (total < limit && scanner_.end_ - scanner_.position_ >= stepBytes && *scanner_.position_ == elementType_) {
        const std::size_t left = limit - total;
        const unsigned char* const at = scanner_.position_;
        std::size_t count = 0;
        if (at[1] != streamtags::literal) {
            const char code = codeAt(at);
            count = code == 'd'   ? append(&NumberRun::realReferences, left, series)
                    : code == 'i' ? append(&NumberRun::smallReferences, left, series)
                                  : 0;
        } else if (realPrefix_.size > 0 && realPrefix_.stands(at)) {
            count = append(&NumberRun::realLiterals, left, series);
        } else if (smallPrefix_.size > 0 && smallPrefix_.stands(at)) {
            count = append(&NumberRun::smallLiterals, left, series);
        }
        if (count == 0) {
            break;
        }
        total += count;
    }
    return total;
}

template <class Value>
std::size_t NumberRun::append(std::size_t (NumberRun::*decode)(Value*, std::size_t), std::size_t limit,
                              Series& series) {
    const std::size_t most = std::min(limit, blockSize);
    auto* const block = pool_.room<Value>(most + sizeof(double));
    const std::size_t count = (this->*decode)(block, most);
    if (count == limit && series.size() == 0) {
        series = pool_.series(block, count);
    } else {
        series.append(std::span<const Value>(block, count));
    }
    return count;
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

// The type code of the number that the element refers to; 0 when it is no such reference.
char NumberRun::codeAt(const unsigned char* at) const {
    const Reference reference = referenceAt(at);
    const auto number = static_cast<std::size_t>(reference.value - streamtags::firstReference);
    if (reference.size == 0 || number >= scanner_.objects_.size()) {
        return 0;
    }
    const ObjectEntry& entry = scanner_.objects_[number];
    return entry.kind() == Holds::number ? entry.code() : '\0';
}

template <class Value>
void NumberRun::keep(Known<Value>& known, std::int64_t reference, Value value) {
    if (reference == static_cast<std::int8_t>(reference)) {
        known.byByte[static_cast<std::uint8_t>(reference)] = value;
    }
    if (reference == static_cast<std::int16_t>(reference) && !known.byShort.empty()) {
        known.byShort[static_cast<std::uint16_t>(reference)] = value;
    }
}

// The value and size of an element whose reference is not known yet, or is too long to be kept; false when it is no
// reference to a number of the type.
bool NumberRun::resolve(const unsigned char* at, std::uint64_t& value, std::size_t& size) {
    if (codeAt(at) != 'd') {
        return false;
    }
    const Reference reference = referenceAt(at);
    const auto& entry = scanner_.objects_[static_cast<std::size_t>(reference.value - streamtags::firstReference)];
    const std::size_t here = scanner_.offset();
    scanner_.seek(entry.payload());
    value = std::bit_cast<std::uint64_t>(scanner_.readDouble());
    scanner_.seek(here);
    keep(reals_, reference.value, value);
    size = reference.size;
    return true;
}

bool NumberRun::resolve(const unsigned char* at, std::uint16_t& value, std::size_t& size) {
    if (codeAt(at) != 'i') {
        return false;
    }
    const Reference reference = referenceAt(at);
    const auto& entry = scanner_.objects_[static_cast<std::size_t>(reference.value - streamtags::firstReference)];
    const std::size_t here = scanner_.offset();
    scanner_.seek(entry.payload());
    const std::int64_t number = scanner_.readSigned();
    scanner_.seek(here);
    if (number != static_cast<std::int8_t>(number)) {
        return false;
    }
    value = static_cast<std::uint8_t>(number);
    keep(small_, reference.value, value);
    size = reference.size;
    return true;
}

std::size_t NumberRun::realReferences(double* block, std::size_t limit) {
    const unsigned char* at = scanner_.position_;
    const unsigned char* const last = scanner_.end_ - stepBytes;
    const std::uint64_t type = elementType_;
    const std::uint64_t shortReference = reals_.byShort.empty() ? 0 : type | streamtags::shortInteger << 8;
    const std::uint64_t* const byShort = reals_.byShort.data();
    std::size_t count = 0;
    const std::uint64_t pairMask = 0x0000ffff0000ffffU;
    const std::uint64_t pair = shortReference | shortReference << 32;
    while (count < limit && at <= last) {
        const std::uint64_t word = wordAt(at);
        if ((word & pairMask) == pair && count + 2 <= limit && shortReference != 0) {
            const std::uint64_t first = byShort[word >> 16 & 0xffff];
            const std::uint64_t second = byShort[word >> 48];
            if (first != reals_.unknown && second != reals_.unknown) {
                block[count] = std::bit_cast<double>(first);
                block[count + 1] = std::bit_cast<double>(second);
                count += 2;
                at += 8;
                continue;
            }
        }
        std::uint64_t bits = 0;
        std::size_t size = 2;
        if ((word & 0xffff) == shortReference) {
            bits = byShort[word >> 16 & 0xffff];
            size = 4;
        } else if ((word & 0xff) == type) {
            bits = reals_.byByte[word >> 8 & 0xff];
        } else {
            break;
        }
        if (bits == reals_.unknown && !resolve(at, bits, size)) {
            break;
        }
        block[count++] = std::bit_cast<double>(bits);
        at += size;
    }
    scanner_.position_ = at;
    return count;
}

std::size_t NumberRun::smallReferences(std::int8_t* block, std::size_t limit) {
    const unsigned char* at = scanner_.position_;
    const unsigned char* const last = scanner_.end_ - stepBytes;
    const std::uint64_t type = elementType_;
    const std::uint64_t shortReference = small_.byShort.empty() ? 0 : type | streamtags::shortInteger << 8;
    const std::uint64_t quad = type * 0x0001000100010001U;
    std::size_t count = 0;
    while (count < limit && at <= last) {
        const std::uint64_t word = wordAt(at);
        std::uint16_t value = 0;
        std::size_t size = 2;
        if ((word & 0xffff) == shortReference) {
            value = small_.byShort[word >> 16 & 0xffff];
            size = 4;
        } else if ((word & 0xff) == type) {
            value = small_.byByte[word >> 8 & 0xff];
        } else {
            break;
        }
        if (value == small_.unknown && !resolve(at, value, size)) {
            break;
        }
        block[count++] = static_cast<std::int8_t>(value);
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
            while (count + step <= limit && at <= last && wordAt(at) == pattern && wordAt(at + 8) == pattern) {
                std::memset(block + count, value, 8);
                count += step;
                at += 16;
            }
            const std::uint64_t next = wordAt(at);
            if (size != 2 || count + 4 > limit || at > last || (next & 0x00ff00ff00ff00ffU) != quad) {
                break;
            }
            const std::uint16_t values[] = {small_.byByte[next >> 8 & 0xff], small_.byByte[next >> 24 & 0xff],
                                            small_.byByte[next >> 40 & 0xff], small_.byByte[next >> 56]};
            if (((values[0] | values[1] | values[2] | values[3]) & small_.unknown) != 0) {
                break;
            }
            for (std::size_t index = 0; index < 4; ++index) {
                block[count + index] = static_cast<std::int8_t>(values[index]);
            }
            count += 4;
            at += 8;
        }
    }
    scanner_.position_ = at;
    return count;
}

std::size_t NumberRun::realLiterals(double* block, std::size_t limit) {
    const Prefix prefix = realPrefix_;
    const unsigned char* at = scanner_.position_;
    const unsigned char* const begin = scanner_.begin_;
    const unsigned char* const last = scanner_.end_ - stepBytes;
    ObjectEntry* const entries = scanner_.objects_.room(limit);
    std::size_t count = 0;
    for (; count < limit && at <= last && prefix.stands(at); ++count) {
        const unsigned char* const value = at + prefix.size;
        const unsigned char head = *value;
        const unsigned char* end = value + 1;
        if (head == streamtags::real) {
            block[count] = std::bit_cast<double>(wordAt(value + 1));
            end = value + 9;
        } else if (isPlain(head)) {
            block[count] = static_cast<signed char>(head);
        } else if (head == streamtags::shortInteger) {
            block[count] = static_cast<std::int16_t>(wordAt(value) >> 8);
            end = value + 3;
        } else {
            break;
        }
        if (*end != streamtags::end) {
            break;
        }
        entries[count] = ObjectEntry(Holds::number, static_cast<std::uint64_t>(value - begin), 'd');
        at = end + 1;
    }
    scanner_.objects_.extend(count);
    scanner_.position_ = at;
    return count;
}

std::size_t NumberRun::smallLiterals(std::int8_t* block, std::size_t limit) {
    const Prefix prefix = smallPrefix_;
    const unsigned char* at = scanner_.position_;
    const unsigned char* const begin = scanner_.begin_;
    const unsigned char* const last = scanner_.end_ - stepBytes;
    ObjectEntry* const entries = scanner_.objects_.room(limit);
    std::size_t count = 0;
    for (; count < limit && at <= last && prefix.stands(at); ++count) {
        const unsigned char* const value = at + prefix.size;
        if (!isPlain(value[0]) || value[1] != streamtags::end) {
            break;
        }
        block[count] = static_cast<std::int8_t>(value[0]);
        entries[count] = ObjectEntry(Holds::number, static_cast<std::uint64_t>(value - begin), 'i');
        at = value + 2;
    }
    scanner_.objects_.extend(count);
    scanner_.position_ = at;
    return count;
}

}  // namespace tavrel
