#pragma once

namespace tavrel {

/// Percent of the central nervous system's oxygen limit per minute at an oxygen pressure, bar.
double sncRate(double ppO2);

/// Percent of the limit that a time, minutes, at an oxygen pressure, bar, uses up.
double calculSncClock(double ppO2, double time);

}  // namespace tavrel
