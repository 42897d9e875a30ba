#pragma once

#include "interchange/standard/filetime.h"
#include "interchange/xml/xmltree.h"

#include <optional>
#include <vector>

namespace tavrel {

/// When a dive began, from the elements datetime, date and time of its parts, wherever the versions of UDDF put them:
/// as text, as elements or attributes for year, month, day, hour, minute and second, one within the other or apart.
/// The first that holds a day counts.
std::optional<FileTime> uddfStart(const std::vector<XmlElement>& parts);

}  // namespace tavrel
