#include "platform/floatbits.h"
#include "platform/typedstreamtags.h"
#include "platform/typedstreamwriter.h"

#include <QtEndian>

#include <array>
#include <bit>
#include <cstring>
#include <limits>

namespace tavrel {

namespace {

using Element = SharedNumbers::Element;

// More than any prefix of a number takes with references of five bytes each.
constexpr std::size_t prefixRoom = 32;
// What is copied at once of a prefix; it seldom takes more than half of it.
constexpr std::size_t prefixBlock = 16;

std::size_t sizeOf(Element element) {
    return element >> 56;
}

std::uint64_t bitsOf(const Number& number) {
    return number.isReal() ? std::bit_cast<std::uint64_t>(number.real) : std::bit_cast<std::uint64_t>(number.integer);
}

// The same element so many times; eight bytes are written at once, so there must be room for as many beyond the last.
char* repeat(char* at, Element element, std::size_t times) {
    const std::size_t size = sizeOf(element);
    char* const end = at + size * times;
    Element pattern = element;
    std::size_t step = size;
    if (size == 2 || size == 4) {
        pattern = size == 2 ? (element & 0xffff) * 0x0001000100010001U : (element & 0xffffffff) * 0x0000000100000001U;
        step = 8;
    }
    for (; at < end; at += step) {
        qToLittleEndian(pattern, at);
    }
    return end;
}

char* storeWord(char* at, unsigned char tag, std::uint64_t word, int bytes) {
    *at = static_cast<char>(tag);
    qToLittleEndian(word, at + 1);
    return at + 1 + bytes;
}

// The shortest form of an integer of 32 bits. There must be room for nine bytes, whatever it takes.
char* storeInteger(char* at, std::int32_t value) {
    const auto word = static_cast<std::uint64_t>(value);
    if (value >= streamtags::firstReference && value <= std::numeric_limits<std::int8_t>::max()) {
        *at = static_cast<char>(value);
        return at + 1;
    }
    return value == static_cast<std::int16_t>(value) ? storeWord(at, streamtags::shortInteger, word, 2)
                                                     : storeWord(at, streamtags::integer, word, 4);
}

char* storeValue(char* at, std::int8_t value) {
    return storeInteger(at, value);
}

char* storeValue(char* at, double value) {
    return isIntegral(value) ? storeInteger(at, static_cast<std::int32_t>(value))
                             : storeWord(at, streamtags::real, std::bit_cast<std::uint64_t>(value), 8);
}

}  // namespace

void TypedStreamWriter::writeSeries(const Series& series) {
    beginGroup("@");
    if (series.isNull()) {
        put(streamtags::nil);
        return;
    }
    beginLiteral(mutableArrayClass);
    beginGroup("i");
    putSigned(static_cast<std::int64_t>(series.size()));
    if (const auto reals = series.realBlock(); !reals.empty()) {
        putReals(reals);
    } else if (const auto small = series.smallBlock(); !small.empty()) {
        putSmall(small);
    } else {
        for (std::size_t index = 0; index < series.size(); ++index) {
            putNumber(series.at(index));
        }
    }
    endObject();
}

// One element of an array, as all functions below.
void TypedStreamWriter::putNumber(const Number& number) {
    if (number.code == 'd') {
        putReals({&number.real, 1});
    } else if (const auto small = static_cast<std::int8_t>(number.integer);
               number.code == 'i' && small == number.integer) {
        putSmall({&small, 1});
    } else if (numbers_ == Numbers::literal) {
        putNumberLiteral(number);
    } else if (Element& element = otherNumbers_[{number.code, bitsOf(number)}]; element != 0) {
        position_ = repeat(room(prefixRoom), element, 1);
    } else {
        element = elementFor(putNumberLiteral(number));
    }
}

void TypedStreamWriter::putReals(std::span<const double> values) {
    if (numbers_ == Numbers::literal) {
        putLiterals(values, 'd');
        return;
    }
    for (std::size_t index = 0; index < values.size(); ++index) {
        char* at = room((values.size() - index) * sizeof(Element));
        Element element = 1;
        for (; index < values.size(); ++index) {
            element = reals_.find(std::bit_cast<std::uint64_t>(values[index]));
            if (element == 0) {
                break;
            }
            qToLittleEndian(element, at);
            at += sizeOf(element);
        }
        position_ = at;
        if (element == 0) {
            if (const Element known = elementFor(putNumberLiteral(Number::ofReal(values[index]))); known != 0) {
                reals_.store(std::bit_cast<std::uint64_t>(values[index]), known);
            }
        }
    }
}

void TypedStreamWriter::putSmall(std::span<const std::int8_t> values) {
    if (numbers_ == Numbers::literal) {
        putLiterals(values, 'i');
        return;
    }
    for (std::size_t index = 0; index < values.size();) {
        const std::int8_t value = values[index];
        Element& element = small_[static_cast<std::uint8_t>(value)];
        if (element == 0) {
            element = elementFor(putNumberLiteral(Number::ofInteger(value)));
            ++index;
            continue;
        }
        std::size_t end = index + 1;
        while (end < values.size() && values[end] == value) {
            ++end;
        }
        position_ = repeat(room((end - index + 1) * sizeof(Element)), element, end - index);
        index = end;
    }
}

// What precedes the value is the same for all of them, once the first one has been written.
template <class Value>
void TypedStreamWriter::putLiterals(std::span<const Value> values, char code) {
    const std::string& prefix = numberPrefixes_[static_cast<unsigned char>(code)];
    std::size_t index = 0;
    for (; index < values.size() && (prefix.empty() || prefix.size() > prefixBlock); ++index) {
        putNumberLiteral(code == 'd' ? Number::ofReal(static_cast<double>(values[index]))
                                     : Number::ofInteger(static_cast<std::int64_t>(values[index])));
    }
    std::array<char, prefixBlock> block{};
    prefix.copy(block.data(), block.size());
    const std::size_t size = prefix.size();
    constexpr std::size_t longestValue = 10;  // with the end of the object
    char* at = room((values.size() - index) * (size + longestValue) + prefixBlock);
    nextObject_ += values.size() - index;
    for (; index < values.size(); ++index) {
        std::memcpy(at, block.data(), block.size());
        at = storeValue(at + size, values[index]);
        *at++ = static_cast<char>(streamtags::end);
    }
    position_ = at;
}

// The number of the object written.
std::size_t TypedStreamWriter::putNumberLiteral(const Number& number) {
    const std::size_t object = nextObject_;
    putNumberPrefix(number.code);
    switch (number.code) {
        case 'f':
            putFloat(narrowed(number.real));
            break;
        case 'd':
            putDouble(number.real);
            break;
        case 'c':
        case 'C':
        case 'B':
            put(static_cast<unsigned char>(number.integer));
            break;
        case 'S':
        case 'I':
        case 'L':
        case 'Q':
            putUnsigned(std::bit_cast<std::uint64_t>(number.integer));
            break;
        default:
            putSigned(number.integer);
    }
    endObject();
    return object;
}

// Type, class and type code of a number. From the second one of a type on they are references only, always the same.
void TypedStreamWriter::putNumberPrefix(char code) {
    std::string& known = numberPrefixes_[static_cast<unsigned char>(code)];
    const std::string_view codeText(&code, 1);
    if (known.empty()) {
        beginGroup("@");
        beginLiteral(numberClass);
        beginGroup("*");
        putCString(codeText);
        beginGroup(codeText);

        // Written a second time for its bytes, which are then taken back.
        const std::ptrdiff_t start = position_ - buffer_.constData();
        beginGroup("@");
        put(streamtags::literal);
        putClass(numberClass);
        beginGroup("*");
        putCString(codeText);
        beginGroup(codeText);
        const std::ptrdiff_t size = position_ - buffer_.constData() - start;
        position_ = buffer_.data() + start;
        known.assign(position_, static_cast<std::size_t>(size));
        return;
    }
    put(known);
    ++nextObject_;
}

// The element that refers to an object; 0 when it takes more than seven bytes.
Element TypedStreamWriter::elementFor(std::size_t object) const {
    const Reference& type = codeReferences_['@'];
    const std::int64_t reference = static_cast<std::int64_t>(object) + streamtags::firstReference;
    Element element = 0;
    unsigned shift = 0;
    const auto add = [&](std::uint64_t word, unsigned bytes) {
        element |= (word & ((std::uint64_t{1} << 8 * bytes) - 1)) << shift;
        shift += 8 * bytes;
    };
    for (int index = 0; index < type.size; ++index) {
        add(static_cast<unsigned char>(type.bytes[static_cast<std::size_t>(index)]), 1);
    }
    const auto word = static_cast<std::uint64_t>(reference);
    if (reference <= std::numeric_limits<std::int8_t>::max()) {
        add(word, 1);
    } else if (reference <= std::numeric_limits<std::int16_t>::max()) {
        add(streamtags::shortInteger, 1);
        add(word, 2);
    } else if (reference <= std::numeric_limits<std::int32_t>::max()) {
        add(streamtags::integer, 1);
        add(word, 4);
    } else {
        return 0;
    }
    return element | std::uint64_t{shift / 8} << 56;
}

}  // namespace tavrel
