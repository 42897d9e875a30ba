#include "platform/series.h"

#include "platform/largememory.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>

namespace tavrel {

namespace {

bool isSmall(const Number& number) {
    return number.code == 'i' && number.integer >= std::numeric_limits<std::int8_t>::min() &&
           number.integer <= std::numeric_limits<std::int8_t>::max();
}

std::uint64_t bitsOf(const Number& number) {
    return number.isReal() ? std::bit_cast<std::uint64_t>(number.real) : std::bit_cast<std::uint64_t>(number.integer);
}

}  // namespace

double Number::toDouble() const {
    if (isReal()) {
        return real;
    }
    const bool isUnsigned = code == 'Q' || code == 'L';
    return isUnsigned ? static_cast<double>(std::bit_cast<std::uint64_t>(integer)) : static_cast<double>(integer);
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

// The numbers when they are of that form; those of another form are nothing.
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

std::span<const double> Series::realBlock() const {
    return block<double>();
}

std::span<const std::int8_t> Series::smallBlock() const {
    return block<std::int8_t>();
}

std::size_t Series::size() const {
    const Mixed* mixed = data_ ? std::get_if<Mixed>(&data_->numbers) : nullptr;
    return mixed ? mixed->codes.size() : realBlock().size() + smallBlock().size();
}

Number Series::at(std::size_t index) const {
    Q_ASSERT(index < size());
    if (const auto small = smallBlock(); !small.empty()) {
        return Number::ofInteger(small[index]);
    }
    if (const auto reals = realBlock(); !reals.empty()) {
        return Number::ofReal(reals[index]);
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
    if (isSmall(number)) {
        const auto value = static_cast<std::int8_t>(number.integer);
        append(std::span(&value, 1));
    } else if (number.code == 'd') {
        append(std::span<const double>(&number.real, 1));
    } else {
        Mixed& all = mixed();
        all.codes.push_back(number.code);
        all.bits.push_back(bitsOf(number));
    }
}

// The vector of that form, for changing it; null when the numbers are of another.
template <class Value>
std::vector<Value>* Series::owned() {
    auto& numbers = detached().numbers;
    if (const auto* pooled = std::get_if<Pooled<Value>>(&numbers)) {
        const auto copied = pooled->numbers;
        numbers = std::vector<Value>(copied.begin(), copied.end());
    } else if (size() == 0) {
        numbers.template emplace<std::vector<Value>>();
    }
    return std::get_if<std::vector<Value>>(&numbers);
}

template <class Value>
void Series::appendBlock(std::span<const Value> values, char code) {
    if (values.empty()) {
        detached();
        return;
    }
    if (auto* numbers = owned<Value>()) {
        numbers->insert(numbers->end(), values.begin(), values.end());
        return;
    }
    Mixed& all = mixed();
    all.codes.insert(all.codes.end(), values.size(), code);
    for (const Value value : values) {
        all.bits.push_back(bitsOf(code == 'd' ? Number::ofReal(static_cast<double>(value))
                                              : Number::ofInteger(static_cast<std::int64_t>(value))));
    }
}

void Series::append(std::span<const double> values) {
    appendBlock(values, 'd');
}

void Series::append(std::span<const std::int8_t> values) {
    appendBlock(values, 'i');
}

void Series::append(std::span<const float> values) {
    if (values.empty()) {
        detached();
        return;
    }
    Mixed& all = mixed();
    all.codes.insert(all.codes.end(), values.size(), 'f');
    all.bits.reserve(all.bits.size() + values.size());
    for (const float value : values) {
        all.bits.push_back(std::bit_cast<std::uint64_t>(static_cast<double>(value)));
    }
}

void Series::clear() {
    data_ = new Data;
}

bool operator==(const Series& left, const Series& right) {
    if (left.isNull() || right.isNull()) {
        return left.isNull() && right.isNull();
    }
    if (const auto reals = left.realBlock(); !reals.empty()) {
        return reals.size() == right.realBlock().size() &&
               std::memcmp(reals.data(), right.realBlock().data(), reals.size_bytes()) == 0;
    }
    if (const auto small = left.smallBlock(); !small.empty()) {
        return std::ranges::equal(small, right.smallBlock());
    }
    const auto* one = std::get_if<Series::Mixed>(&left.data_->numbers);
    const auto* other = std::get_if<Series::Mixed>(&right.data_->numbers);
    return one && other ? *one == *other : left.size() == 0 && right.size() == 0;
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
        all.codes.reserve(count + 1);
        all.bits.reserve(count + 1);
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
Series SeriesPool::series(const Value* room, std::size_t count) {
    Series series = Series::empty();
    if (count > 0) {
        series.data_->numbers = Series::Pooled<Value>{memory_, {room, count}};
        // Whole doubles, so that the next ones are aligned.
        const std::size_t bytes = (count * sizeof(Value) + sizeof(double) - 1) / sizeof(double) * sizeof(double);
        next_ += std::min(bytes, left_);
        left_ -= std::min(bytes, left_);
    }
    return series;
}

template Series SeriesPool::series(const double*, std::size_t);
template Series SeriesPool::series(const std::int8_t*, std::size_t);

}  // namespace tavrel
