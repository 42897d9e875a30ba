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
    /// Whether it is an integer that 32 bits hold.
    bool isNarrow() const;
    double toDouble() const;
    /// Truncated toward zero, saturating at the 32-bit bounds; 0 for not-a-number.
    qint32 toInt() const;
};

class SeriesPool;

/// One series of a profile: an array of numbers, or nothing (isNull). Holds every number with its type code and bits.
/// While all are of one type a flag costs one byte, an integer or a single-precision number four and a double eight.
/// Copies share their numbers until one of them changes.
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
    /// Many at once: doubles of type 'd', singles of type 'f', or integers of one of the integer types, which must hold
    /// them.
    void append(std::span<const double> values);
    void append(std::span<const float> values);
    void append(std::span<const std::int32_t> values, char code = 'i');
    void append(std::span<const std::int8_t> values, char code = 'i');
    void clear();  ///< becomes an array without elements

    /// All numbers in one block: of Value double or float when every one is of type 'd' or 'f', of std::int8_t or
    /// std::int32_t when every one is of the integer type code() and they fit; else nothing. Only one of the blocks
    /// holds numbers, the smallest that can.
    template <class Value>
    std::span<const Value> block() const;
    /// The type code of the numbers when they stand in a block.
    char code() const { return data_ ? data_->code : 'i'; }
    /// Whether no block can hold them, because they differ in type or are too large.
    bool isMixed() const { return data_ && std::holds_alternative<Mixed>(data_->numbers); }

    /// Names the numbers where several series share them: the same for all of these. Null where none does.
    const void* sharedNumbers() const { return data_ && data_->ref.loadRelaxed() > 1 ? data_.constData() : nullptr; }

    /// Same numbers, type codes and bits (not-a-number included).
    friend bool operator==(const Series& left, const Series& right);

private:
    friend class SeriesPool;

    // Numbers in memory that many series share, as SeriesPool hands it out.
    template <class Value>
    struct Pooled {
        std::shared_ptr<const std::byte[]> memory;
        std::span<const Value> numbers;
        std::size_t size() const { return numbers.size(); }
    };
    struct Mixed {
        std::vector<char> codes;
        std::vector<std::uint64_t> bits;  // of the double, or of the integer
        std::size_t size() const { return codes.size(); }
        bool operator==(const Mixed&) const = default;
    };
    struct Data : QSharedData {
        char code = 'i';
        std::variant<std::vector<std::int8_t>, std::vector<std::int32_t>, std::vector<float>, std::vector<double>,
                     Mixed, Pooled<std::int8_t>, Pooled<std::int32_t>, Pooled<float>, Pooled<double>>
            numbers;
    };

    template <class Value>
    bool appendBlock(std::span<const Value> values, char code);
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
    /// The series of the first numbers in the room that was given out last, of that type code.
    template <class Value>
    Series series(const Value* room, std::size_t count, char code);

private:
    std::byte* roomFor(std::size_t bytes);

    std::shared_ptr<const std::byte[]> memory_;
    std::byte* next_ = nullptr;
    std::size_t left_ = 0;
    std::size_t blockBytes_ = 0;
};

}  // namespace tavrel
