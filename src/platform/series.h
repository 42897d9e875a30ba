#pragma once

#include <QSharedData>
#include <QSharedDataPointer>
#include <QtGlobal>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <variant>
#include <vector>

namespace tavrel {

/// A number of an archived array: its value and the type code it travels under ('i', 'd', 'f', 'c', 'q' …), so that it
/// is written again as it was read.
struct Number {
    char code = 'i';
    std::int64_t integer = 0;  ///< the value when the code is an integer type; the bits of the value for 'Q' and 'L'
    double real = 0.0;         ///< the value when the code is 'd' or 'f'

    static Number ofInteger(std::int64_t value, char code = 'i') { return {code, value, 0.0}; }
    static Number ofReal(double value, char code = 'd') { return {code, 0, value}; }

    bool isReal() const { return code == 'd' || code == 'f'; }
    double toDouble() const;
    /// Truncated toward zero, saturating at the 32-bit bounds; 0 for not-a-number.
    qint32 toInt() const;
};

class SeriesPool;

/// One series of a profile: an array of numbers, or nothing (isNull). Holds every number with its type code and bits,
/// in a form that costs a byte for a flag and eight for a depth. Copies share their numbers until one of them changes.
class Series {
public:
    Series() = default;  // null
    static Series ofReals(const std::vector<double>& values);
    static Series ofIntegers(const std::vector<qint32>& values);
    static Series empty();  ///< an array without elements, which is not null

    bool isNull() const { return !data_; }
    std::size_t size() const;
    Number at(std::size_t index) const;
    double real(std::size_t index) const { return at(index).toDouble(); }
    qint32 integer(std::size_t index) const { return at(index).toInt(); }

    /// Appending makes a null series an array.
    void append(Number number);
    void appendReal(double value) { append(Number::ofReal(value)); }
    void appendInteger(qint32 value) { append(Number::ofInteger(value)); }
    /// Many at once: doubles of type 'd', singles of type 'f', or integers of type 'i' that fit a byte.
    void append(std::span<const double> values);
    void append(std::span<const float> values);
    void append(std::span<const std::int8_t> values);
    void clear();  ///< becomes an array without elements

    /// All numbers in one block when every one is of type 'd', or an 'i' that fits a byte; else nothing.
    std::span<const double> realBlock() const;
    std::span<const std::int8_t> smallBlock() const;

    /// Same numbers, type codes and bits (not-a-number included).
    friend bool operator==(const Series& left, const Series& right);

private:
    friend class SeriesPool;

    // Numbers in memory that many series share, as SeriesPool hands it out.
    template <class Value>
    struct Pooled {
        std::shared_ptr<const std::byte[]> memory;
        std::span<const Value> numbers;
    };
    struct Mixed {
        std::vector<char> codes;
        std::vector<std::uint64_t> bits;  // of the double, or of the integer
        bool operator==(const Mixed&) const = default;
    };
    // The contents decide the form: bytes while every number is an 'i' that fits one (so also without numbers), doubles
    // while every one is a 'd', else the mixed form.
    struct Data : QSharedData {
        std::variant<std::vector<std::int8_t>, std::vector<double>, Mixed, Pooled<std::int8_t>, Pooled<double>> numbers;
    };

    template <class Value>
    std::span<const Value> block() const;
    template <class Value>
    std::vector<Value>* owned();
    template <class Value>
    void appendBlock(std::span<const Value> values, char code);
    Data& detached();
    Mixed& mixed();

    QSharedDataPointer<Data> data_;
};

/// Memory for the series that are made together when a file is read. They keep it as long as one of them lives.
class SeriesPool {
public:
    /// Room for so many doubles or bytes, until the next call.
    template <class Value>
    Value* room(std::size_t count) {
        return reinterpret_cast<Value*>(roomFor(count * sizeof(Value)));
    }
    /// The series of the first numbers in the room that was given out last.
    template <class Value>
    Series series(const Value* room, std::size_t count);

private:
    std::byte* roomFor(std::size_t bytes);

    std::shared_ptr<const std::byte[]> memory_;
    std::byte* next_ = nullptr;
    std::size_t left_ = 0;
    std::size_t blockBytes_ = 0;
};

}  // namespace tavrel
