#pragma once

#include <QtGlobal>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tavrel {

/// A number of an archived array: its value and the type code it travels under ('i', 'd', 'f', 'c', 'q' …), so that it is
/// written again as it was read.
struct Number {
    char code = 'i';
    std::int64_t integer = 0;  ///< the value when the code is an integer type
    double real = 0.0;         ///< the value when the code is 'd' or 'f'

    static Number ofInteger(std::int64_t value, char code = 'i') { return {code, value, 0.0}; }
    static Number ofReal(double value, char code = 'd') { return {code, 0, value}; }

    bool isReal() const { return code == 'd' || code == 'f'; }
    double toDouble() const { return isReal() ? real : static_cast<double>(integer); }
    /// Truncated toward zero, saturating at the 32-bit bounds; 0 for not-a-number.
    qint32 toInt() const;
};

/// One series of a profile: an array of numbers, or nothing (isNull). Holds every number with its type code and bits, in
/// a form that costs a byte for a flag and eight for a depth.
class Series {
public:
    Series() = default;  // null
    static Series ofReals(const std::vector<double>& values);
    static Series ofIntegers(const std::vector<qint32>& values);
    static Series empty();  ///< an array without elements, which is not null

    bool isNull() const;
    std::size_t size() const;
    Number at(std::size_t index) const;
    double real(std::size_t index) const { return at(index).toDouble(); }
    qint32 integer(std::size_t index) const { return at(index).toInt(); }

    /// Appending makes a null series an array.
    void append(Number number);
    void appendReal(double value) { append(Number::ofReal(value)); }
    void appendInteger(qint32 value) { append(Number::ofInteger(value)); }
    void clear();  ///< becomes an array without elements

    /// Same numbers, type codes and bits (not-a-number included).
    friend bool operator==(const Series& left, const Series& right);

private:
};

}  // namespace tavrel
