#pragma once

#include <span>

namespace tavrel {

/// A band of oxygen pressures, open below and closed above.
struct OxygenBand {
    double upper;  ///< bar
    double rate;   ///< percent of the oxygen clock per minute
};

/// The 48 bands in ascending order; the last has no upper limit.
std::span<const OxygenBand> oxygenBands();

/// Percent of the central nervous system's oxygen limit per minute at an oxygen pressure, bar.
double sncRate(double ppO2);

/// Percent of the limit that a time, minutes, at an oxygen pressure, bar, uses up.
double calculSncClock(double ppO2, double time);

}  // namespace tavrel
