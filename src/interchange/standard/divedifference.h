#pragma once

#include "dives/plongee.h"

#include <string_view>
#include <vector>

namespace tavrel {

/// The keys of the fields in which two dives differ in what they say, in archive order. Days are compared as days,
/// times as times of day; what stands for "not given" is the same in all its forms, an empty text and a dash, a series
/// of one element or of zeros, and the datum of no position.
std::vector<std::string_view> differingFields(const Plongee& one, const Plongee& other);

}  // namespace tavrel
