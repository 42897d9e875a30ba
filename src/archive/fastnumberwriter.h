#pragma once

#include "archive/numberwriter.h"
#include "archive/sharednumbers.h"
#include "archive/typedstreamwriter.h"

#include <array>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <utility>

namespace tavrel {

/// Writes whole blocks of numbers of one type at once. Of numbers that hardly repeat it shares only the first million
/// or so.
class FastNumberWriter final : public NumberWriter {
public:
    FastNumberWriter(TypedStreamWriter& stream, SeriesNumbers numbers) : stream_(stream), numbers_(numbers) {}

    void write(const Series& series) override;

private:
    template <class Value>
    void putBlock(std::span<const Value> values, char code);
    template <class Value>
    void putShared(std::span<const Value> values, char code);
    void putSmall(std::span<const std::int8_t> values, char code);
    template <class Value>
    void putLiterals(std::span<const Value> values, char code);
    template <class Value>
    std::size_t putLiteral(Value value, char code);
    void putNumber(const Number& number);
    void putNumberPrefix(char code);
    SharedNumbers::Element elementFor(std::size_t object) const;

    TypedStreamWriter& stream_;
    const SeriesNumbers numbers_;
    SharedNumbers reals_;   // of type 'd', by their bits
    SharedNumbers narrow_;  // of other types, by their 32 bits and the type above them
    std::map<std::pair<char, std::int64_t>, SharedNumbers::Element> wide_;  // integers beyond 32 bits
    std::array<SharedNumbers::Element, 256> small_{};  // those of narrow_ that fit a byte, by that byte, of one type
    char smallCode_ = 'i';
    std::array<std::string, 128> numberPrefixes_;  // what precedes the value of a number literal, by type code
};

}  // namespace tavrel
