#pragma once

#include "base/progress.h"
#include "interchange/standard/founddive.h"
#include "interchange/xml/xmltree.h"

namespace tavrel {

/// Elements of dive files that never stand in one of their own name.
inline constexpr std::string_view neverNestedInDives[] = {"dive", "repetitiongroup", "repgroup", "waypoint",
                                                          "profiledata"};

/// Such elements with the only ones that they stand in.
inline constexpr std::pair<std::string_view, std::string_view> placesInDives[] = {
    {"profiledata", "uddf"},     {"gasdefinitions", "uddf"}, {"diver", "uddf"},
    {"divesite", "uddf"},        {"divetrip", "uddf"},       {"informationbeforedive", "dive"},
    {"diveinformation", "dive"}, {"samples", "dive"},        {"informationafterdive", "dive"},
};

/// How such a file is parsed: with attributes, names without the prefix of the root's namespace, and damage mended.
inline constexpr XmlMarkup uddfMarkup{true, true, true, neverNestedInDives, placesInDives};

/// The dives of a UDDF file, versions 2 and 3, by the meaning of its elements: every group of every profiledata, values
/// wherever the versions put them, links followed, SI units turned into a dive's. What a dive cannot hold is named in
/// it. The progress counts dives; cancelled, the dives read so far come back.
FoundDives readUddf(XmlElement root, const Progress& progress = {});

}  // namespace tavrel
