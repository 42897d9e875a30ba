#include "logbook/unitconversion.h"

#include "calculators/conversions.h"
#include "dives/divecodes.h"
#include "dives/divetanks.h"

#include <cmath>

namespace tavrel {

namespace {

constexpr double hundredths = 100;

double roundedTo(double parts, double value) {
    return std::round(value * parts) / parts;
}

/// Of lengths of the other system.
double lengthFactor(UnitSystem to) {
    return to == UnitSystem::us ? inUnit("feet", "metres", 1) : inUnit("metres", "feet", 1);
}

Series convertedDepths(const Series& depths, double factor, double parts) {
    if (depths.isNull()) {
        return depths;
    }
    Series converted = Series::empty();
    for (std::size_t sample = 0; sample < depths.size(); ++sample) {
        const Number depth = depths.at(sample);
        converted.append(
            Number::ofReal(roundedTo(parts, depth.toDouble() * factor), depth.isReal() ? depth.code : 'd'));
    }
    return converted;
}

}  // namespace

double convertedLength(double length, UnitSystem to) {
    return roundedTo(hundredths, length * lengthFactor(to));
}

qint32 convertedTemperature(qint32 degrees, UnitSystem to) {
    if (degrees == temperatureNotGiven) {
        return degrees;
    }
    const double converted =
        to == UnitSystem::us ? inUnit("fahrenheit", "celsius", degrees) : inUnit("celsius", "fahrenheit", degrees);
    return static_cast<qint32>(std::lround(converted));
}

Plongee convertedDive(const Plongee& dive, UnitSystem to, double parts) {
    const double factor = lengthFactor(to);
    Plongee converted = dive;
    const auto convert = [&](float Plongee::*depth) {
        converted.*depth = static_cast<float>(roundedTo(parts, static_cast<double>(dive.*depth) * factor));
    };
    convert(&Plongee::profondeur);
    for (const StopFields& stop : stopFields) {
        convert(stop.depth);
    }
    converted.altitude = static_cast<qint32>(std::lround(dive.altitude * factor));
    converted.tempEau = convertedTemperature(dive.tempEau, to);
    converted.tempAir = convertedTemperature(dive.tempAir, to);
    converted.profilProfondeur = convertedDepths(dive.profilProfondeur, factor, parts);
    return converted;
}

}  // namespace tavrel
