#include "logbook/divesort.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace tavrel {

namespace {

double sortKey(qint32 value) {
    return value;
}

double sortKey(double value) {
    return std::isnan(value) ? -std::numeric_limits<double>::infinity() : value;
}

double sortKey(const Date& date) {
    return date.isNull() ? -std::numeric_limits<double>::infinity() : sortKey(date.secondsSince2001());
}

QStringView sortKey(const QString& text) {
    return text;
}

template <class Key>
void order(std::vector<std::pair<Key, int>>& keys, bool ascending) {
    std::sort(keys.begin(), keys.end(), [ascending](const auto& left, const auto& right) {
        if (left.first == right.first) {
            return left.second < right.second;
        }
        return ascending ? left.first < right.first : right.first < left.first;
    });
}

}  // namespace

std::vector<int> sortedOrder(const std::vector<DivePointer>& dives, const QString& field, bool ascending) {
    std::vector<int> rows(dives.size());
    std::iota(rows.begin(), rows.end(), 0);
    const auto* item = Plongee::layout().find(field.toStdString());
    if (!item) {
        return rows;
    }
    const auto sortByMember = [&](auto member) {
        if constexpr (requires(const Plongee& dive) { sortKey(dive.*member); }) {
            using Key = decltype(sortKey((*dives.front()).*member));
            std::vector<std::pair<Key, int>> keys;
            keys.reserve(dives.size());
            for (std::size_t row = 0; row < dives.size(); ++row) {
                keys.emplace_back(sortKey((*dives[row]).*member), static_cast<int>(row));
            }
            order(keys, ascending);
            std::transform(keys.begin(), keys.end(), rows.begin(), [](const auto& key) { return key.second; });
        }
    };
    std::visit(sortByMember, item->member);
    return rows;
}

}  // namespace tavrel
