#include "records/series.h"

#include "base/largememory.h"
#include "records/floatbits.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

namespace tavrel {

namespace {

bool isUnsignedLong(char code) {
    return code == 'Q' || code == 'L';
}

template <class Value>
bool fits(std::int64_t value) {
    return value >= std::numeric_limits<Value>::min() && value <= std::numeric_limits<Value>::max();
}

std::uint64_t bitsOf(const Number& number) {
    return number.isReal() ? std::bit_cast<std::uint64_t>(number.real) : std::bit_cast<std::uint64_t>(number.integer);
}

template <class Value>
Number numberOf(Value value, char code) {
    if constexpr (std::is_same_v<Value, float>) {
        return Number::ofReal(widened(value), code);
    } else if constexpr (std::is_same_v<Value, double>) {
        return Number::ofReal(value, code);
    } else {
        return Number::ofInteger(value, code);
    }
}

}  // namespace

bool Number::isNarrow() const {
    return !isReal() && fits<std::int32_t>(integer) && (integer >= 0 || !isUnsignedLong(code));
}

double Number::toDouble() const {
    if (isReal()) {
        return real;
    }
    return isUnsignedLong(code) ? static_cast<double>(std::bit_cast<std::uint64_t>(integer))
                                : static_cast<double>(integer);
}

qint32 Number::toInt() const {
    constexpr qint32 low = std::numeric_limits<qint32>::min();
    constexpr qint32 high = std::numeric_limits<qint32>::max();
    const double value = toDouble();
    if (std::isnan(value)) {
        return 0;
    }
    if (value <= low) {
        return low;
    }
    return value >= high ? high : static_cast<qint32>(value);
}

Series Series::ofReals(const std::vector<double>& values) {
    Series series = empty();
    series.append(std::span(values));
    return series;
}

Series Series::ofIntegers(const std::vector<qint32>& values) {
    Series series = empty();
    for (const qint32 value : values) {
        series.appendInteger(value);
    }
    return series;
}

Series Series::empty() {
    Series series;
    series.data_ = new Data;
    return series;
}

template <class Value>
std::span<const Value> Series::block() const {
    if (!data_) {
        return {};
    }
    if (const auto* pooled = std::get_if<Pooled<Value>>(&data_->numbers)) {
        return pooled->numbers;
    }
    const auto* numbers = std::get_if<std::vector<Value>>(&data_->numbers);
    return numbers ? std::span<const Value>(*numbers) : std::span<const Value>();
}

template std::span<const double> Series::block() const;
template std::span<const float> Series::block() const;
template std::span<const std::int32_t> Series::block() const;
template std::span<const std::int8_t> Series::block() const;

std::size_t Series::size() const {
    return data_ ? std::visit([](const auto& numbers) { return numbers.size(); }, data_->numbers) : 0;
}

Number Series::at(std::size_t index) const {
    Q_ASSERT(index < size());
    if (const auto small = block<std::int8_t>(); !small.empty()) {
        return numberOf(small[index], code());
    }
    if (const auto reals = block<double>(); !reals.empty()) {
        return numberOf(reals[index], code());
    }
    if (const auto singles = block<float>(); !singles.empty()) {
        return numberOf(singles[index], code());
    }
    if (const auto integers = block<std::int32_t>(); !integers.empty()) {
        return numberOf(integers[index], code());
    }
    const Mixed& mixed = std::get<Mixed>(data_->numbers);
    Number number{mixed.codes[index], 0, 0.0};
    if (number.isReal()) {
        number.real = std::bit_cast<double>(mixed.bits[index]);
    } else {
        number.integer = std::bit_cast<std::int64_t>(mixed.bits[index]);
    }
    return number;
}

void Series::append(Number number) {
    if (number.code == 'd') {
        append(std::span<const double>(&number.real, 1));
    } else if (number.code == 'f') {
        const float value = narrowed(number.real);
        append(std::span<const float>(&value, 1));
    } else if (number.isNarrow()) {
        const auto value = static_cast<std::int32_t>(number.integer);
        if (const auto small = static_cast<std::int8_t>(value);
            small == value && (size() == 0 || !block<std::int8_t>().empty()) &&
            appendBlock(std::span<const std::int8_t>(&small, 1), number.code)) {
            return;
        }
        append(std::span<const std::int32_t>(&value, 1), number.code);
    } else {
        Mixed& all = mixed();
        all.codes.push_back(number.code);
        all.bits.push_back(bitsOf(number));
    }
}

// Appends to a block of that form, or makes an empty series one; false when the numbers are of another form.
template <class Value>
bool Series::appendBlock(std::span<const Value> values, char code) {
    Data& data = detached();
    if (values.empty()) {
        return true;
    }
    if (size() == 0) {
        data.code = code;
        data.numbers.emplace<std::vector<Value>>(values.begin(), values.end());
        return true;
    }
    const auto present = block<Value>();
    if (present.empty() || data.code != code) {
        return false;
    }
    if (std::holds_alternative<Pooled<Value>>(data.numbers)) {
        std::vector<Value> copied(present.begin(), present.end());
        data.numbers = std::move(copied);
    }
    auto& numbers = std::get<std::vector<Value>>(data.numbers);
    numbers.insert(numbers.end(), values.begin(), values.end());
    return true;
}

void Series::append(std::span<const double> values) {
    if (!appendBlock(values, 'd')) {
        Mixed& all = mixed();
        for (const double value : values) {
            all.codes.push_back('d');
            all.bits.push_back(std::bit_cast<std::uint64_t>(value));
        }
    }
}

void Series::append(std::span<const float> values) {
    if (!appendBlock(values, 'f')) {
        Mixed& all = mixed();
        for (const float value : values) {
            all.codes.push_back('f');
            all.bits.push_back(std::bit_cast<std::uint64_t>(widened(value)));
        }
    }
}

void Series::append(std::span<const std::int8_t> values, char code) {
    if (!appendBlock(values, code)) {
        const std::vector<std::int32_t> wider(values.begin(), values.end());
        append(wider, code);
    }
}

void Series::append(std::span<const std::int32_t> values, char code) {
    const bool areSmall = std::ranges::all_of(values, fits<std::int8_t>);
    if (const auto present = block<std::int8_t>();
        areSmall && (size() == 0 || (!present.empty() && this->code() == code))) {
        const std::vector<std::int8_t> narrower(values.begin(), values.end());
        appendBlock<std::int8_t>(narrower, code);
        return;
    }
    if (const auto present = block<std::int8_t>(); !present.empty() && this->code() == code) {
        const std::vector<std::int32_t> wider(present.begin(), present.end());
        clear();
        appendBlock<std::int32_t>(wider, code);
    }
    if (!appendBlock(values, code)) {
        Mixed& all = mixed();
        for (const std::int32_t value : values) {
            all.codes.push_back(code);
            all.bits.push_back(bitsOf(Number::ofInteger(value)));
        }
    }
}

void Series::clear() {
    data_ = new Data;
}

bool operator==(const Series& left, const Series& right) {
    if (left.isNull() || right.isNull() || left.size() != right.size()) {
        return left.isNull() && right.isNull();
    }
    if (left.size() == 0) {
        return true;
    }
    const auto* one = std::get_if<Series::Mixed>(&left.data_->numbers);
    const auto* other = std::get_if<Series::Mixed>(&right.data_->numbers);
    if (one || other) {
        return one && other && *one == *other;
    }
    const auto sameBlock = [&]<class Value>(Value) {
        const auto numbers = left.block<Value>();
        const auto others = right.block<Value>();
        return numbers.size() == others.size() &&
               (numbers.empty() || std::memcmp(numbers.data(), others.data(), numbers.size_bytes()) == 0);
    };
    return left.code() == right.code() && sameBlock(std::int8_t()) && sameBlock(std::int32_t()) && sameBlock(float()) &&
           sameBlock(double());
}

Series::Data& Series::detached() {
    if (!data_) {
        data_ = new Data;
    }
    return *data_;
}

Series::Mixed& Series::mixed() {
    auto& numbers = detached().numbers;
    if (!std::holds_alternative<Mixed>(numbers)) {
        Mixed all;
        const std::size_t count = size();
        for (std::size_t index = 0; index < count; ++index) {
            const Number number = at(index);
            all.codes.push_back(number.code);
            all.bits.push_back(bitsOf(number));
        }
        numbers = std::move(all);
    }
    return std::get<Mixed>(numbers);
}

std::byte* SeriesPool::roomFor(std::size_t bytes) {
    if (left_ < bytes) {
        constexpr std::size_t first = std::size_t{1} << 15;
        constexpr std::size_t last = std::size_t{1} << 24;
        blockBytes_ = std::clamp(blockBytes_ * 2, first, last);
        left_ = std::max(bytes, blockBytes_);
        auto memory = allocateLarge(left_);
        next_ = memory.get();
        memory_ = std::move(memory);
    }
    return next_;
}

template <class Value>
Series SeriesPool::series(const Value* room, std::size_t count, char code) {
    Series series = Series::empty();
    if (count > 0) {
        series.data_->code = code;
        series.data_->numbers = Series::Pooled<Value>{memory_, {room, count}};
        // Whole doubles, so that the next ones are aligned.
        const std::size_t bytes = (count * sizeof(Value) + sizeof(double) - 1) / sizeof(double) * sizeof(double);
        next_ += std::min(bytes, left_);
        left_ -= std::min(bytes, left_);
    }
    return series;
}

template Series SeriesPool::series(const double*, std::size_t, char);
template Series SeriesPool::series(const float*, std::size_t, char);
template Series SeriesPool::series(const std::int32_t*, std::size_t, char);
template Series SeriesPool::series(const std::int8_t*, std::size_t, char);

}  // namespace tavrel
