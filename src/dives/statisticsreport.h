#pragma once

#include "base/texts.h"
#include "dives/statistics.h"
#include "drawing/styledtext.h"

#include <QString>

#include <array>

namespace tavrel {

/// The groups of counts in the order in which they are shown, with their headings.
struct StatGroupName {
    StatGroup group;
    Title title;
};
inline constexpr std::array<StatGroupName, 4> statGroupNames{{
    {StatGroup::kinds, {"Carnet", "Stat group kinds"}},
    {StatGroup::systems, {"Carnet", "Stat group systems"}},
    {StatGroup::gases, {"Carnet", "Stat group gases"}},
    {StatGroup::depths, {"Carnet", "Stat group depths"}},
}};

/// The statistics to print: a title that names the logbook, then every figure under its heading. Lines start with "\r".
/// A window's paper has the figures `asOnScreen`.
StyledText statisticsReport(const Statistics& statistics, const QString& logbook,
                            QString (*asOnScreen)(QString) = nullptr);

}  // namespace tavrel
