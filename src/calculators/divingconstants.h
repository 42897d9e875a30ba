#pragma once

namespace tavrel {

// The conventions that every gas calculator shares. Depths are metres of water, pressures bar, gas shares percent.

/// Metres of water per bar: the round figure of metric dive tables.
inline constexpr double metresPerBar = 10.0;
/// Absolute pressure at the surface, bar.
inline constexpr double surfacePressure = 1.0;
/// Nitrogen of air as blenders count it (argon and the rest included), percent and fraction.
inline constexpr double airNitrogenPercent = 79.0;
inline constexpr double airNitrogenFraction = airNitrogenPercent / 100.0;
/// Oxygen of dry air, percent: a loop that holds less is hypoxic even at the surface's standard.
inline constexpr double airOxygenPercent = 20.9;
/// Highest and lowest oxygen partial pressure that may be breathed at all, bar.
inline constexpr double highestPpO2 = 1.6;
inline constexpr double lowestPpO2 = 0.16;

/// Absolute pressure (bar) at a depth (m).
constexpr double absolutePressure(double depth) {
    return depth / metresPerBar + surfacePressure;
}
/// The depth (m) at which the absolute pressure (bar) rules; negative where the pressure is below the surface's.
constexpr double depthOfPressure(double pressure) {
    return (pressure - surfacePressure) * metresPerBar;
}

}  // namespace tavrel
