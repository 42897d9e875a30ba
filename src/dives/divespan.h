#pragma once

#include "dives/plongee.h"

#include <span>
#include <vector>

namespace tavrel {

/// Dives in their order, as what is worked out from many of them takes them. They belong to whoever holds the list.
using DiveSpan = std::span<const Plongee* const>;

/// The dives of a list of shared records.
template <class Pointers>
std::vector<const Plongee*> divesIn(const Pointers& records) {
    std::vector<const Plongee*> dives;
    dives.reserve(records.size());
    for (const auto& record : records) {
        dives.push_back(static_cast<const Plongee*>(record.get()));
    }
    return dives;
}

}  // namespace tavrel
