#include "book/booktable.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <numeric>

namespace tavrel {

namespace {

// Keys are unsigned numbers in the order of the values: negative numbers have their bits turned round, positive ones
// their sign bit set. Not-a-number comes first, and so does nothing.

std::uint32_t sortKey(qint32 value) {
    return std::bit_cast<std::uint32_t>(value) ^ 0x8000'0000U;
}

template <class Bits, class Real>
Bits orderedBits(Real value) {
    if (std::isnan(value)) {
        return 0;
    }
    constexpr Bits sign = Bits(1) << (sizeof(Bits) * 8 - 1);
    const Bits bits = std::bit_cast<Bits>(value + Real(0));  // both zeros are the same
    return bits & sign ? ~bits : bits | sign;
}

std::uint32_t sortKey(float value) {
    return orderedBits<std::uint32_t>(value);
}

std::uint64_t sortKey(const Date& date) {
    return date.isNull() ? 0 : orderedBits<std::uint64_t>(date.secondsSince2001());
}

QStringView sortKey(const QString& text) {
    return text;
}

/// Key and row in one number: comparing these keeps equal records in their order.
std::vector<int> order(const std::vector<std::uint32_t>& keys, bool ascending) {
    std::vector<std::uint64_t> packed(keys.size());
    for (std::size_t row = 0; row < keys.size(); ++row) {
        packed[row] = std::uint64_t(ascending ? keys[row] : ~keys[row]) << 32 | row;
    }
    std::sort(packed.begin(), packed.end());
    std::vector<int> rows(keys.size());
    std::transform(packed.begin(), packed.end(), rows.begin(),
                   [](std::uint64_t each) { return static_cast<int>(each & 0xFFFF'FFFFU); });
    return rows;
}

template <class Key>
std::vector<int> order(const std::vector<Key>& keys, bool ascending) {
    struct Placed {
        Key key;
        int row;
    };
    std::vector<Placed> placed(keys.size());
    for (std::size_t row = 0; row < keys.size(); ++row) {
        placed[row] = {keys[row], static_cast<int>(row)};
    }
    std::sort(placed.begin(), placed.end(), [ascending](const Placed& left, const Placed& right) {
        if (left.key == right.key) {
            return left.row < right.row;
        }
        return ascending ? left.key < right.key : right.key < left.key;
    });
    std::vector<int> rows(keys.size());
    std::transform(placed.begin(), placed.end(), rows.begin(), [](const Placed& each) { return each.row; });
    return rows;
}

}  // namespace

std::vector<int> sortedOrder(const RecordList& records, const Field& field, bool ascending) {
    std::vector<int> rows(records.size());
    std::iota(rows.begin(), rows.end(), 0);
    if (field.isNull() || records.empty()) {
        return rows;
    }
    field.visit(*records.front(), [&](const auto& first) {
        if constexpr (requires { sortKey(first); }) {
            std::vector<decltype(sortKey(first))> keys;
            keys.reserve(records.size());
            for (const auto& record : records) {
                keys.push_back(sortKey(*field.get<std::decay_t<decltype(first)>>(*record)));
            }
            rows = order(keys, ascending);
        }
    });
    return rows;
}

}  // namespace tavrel
