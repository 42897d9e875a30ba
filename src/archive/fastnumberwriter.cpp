#include "archive/fastnumberwriter.h"

#include "archive/typedstreamtags.h"
#include "records/floatbits.h"

#include <QtEndian>

#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <type_traits>

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

// How SharedNumbers tells a number from all others of its table.
std::uint64_t keyOf(double value, char) {
    return std::bit_cast<std::uint64_t>(value);
}

std::uint64_t keyOf(float value, char code) {
    return std::uint64_t{static_cast<unsigned char>(code)} << 32 | std::bit_cast<std::uint32_t>(value);
}

std::uint64_t keyOf(std::int32_t value, char code) {
    return std::uint64_t{static_cast<unsigned char>(code)} << 32 | static_cast<std::uint32_t>(value);
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

char* storeValue(char* at, std::int32_t value, char code) {
    if (code == 'c' || code == 'C' || code == 'B') {
        *at = static_cast<char>(value);
        return at + 1;
    }
    return storeInteger(at, value);
}

char* storeValue(char* at, float value, char) {
    return isIntegral(static_cast<double>(value))
               ? storeInteger(at, static_cast<std::int32_t>(value))
               : storeWord(at, streamtags::real, std::bit_cast<std::uint32_t>(value), 4);
}

char* storeValue(char* at, double value, char) {
    return isIntegral(value) ? storeInteger(at, static_cast<std::int32_t>(value))
                             : storeWord(at, streamtags::real, std::bit_cast<std::uint64_t>(value), 8);
}

}  // namespace

void FastNumberWriter::write(const Series& series) {
    putBlock(series.block<double>(), series.code());
    putBlock(series.block<float>(), series.code());
    putBlock(series.block<std::int32_t>(), series.code());
    putBlock(series.block<std::int8_t>(), series.code());
    if (series.isMixed()) {
        for (std::size_t index = 0; index < series.size(); ++index) {
            putNumber(series.at(index));
        }
    }
}

template <class Value>
void FastNumberWriter::putBlock(std::span<const Value> values, char code) {
    if (values.empty()) {
        return;
    }
    if (numbers_ == SeriesNumbers::literal) {
        putLiterals(values, code);
    } else if constexpr (std::is_same_v<Value, std::int8_t>) {
        putSmall(values, code);
    } else {
        putShared(values, code);
    }
}

// One element of an array of mixed types.
void FastNumberWriter::putNumber(const Number& number) {
    if (number.code == 'd') {
        putBlock(std::span<const double>(&number.real, 1), 'd');
    } else if (number.code == 'f') {
        const float value = narrowed(number.real);
        putBlock(std::span<const float>(&value, 1), 'f');
    } else if (number.isNarrow()) {
        const auto value = static_cast<std::int32_t>(number.integer);
        putBlock(std::span<const std::int32_t>(&value, 1), number.code);
    } else if (Element& element = wide_[{number.code, number.integer}]; element != 0) {
        stream_.position_ = repeat(stream_.room(prefixRoom), element, 1);
    } else {
        const Element known = elementFor(stream_.nextObject_);
        putNumberPrefix(number.code);
        if (number.code == 'I' || number.code == 'L' || number.code == 'Q') {
            stream_.putUnsigned(std::bit_cast<std::uint64_t>(number.integer));
        } else {
            stream_.putSigned(number.integer);
        }
        stream_.endObject();
        element = numbers_ == SeriesNumbers::shared ? known : 0;
    }
}

template <class Value>
void FastNumberWriter::putShared(std::span<const Value> values, char code) {
    SharedNumbers& known = std::is_same_v<Value, double> ? reals_ : narrow_;
    for (std::size_t index = 0; index < values.size(); ++index) {
        char* at = stream_.room((values.size() - index) * sizeof(Element));
        Element element = 1;
        for (; index < values.size(); ++index) {
            element = known.find(keyOf(values[index], code));
            if (element == 0) {
                break;
            }
            qToLittleEndian(element, at);
            at += sizeOf(element);
        }
        stream_.position_ = at;
        if (element == 0) {
            element = elementFor(putLiteral(values[index], code));
            if (element != 0) {
                known.store(keyOf(values[index], code), element);
            }
        }
    }
}

