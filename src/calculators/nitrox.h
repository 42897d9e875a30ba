#pragma once

#include <array>

namespace tavrel {

// Nitrox calculations. Depths in metres, pressures in bar, gas shares in percent; nothing is checked or clamped: a
// share of zero gives infinities or not-a-number, a target out of reach a negative figure.

/// The oxygen partial pressures (bar) that the pages offer, in menu order, and the one that counts without a choice.
inline constexpr std::array<double, 5> ppO2Menu{1.2, 1.3, 1.4, 1.5, 1.6};
inline constexpr int defaultPpO2Index = 2;

/// The partial pressure of a menu index; the default for any index outside the menu, -1 (no selection) included.
double ppO2OfMenuIndex(int index);

/// Depth at which a mix reaches the partial pressure (MOD), from Dalton's law.
double maximumOperatingDepth(double oxygen, double ppO2);

/// Oxygen percentage that gives the partial pressure at a depth.
double bestMix(double depth, double ppO2);

/// Depth at which air holds the nitrogen partial pressure of the mix (EAD); negative for rich mixes near the surface.
double equivalentAirDepth(double oxygen, double depth);

/// The depths between which a mix serves.
struct OxygenWindow {
    double deepest = 0;          ///< where the oxygen reaches 1.6 bar
    double shallowest = 0;       ///< where the oxygen reaches the minimum partial pressure
    double nitrogenNeutral = 0;  ///< down to here the nitrogen stays at its surface value, no deeper than `deepest`
};
OxygenWindow oxygenWindow(double oxygen, double minimumPpO2);

/// What takes a tank from one pressure and mix to another.
struct Blend {
    double oxygen = 0;  ///< pure oxygen to add before topping up with air, bar
    double topUp = 0;   ///< oxygen percentage of one gas that does the same in a single top-up
};
Blend blend(double startPressure, double startOxygen, double endPressure, double endOxygen);

}  // namespace tavrel
