#include "logbook/unitconversion.h"

#include "calculators/conversions.h"

#include <array>
#include <cmath>

namespace tavrel {

namespace {

constexpr qint32 noTemperature = -50;

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
    if (degrees == noTemperature) {
        return degrees;
    }
    const double converted =
        to == UnitSystem::us ? inUnit("fahrenheit", "celsius", degrees) : inUnit("celsius", "fahrenheit", degrees);
    return static_cast<qint32>(std::lround(converted));
}

Plongee convertedDive(const Plongee& dive, UnitSystem to) {
    const double factor = lengthFactor(to);
    Plongee converted = dive;
    for (const auto depth :
         {&Plongee::profondeur, &Plongee::decoDepth_Level_1, &Plongee::decoDepth_Level_2, &Plongee::decoDepth_Level_3,
          &Plongee::decoDepth_Level_4, &Plongee::decoDepth_Level_5, &Plongee::decoDepth_Level_6}) {
        converted.*depth = static_cast<float>(hundredths(static_cast<double>(dive.*depth) * factor));
    }
    converted.altitude = static_cast<qint32>(std::lround(dive.altitude * factor));
    converted.tempEau = convertedTemperature(dive.tempEau, to);
    converted.tempAir = convertedTemperature(dive.tempAir, to);
    converted.profilProfondeur = convertedDepths(dive.profilProfondeur, factor);
    return converted;
}

}  // namespace tavrel
