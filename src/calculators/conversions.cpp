#include "calculators/conversions.h"

#include "base/numbers.h"

#include <algorithm>
#include <array>

namespace tavrel {

namespace {

// 100,000 Pa over 6,894.757 Pa, the pound-force per square inch.
constexpr double psiPerBar = 14.50377;
// Each rounded on its own, so they are not each other's inverses and a volume does not come back exactly.
constexpr double litresPerCubicFoot = 28.317;
constexpr double cubicInchesPerLitre = 61.024;
constexpr double cubicInchesPerLitreBack = 61.0241;
constexpr double cubicInchesPerCubicFoot = 1727.972;
// The US survey foot, 1200/3937 m.
constexpr double metresPerFoot = 0.3048006;
// The avoirdupois pound.
constexpr double kilogramsPerPound = 0.4535924;
// Water freezes at 32 °F and 273.15 K; 9 °F are 5 K.
constexpr double fahrenheitPerCelsius = 1.8;
constexpr double fahrenheitOfZeroCelsius = 32;
constexpr double kelvinOfZeroCelsius = 273.15;

constexpr int firstTag = 1;
constexpr int secondTag = 2;
constexpr int lastOfTwo = 2;
constexpr int lastOfThree = 3;

constexpr std::array<ConversionUnit, 2> pressureUnits{
    {{"bar", "barField", "bar", Title("Calculators", "Bar"), firstTag},
     {"psi", "psiField", "psi", Title("Calculators", "Pounds per square inch"), lastOfTwo}}};
constexpr std::array<ConversionUnit, 3> volumeUnits{
    {{"litres", "litresField", "l", Title("Calculators", "Litres"), firstTag},
     {"cubicFeet", "cubicFeetUSField", "ft³", Title("Calculators", "Cubic feet (US)"), secondTag},
     {"cubicInches", "cubicInchesUSField", "in³", Title("Calculators", "Cubic inches (US)"), lastOfThree}}};
constexpr std::array<ConversionUnit, 2> lengthUnits{
    {{"metres", "metresField", "m", Title("Calculators", "Metres"), firstTag},
     {"feet", "feetField", "ft", Title("Calculators", "Feet"), lastOfTwo}}};
constexpr std::array<ConversionUnit, 2> massUnits{
    {{"kilograms", "kilogrammeField", "kg", Title("Calculators", "Kilograms"), firstTag},
     {"pounds", "livreUSField", "lb", Title("Calculators", "Pounds (US)"), lastOfTwo}}};
constexpr std::array<ConversionUnit, 3> temperatureUnits{
    {{"celsius", "celsiusField", "°C", Title("Calculators", "Degrees Celsius"), firstTag},
     {"fahrenheit", "farenheitField", "°F", Title("Calculators", "Degrees Fahrenheit"), secondTag},
     {"kelvin", "kelvinField", "K", Title("Calculators", "Kelvin"), lastOfThree}}};

std::vector<double> pressures(int tag, double value) {
    return tag == firstTag ? std::vector{value, value * psiPerBar} : std::vector{value / psiPerBar, value};
}

std::vector<double> volumes(int tag, double value) {
    switch (tag) {
        case firstTag:
            return {value, value / litresPerCubicFoot, value * cubicInchesPerLitre};
        case secondTag:
            return {value * litresPerCubicFoot, value, value * cubicInchesPerCubicFoot};
        default:
            return {value / cubicInchesPerLitreBack, value / cubicInchesPerCubicFoot, value};
    }
}

std::vector<double> lengths(int tag, double value) {
    return tag == firstTag ? std::vector{value, value / metresPerFoot} : std::vector{value * metresPerFoot, value};
}

std::vector<double> masses(int tag, double value) {
    return tag == firstTag ? std::vector{value, value / kilogramsPerPound}
                           : std::vector{value * kilogramsPerPound, value};
}

double fahrenheit(double celsius) {
    return celsius * fahrenheitPerCelsius + fahrenheitOfZeroCelsius;
}

std::vector<double> temperatures(int tag, double value) {
    if (tag == firstTag) {
        return {value, fahrenheit(value), value + kelvinOfZeroCelsius};
    }
    if (tag == secondTag) {
        const double celsius = (value - fahrenheitOfZeroCelsius) / fahrenheitPerCelsius;
        return {celsius, value, celsius + kelvinOfZeroCelsius};
    }
    const double celsius = value - kelvinOfZeroCelsius;
    return {celsius, fahrenheit(celsius), value};
}

QString pressureFormula() {
    return QStringLiteral("psi = bar × %1").arg(shortestText(psiPerBar));
}

QString volumeFormula() {
    return QStringLiteral("ft³ = l / %1,  in³ = l × %2\nl = in³ / %3,  in³ = ft³ × %4")
        .arg(shortestText(litresPerCubicFoot), shortestText(cubicInchesPerLitre), shortestText(cubicInchesPerLitreBack),
             shortestText(cubicInchesPerCubicFoot));
}

QString lengthFormula() {
    return QStringLiteral("ft = m / %1").arg(shortestText(metresPerFoot));
}

QString massFormula() {
    return QStringLiteral("lb = kg / %1").arg(shortestText(kilogramsPerPound));
}

QString temperatureFormula() {
    return QStringLiteral("°F = °C × %1 + %2,  K = °C + %3")
        .arg(shortestText(fahrenheitPerCelsius), shortestText(fahrenheitOfZeroCelsius),
             shortestText(kelvinOfZeroCelsius));
}

const std::array<ConversionTab, 5> tabs{
    {{"pression", "choixPressionMatrix", Title("Calculators", "Pressure"), pressureUnits, pressures, pressureFormula},
     {"volume", "choixVolumeMatrix", Title("Calculators", "Volume"), volumeUnits, volumes, volumeFormula},
     {"longueur", "choixLongueurMatrix", Title("Calculators", "Length"), lengthUnits, lengths, lengthFormula},
     {"masse", "choixMasseMatrix", Title("Calculators", "Mass"), massUnits, masses, massFormula},
     {"temperature", "choixTemperatureMatrix", Title("Calculators", "Temperature"), temperatureUnits, temperatures,
      temperatureFormula}}};

}  // namespace

std::span<const ConversionTab> conversionTabs() {
    return tabs;
}

FoundUnit conversionUnit(const QString& name) {
    for (const ConversionTab& tab : tabs) {
        const auto unit = std::find_if(tab.units.begin(), tab.units.end(), [&](const ConversionUnit& each) {
            return name == QLatin1StringView(each.name);
        });
        if (unit != tab.units.end()) {
            return {&tab, static_cast<std::size_t>(unit - tab.units.begin())};
        }
    }
    return {};
}

double inUnit(const char* to, const char* from, double value) {
    const FoundUnit source = conversionUnit(QString::fromLatin1(from));
    const FoundUnit target = conversionUnit(QString::fromLatin1(to));
    if (!source.tab || source.tab != target.tab) {
        qFatal("There is no way from %s to %s", from, to);
    }
    return source.tab->convert(source.tab->units[source.position].tag, value)[target.position];
}

}  // namespace tavrel
