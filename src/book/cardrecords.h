#pragma once

#include "records/recordlayout.h"

#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

namespace tavrel {

/// The records that a card is made of, in their order, with the list that they stand in.
class CardRecords {
public:
    /// All of a list. Where a card is wanted of a list, it is wanted of all of it.
    // NOLINTNEXTLINE(google-explicit-constructor)
    CardRecords(const RecordList& list) : list_(list), chosen_(list), rows_(list.size()) {
        std::iota(rows_.begin(), rows_.end(), 0);
    }
    /// Those at some rows of a list.
    CardRecords(const RecordList& list, std::vector<int> rows) : list_(list), rows_(std::move(rows)) {
        for (const int row : rows_) {
            chosen_.push_back(list[static_cast<std::size_t>(row)]);
        }
    }

    const RecordList& list() const { return list_; }
    const RecordList& chosen() const { return chosen_; }
    /// The row in the list of one of the chosen records.
    int row(std::size_t index) const { return rows_[index]; }

    std::size_t size() const { return chosen_.size(); }
    const RecordPointer& operator[](std::size_t index) const { return chosen_[index]; }
    auto begin() const { return chosen_.begin(); }
    auto end() const { return chosen_.end(); }

private:
    const RecordList& list_;
    RecordList chosen_;
    std::vector<int> rows_;
};

}  // namespace tavrel
