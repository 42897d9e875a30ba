#pragma once

#include <optional>

namespace tavrel {

// Trimix calculations. Depths in metres, pressures in bar, gas shares in percent; only the minimum depth checks its
// input.

/// The two equivalent depths of a mix at a depth.
struct EquivalentDepths {
    double ead = 0;  ///< equivalent air depth by nitrogen, never below 0 (not-a-number stays)
    double end = 0;  ///< equivalent narcotic depth; oxygen narcotises too, so only helium lowers it; may be negative
};
EquivalentDepths trimixEquivalentDepths(double oxygen, double helium, double depth);

/// Oxygen percentages between which a mix counts as hypoxic and has a minimum depth.
inline constexpr double leastHypoxicOxygen = 1.0;
inline constexpr double mostHypoxicOxygen = 16.0;

/// Depth at which a hypoxic mix reaches 0.16 bar of oxygen; nothing outside the hypoxic range (not-a-number passes).
std::optional<double> trimixMinimumDepth(double oxygen);

struct TrimixShares {
    double oxygen = 0;
    double helium = 0;  ///< negative where air at the narcotic depth would hold less nitrogen than is needed
};
/// The mix that holds the oxygen partial pressure at the depth, and the nitrogen of air at the narcotic depth.
TrimixShares bestTrimix(double depth, double narcoticDepth, double ppO2);

}  // namespace tavrel