void FastNumberWriter::putSmall(std::span<const std::int8_t> values, char code) {
    if (smallCode_ != code) {
        smallCode_ = code;
        small_.fill(0);
    }
    for (std::size_t index = 0; index < values.size();) {
        const std::int8_t value = values[index];
        Element& element = small_[static_cast<std::uint8_t>(value)];
        if (element == 0) {
            const std::uint64_t key = keyOf(std::int32_t{value}, code);
            element = narrow_.find(key);
            if (element == 0) {
                element = elementFor(putLiteral(std::int32_t{value}, code));
                ++index;
                if (element != 0) {
                    narrow_.store(key, element);
                }
            }
            continue;
        }
        std::size_t end = index + 1;
        while (end < values.size() && values[end] == value) {
            ++end;
        }
        stream_.position_ = repeat(stream_.room((end - index + 1) * sizeof(Element)), element, end - index);
        index = end;
    }
}

// The number of the object written.
template <class Value>
std::size_t FastNumberWriter::putLiteral(Value value, char code) {
    const std::size_t object = stream_.nextObject_;
    putNumberPrefix(code);
    stream_.position_ = storeValue(stream_.room(prefixRoom), value, code);
    stream_.endObject();
    return object;
}

// What precedes the value is the same for all of them, once the first one has been written.
template <class Value>
void FastNumberWriter::putLiterals(std::span<const Value> values, char code) {
    const std::string& prefix = numberPrefixes_[static_cast<unsigned char>(code)];
    std::size_t index = 0;
    for (; index < values.size() && (prefix.empty() || prefix.size() > prefixBlock); ++index) {
        putLiteral(values[index], code);
    }
    std::array<char, prefixBlock> block{};
    prefix.copy(block.data(), block.size());
    const std::size_t size = prefix.size();
    constexpr std::size_t longestValue = 10;  // with the end of the object
    char* at = stream_.room((values.size() - index) * (size + longestValue) + prefixBlock);
    stream_.nextObject_ += values.size() - index;
    for (; index < values.size(); ++index) {
        std::memcpy(at, block.data(), block.size());
        at = storeValue(at + size, values[index], code);
        *at++ = static_cast<char>(streamtags::end);
    }
    stream_.position_ = at;
}

// Type, class and type code of a number. From the second one of a type on they are references only, always the same.
void FastNumberWriter::putNumberPrefix(char code) {
    std::string& known = numberPrefixes_[static_cast<unsigned char>(code)];
    const std::string_view codeText(&code, 1);
    if (known.empty()) {
        stream_.beginGroup("@");
        stream_.beginLiteral(TypedStreamWriter::numberClass);
        stream_.beginGroup("*");
        stream_.putCString(codeText);
        stream_.beginGroup(codeText);

        // Written a second time for its bytes, which are then taken back.
        const std::ptrdiff_t start = stream_.position_ - stream_.buffer_.constData();
        stream_.beginGroup("@");
        stream_.put(streamtags::literal);
        stream_.putClass(TypedStreamWriter::numberClass);
        stream_.beginGroup("*");
        stream_.putCString(codeText);
        stream_.beginGroup(codeText);
        const std::ptrdiff_t size = stream_.position_ - stream_.buffer_.constData() - start;
        stream_.position_ = stream_.buffer_.data() + start;
        known.assign(stream_.position_, static_cast<std::size_t>(size));
        return;
    }
    stream_.put(known);
    ++stream_.nextObject_;
}

// The element that refers to an object; 0 when it takes more than seven bytes.
Element FastNumberWriter::elementFor(std::size_t object) const {
    const TypedStreamWriter::Reference& type = stream_.codeReferences_['@'];
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
