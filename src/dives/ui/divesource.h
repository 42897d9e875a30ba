#pragma once

#include "dives/plongee.h"

#include <QString>

#include <functional>
#include <vector>

namespace tavrel {

/// Which dives of a logbook a window is about.
enum class DiveChoice { all, selected, found, current };

/// What the windows that tell of dives need of the logbook behind them.
struct DiveSource {
    std::function<std::vector<const Plongee*>(DiveChoice)> dives;
    std::function<QString()> name;
};

}  // namespace tavrel
