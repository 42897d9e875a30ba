#pragma once

#include "archive/typedstreamscanner.h"
#include "records/series.h"

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
    explicit NumberRun(TypedStreamScanner& scanner);

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
        std::size_t size = 0;
        char code = 0;

        bool stands(const unsigned char* at) const;
    };

    // Numbers by the reference to them, one byte or the two bytes after the tag of a short integer.
    struct Known {
        explicit Known(std::uint64_t unknownNumber) : unknown(unknownNumber) { byByte.fill(unknown); }

        void keep(std::int64_t reference, std::uint64_t number);

        std::uint64_t unknown;
        std::array<std::uint64_t, 256> byByte;
        std::vector<std::uint64_t> byShort;  // of all short references, once a stream is large enough to have them
    };

    struct Reference {
        std::int64_t value = 0;
        std::size_t size = 0;  // of the element, in bytes; 0: none
    };

    std::size_t readReferences(char code, std::size_t limit, Series& series);
    std::size_t readLiterals(const Prefix& prefix, std::size_t limit, Series& series);
    template <class Value>
    std::size_t references(char code, std::size_t limit, Series& series);
    std::size_t smallReferences(char code, std::size_t limit, Series& series);
    template <class Value>
    std::size_t realLiterals(const Prefix& prefix, std::size_t limit, Series& series);
    std::size_t integerLiterals(const Prefix& prefix, std::size_t limit, Series& series);
    template <class Value>
    std::size_t append(const Value* room, std::size_t count, std::size_t limit, char code, Series& series);

    bool findElementType();
    std::uint64_t shortElement(const Known& known) const;
    Reference referenceAt(const unsigned char* at) const;
    ObjectEntry numberAt(const unsigned char* at) const;
    bool resolve(const unsigned char* at, char code, std::uint64_t& number, std::size_t& size);

    TypedStreamScanner& scanner_;
    SeriesPool pool_;
    unsigned char elementType_ = 0;  // the byte that refers to the type "@"
    Known reals_;                    // the bits of those of type 'd'
    Known narrow_;                   // those of other types, as narrowNumber() makes them
    std::vector<Prefix> prefixes_;
};

}  // namespace tavrel
