#pragma once

#include "book/column.h"

#include <span>

namespace tavrel {

/// The fifteen columns of the logbook table in their order.
std::span<const Column> diveColumns();

}  // namespace tavrel
