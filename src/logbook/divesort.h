#pragma once

#include "dives/plongee.h"

#include <QString>

#include <vector>

namespace tavrel {

/// The order of the dives by a field's natural comparison: numbers by value, texts by their letters' codes, dates by
/// time; what was never entered and not-a-number come first. Equal dives keep their order, in both directions. The
/// result holds old positions; an unknown field keeps the order as it is.
std::vector<int> sortedOrder(const std::vector<DivePointer>& dives, const QString& field, bool ascending);

}  // namespace tavrel
