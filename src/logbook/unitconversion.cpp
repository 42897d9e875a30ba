#include "logbook/unitconversion.h"

#include "calculators/conversions.h"
#include "dives/divecodes.h"
#include "dives/divetanks.h"

#include <cmath>

namespace tavrel {

namespace {

double inUnit(const char* to, const char* from, double value) {
    const FoundUnit source = conversionUnit(QString::fromLatin1(from));
    const FoundUnit target = conversionUnit(QString::fromLatin1(to));
    return source.tab->convert(source.tab->units[source.position].tag, value)[target.position];
}

double hundredths(double value) {
    return std::round(value * 100) / 100;
}

/// Of lengths of the other system.
double lengthFactor(UnitSystem to) {
    return to == UnitSystem::us ? inUnit("feet", "metres", 1) : inUnit("metres", "feet", 1);
}

Series convertedDepths(const Series& depths, double factor) {
    if (depths.isNull()) {
        return depths;
    }
    Series converted = Series::empty();
    for (std::size_t sample = 0; sample < depths.size(); ++sample) {
        const Number depth = depths.at(sample);
        converted.append(Number::ofReal(hundredths(depth.toDouble() * factor), depth.isReal() ? depth.code : 'd'));
    }
    return converted;
}

}  // namespace

double convertedLength(double length, UnitSystem to) {
    return hundredths(length * lengthFactor(to));
}

qint32 convertedTemperature(qint32 degrees, UnitSystem to) {
    if (degrees == temperatureNotGiven) {
        return degrees;
    }
    const double converted =
        to == UnitSystem::us ? inUnit("fahrenheit", "celsius", degrees) : inUnit("celsius", "fahrenheit", degrees);
    return static_cast<qint32>(std::lround(converted));
}

Plongee convertedDive(const Plongee& dive, UnitSystem to) {
    const double factor = lengthFactor(to);
    Plongee converted = dive;
    const auto convert = [&](float Plongee::*depth) {
        converted.*depth = static_cast<float>(hundredths(static_cast<double>(dive.*depth) * factor));
    };
    convert(&Plongee::profondeur);
    for (const StopFields& stop : stopFields) {
        convert(stop.depth);
    }
    converted.altitude = static_cast<qint32>(std::lround(dive.altitude * factor));
    converted.tempEau = convertedTemperature(dive.tempEau, to);
    converted.tempAir = convertedTemperature(dive.tempAir, to);
    converted.profilProfondeur = convertedDepths(dive.profilProfondeur, factor);
    return converted;
}

}  // namespace tavrel
