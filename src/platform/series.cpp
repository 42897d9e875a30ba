#include "platform/series.h"

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

std::size_t Series::size() const {
    if (!data_) {
        return 0;
    }
    const auto& numbers = data_->numbers;
    if (const auto* small = std::get_if<std::vector<std::int8_t>>(&numbers)) {
        return small->size();
    }
    if (const auto* reals = std::get_if<std::vector<double>>(&numbers)) {
        return reals->size();
    }
    return std::get<Mixed>(numbers).codes.size();
}

Number Series::at(std::size_t index) const {
    Q_ASSERT(index < size());
    const auto& numbers = data_->numbers;
    if (const auto* small = std::get_if<std::vector<std::int8_t>>(&numbers)) {
        return Number::ofInteger((*small)[index]);
    }
    if (const auto* reals = std::get_if<std::vector<double>>(&numbers)) {
        return Number::ofReal((*reals)[index]);
    }
    const Mixed& mixed = std::get<Mixed>(numbers);
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

void Series::append(std::span<const double> values) {
    auto& numbers = detached().numbers;
    if (const auto* small = std::get_if<std::vector<std::int8_t>>(&numbers);
        small && small->empty() && !values.empty()) {
        numbers = std::vector<double>(values.begin(), values.end());
    } else if (auto* reals = std::get_if<std::vector<double>>(&numbers)) {
        reals->insert(reals->end(), values.begin(), values.end());
    } else if (!values.empty()) {
        Mixed& all = mixed();
        all.codes.insert(all.codes.end(), values.size(), 'd');
        for (const double value : values) {
            all.bits.push_back(std::bit_cast<std::uint64_t>(value));
        }
    }
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

void Series::append(std::span<const std::int8_t> values) {
    auto& numbers = detached().numbers;
    if (auto* small = std::get_if<std::vector<std::int8_t>>(&numbers)) {
        small->insert(small->end(), values.begin(), values.end());
    } else if (!values.empty()) {
        Mixed& all = mixed();
        all.codes.insert(all.codes.end(), values.size(), 'i');
        for (const std::int8_t value : values) {
            all.bits.push_back(std::bit_cast<std::uint64_t>(std::int64_t{value}));
        }
    }
}

void Series::clear() {
    data_ = new Data;
}

std::span<const double> Series::realBlock() const {
    const auto* reals = data_ ? std::get_if<std::vector<double>>(&data_->numbers) : nullptr;
    return reals ? std::span<const double>(*reals) : std::span<const double>();
}

std::span<const std::int8_t> Series::smallBlock() const {
    const auto* small = data_ ? std::get_if<std::vector<std::int8_t>>(&data_->numbers) : nullptr;
    return small ? std::span<const std::int8_t>(*small) : std::span<const std::int8_t>();
}

bool operator==(const Series& left, const Series& right) {
    if (left.isNull() || right.isNull()) {
        return left.isNull() && right.isNull();
    }
    const auto& one = left.data_->numbers;
    const auto& other = right.data_->numbers;
    if (one.index() != other.index()) {
        return false;
    }
    if (const auto* reals = std::get_if<std::vector<double>>(&one)) {
        const auto& otherReals = std::get<std::vector<double>>(other);
        return reals->size() == otherReals.size() &&
               std::memcmp(reals->data(), otherReals.data(), reals->size() * sizeof(double)) == 0;
    }
    return one == other;
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

}  // namespace tavrel
