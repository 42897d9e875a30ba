#pragma once

#include "dives/plongee.h"

namespace tavrel {

/// The units that a logbook's numbers are taken to be in: metres and degrees Celsius, or feet and degrees Fahrenheit.
/// Pressures, volumes and weights have the same units in both.
enum class UnitSystem { metric, us };

/// A length in the other system's unit, to a hundredth.
double convertedLength(double length, UnitSystem to);
/// A temperature in the other system's whole degrees; -50, which stands for none, stays.
qint32 convertedTemperature(qint32 degrees, UnitSystem to);

/// The dive with its depth, stops, altitude, temperatures and profile taken from the other system into this one, depths
/// to a hundredth of the unit or another part of it.
Plongee convertedDive(const Plongee& dive, UnitSystem to, double parts = 100);

}  // namespace tavrel
