#pragma once

#include "platform/series.h"
#include "platform/typedstreamscanner.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tavrel {

/// Reads the elements of an array of numbers in the forms that writers repeat by the thousand: references to numbers
/// that are known already, and number objects that differ from an earlier one in nothing but the value. Whatever else
/// stands in an array is left to the general way, one element at a time, from which this learns.
class NumberRun {
public:
    explicit NumberRun(TypedStreamScanner& scanner) : scanner_(scanner) {}

    /// Appends elements from the scanner's place on, at most so many; how many they were. 0 where the next element is
    /// of another form, which may be damaged: the general way says what is wrong with it.
    std::size_t read(std::size_t limit, Series& series);

    /// A number object was read that began at the offset, and it defined nothing but itself.
    void learn(std::size_t start, const ObjectEntry& entry);

private:
    // The bytes before the value of a number object: its type, class and type code. They are references only, so the
    // same bytes mean the same wherever they stand further on.
    struct Prefix {
        std::array<std::uint64_t, 2> words{};
        std::array<std::uint64_t, 2> masks{};
        std::size_t size = 0;  // 0: none yet

        bool stands(const unsigned char* at) const;
    };

    // Values by the reference to them, one byte or the two bytes after the tag of a short integer.
    template <class Value>
    struct Known {
        static constexpr std::size_t shortReferences = 65536;

        explicit Known(Value unknownValue) : unknown(unknownValue) { byByte.fill(unknown); }

        Value unknown;
        std::array<Value, 256> byByte;
        std::vector<Value> byShort;  // of all short references, once a stream is large enough to have them
    };

    struct Reference {
        std::int64_t value = 0;
        std::size_t size = 0;  // of the element, in bytes; 0: none
    };

    template <class Value>
    std::size_t append(std::size_t (NumberRun::*decode)(Value*, std::size_t), std::size_t limit, Series& series);
    std::size_t realReferences(double* block, std::size_t limit);
    std::size_t smallReferences(std::int8_t* block, std::size_t limit);
    std::size_t realLiterals(double* block, std::size_t limit);
    std::size_t smallLiterals(std::int8_t* block, std::size_t limit);

    bool findElementType();
    Reference referenceAt(const unsigned char* at) const;
    char codeAt(const unsigned char* at) const;
    bool resolve(const unsigned char* at, std::uint64_t& value, std::size_t& size);
    bool resolve(const unsigned char* at, std::uint16_t& value, std::size_t& size);
    template <class Value>
    static void keep(Known<Value>& known, std::int64_t reference, Value value);

    TypedStreamScanner& scanner_;
    SeriesPool pool_;
    unsigned char elementType_ = 0;                    // the byte that refers to the type "@"
    Known<std::uint64_t> reals_{0x7ff4000000000000U};  // bits; the unknown one is a not-a-number that is never kept
    Known<std::uint16_t> small_{0x100};                // bytes; the unknown one has a bit beyond them
    Prefix realPrefix_;
    Prefix smallPrefix_;
};

}  // namespace tavrel
