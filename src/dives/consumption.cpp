#include "dives/consumption.h"

#include "base/numbers.h"
#include "base/texts.h"
#include "dives/oxygenclock.h"
#include "dives/wrapping.h"
#include "profile/profilesummary.h"

#include <algorithm>
#include <cmath>

namespace tavrel {

namespace {

constexpr float metresPerBar = 10;

float pressureAt(float depth) {
    return depth / metresPerBar + 1;
}

bool canReport(const GasReadings& readings) {
    return readings.tanks[0].start >= 1 && readings.time >= 1;
}

}  // namespace

void GasReadings::readProfile(const ProfileSeries& profile) {
    const Series& depths = profile.profilProfondeur;
    samples = depths.size();
    const ProfileSummary summary = summaryOf(profile);
    averageDepth = summary.average;
    deepest = summary.maximum;
    // What is no number is no depth; only where nothing else is there it stays.
    largestSample = samples > 0 ? static_cast<float>(depths.real(0)) : 0;
    for (std::size_t sample = 1; sample < samples; ++sample) {
        largestSample = std::fmax(largestSample, static_cast<float>(depths.real(sample)));
    }
}

Consumption calculVolumeAirConsomme(const GasReadings& readings) {
    const BottleReading& tank = readings.tanks[0];
    const auto time = static_cast<float>(readings.time);
    const float ambient = pressureAt(readings.averageDepth);
    Consumption result;
    result._pressionConsommee = wrappedDifference(tank.start, tank.end);
    result._pressionParMinute = static_cast<float>(result._pressionConsommee) / time;
    result._volumeDisponible = wrappedProduct(tank.volume, tank.start);
    result._volumeConsomme = wrappedProduct(tank.volume, result._pressionConsommee);
    result._sac = static_cast<float>(result._volumeConsomme) / time / ambient;
    result._sacBar = result._pressionParMinute / ambient;
    return result;
}

QString consumptionReport(const GasReadings& readings, const Consumption& consumption, bool usUnits) {
    if (!canReport(readings)) {
        return text("Carnet", "Gas status error");
    }
    const Title format = usUnits ? Title("Carnet", "Gas status US") : Title("Carnet", "Gas status");
    return textWith(format, consumption._volumeDisponible, consumption._volumeConsomme,
                    double{consumption._pressionParMinute}, double{consumption._sac}, double{consumption._sacBar},
                    double{readings.averageDepth});
}

qint32 pressureDrop(const GasReadings& readings, std::size_t tank) {
    return wrappedDifference(readings.tanks.at(tank).start, readings.tanks.at(tank).end);
}

QString pressureDropText(qint32 drop) {
    return textWith("Carnet", "Delta pressure", drop);
}

QString pressureDropExplanation(const GasReadings& readings, std::size_t tank) {
    const BottleReading& bottle = readings.tanks.at(tank);
    return textWith("Carnet", "Explain pressure drop", bottle.start, bottle.end, pressureDrop(readings, tank));
}

namespace {

QString availableExplanation(const BottleReading& bottle, qint32 available) {
    return textWith("Carnet", "Explain available", bottle.volume, bottle.start, available);
}
QString usedExplanation(const BottleReading& bottle, qint32 used) {
    return textWith("Carnet", "Explain used", bottle.volume, bottle.start, bottle.end, used);
}

}  // namespace

std::array<std::optional<AuxiliaryGas>, GasReadings::auxiliaryCount> auxiliaryGases(const GasReadings& readings) {
    std::array<std::optional<AuxiliaryGas>, GasReadings::auxiliaryCount> gases;
    if (std::none_of(readings.levels.begin() + 2, readings.levels.end(), [](const auto& level) { return level.on; })) {
        return gases;
    }
    for (std::size_t source = 0; source < gases.size(); ++source) {
        const BottleReading& bottle = readings.auxiliaries[source];
        if (bottle.volume == 0) {
            continue;
        }
        AuxiliaryGas gas;
        gas.available = wrappedProduct(bottle.volume, bottle.start);
        gas.used = wrappedProduct(wrappedDifference(bottle.start, bottle.end), bottle.volume);
        gas.text = textWith("Carnet", "Auxiliary gas", gas.available, gas.used);
        gas.explanation = availableExplanation(bottle, gas.available) + u'\n' + usedExplanation(bottle, gas.used);
        gas.maximum = bottle.start;
        gas.value = bottle.end;
        gas.ticks = bottle.start / 10;
        gases[source] = gas;
    }
    return gases;
}

QString ponyTitle(const GasReadings& readings, std::size_t pony) {
    static constexpr std::array<Title, 3> titles{
        {{"Carnet", "Pony 1 title"}, {"Carnet", "Pony 2 title"}, {"Carnet", "Pony 3 title"}}};
    const LevelReading& level = readings.levels.at(pony);
    return textWith(titles.at(pony), level.depth, truncated(level.oxygen));
}

OxygenExposure oxygenExposure(const GasReadings& readings) {
    const double fraction = readings.oxygen / 100;
    const double pressure =
        readings.hasProfile() ? static_cast<double>(pressureAt(readings.largestSample)) : readings.depth / 10 + 1;
    auto ppO2 = static_cast<float>(fraction * pressure);
    QString source = textWith("Carnet", "Explain ppO2 of tank", readings.oxygen, pressure, double{ppO2});
    for (std::size_t level = 0; level < readings.levels.size(); ++level) {
        const LevelReading& stop = readings.levels[level];
        const qint32 ambient = stop.depth / 10 + 1;
        const auto candidate = static_cast<float>(stop.oxygen / 100 * ambient);
        if (stop.on && candidate > ppO2) {
            ppO2 = candidate;
            source = textWith("Carnet", "Explain ppO2 of stop", level + 1, stop.oxygen, ambient, double{ppO2});
        }
    }
    OxygenExposure exposure;
    exposure.ppO2 = ppO2;
    exposure.percent = calculSncClock(static_cast<double>(ppO2), readings.minutes);
    exposure.text = textWith(Title("Carnet", "CNS"), Fallback{QStringLiteral("N/A")}, double{ppO2}, exposure.percent);
    exposure.explanation =
        source + u'\n' +
        textWith("Carnet", "Explain CNS", readings.minutes, sncRate(static_cast<double>(ppO2)), exposure.percent);
    return exposure;
}

namespace {

/// Why a figure of the main tank cannot be known; null when it can.
QString missingForTank(const GasReadings& readings, bool needsVolume, bool needsTime, bool needsProfile) {
    const BottleReading& tank = readings.tanks[0];
    if (tank.start < 1) {
        return text("Carnet", "Unknown without start pressure");
    }
    if (needsVolume && tank.volume == 0) {
        return text("Carnet", "Unknown without tank volume");
    }
    if (needsTime && readings.time < 1) {
        return text("Carnet", "Unknown without time");
    }
    if (needsProfile && !readings.hasProfile()) {
        return text("Carnet", "Unknown without samples");
    }
    if (needsProfile && !std::isfinite(pressureAt(readings.averageDepth))) {
        return text("Carnet", "Unknown with bad samples");
    }
    return {};
}

}  // namespace

ExplainedFigure explainedAvailable(const GasReadings& readings) {
    if (const QString missing = missingForTank(readings, true, false, false); !missing.isNull()) {
        return {{}, missing};
    }
    const BottleReading& tank = readings.tanks[0];
    const Consumption gas = calculVolumeAirConsomme(readings);
    return {textWith("Carnet", "Litres", gas._volumeDisponible), availableExplanation(tank, gas._volumeDisponible)};
}

ExplainedFigure explainedUsed(const GasReadings& readings) {
    if (const QString missing = missingForTank(readings, true, false, false); !missing.isNull()) {
        return {{}, missing};
    }
    const BottleReading& tank = readings.tanks[0];
    const Consumption gas = calculVolumeAirConsomme(readings);
    return {textWith("Carnet", "Litres", gas._volumeConsomme), usedExplanation(tank, gas._volumeConsomme)};
}

ExplainedFigure explainedPerMinute(const GasReadings& readings) {
    if (const QString missing = missingForTank(readings, false, true, false); !missing.isNull()) {
        return {{}, missing};
    }
    const Consumption gas = calculVolumeAirConsomme(readings);
    return {
        textWith("Carnet", "Bar per minute", double{gas._pressionParMinute}),
        textWith("Carnet", "Explain per minute", gas._pressionConsommee, readings.time, double{gas._pressionParMinute}),
    };
}

ExplainedFigure explainedSac(const GasReadings& readings) {
    if (const QString missing = missingForTank(readings, true, true, true); !missing.isNull()) {
        return {{}, missing};
    }
    const Consumption gas = calculVolumeAirConsomme(readings);
    return {textWith("Carnet", "Litres per minute", double{gas._sac}),
            textWith("Carnet", "Explain SAC", gas._volumeConsomme, readings.time,
                     double{pressureAt(readings.averageDepth)}, double{gas._sac})};
}

ExplainedFigure explainedSacBar(const GasReadings& readings) {
    if (const QString missing = missingForTank(readings, false, true, true); !missing.isNull()) {
        return {{}, missing};
    }
    const Consumption gas = calculVolumeAirConsomme(readings);
    return {textWith("Carnet", "Bar per minute", double{gas._sacBar}),
            textWith("Carnet", "Explain SAC bar", gas._pressionConsommee, readings.time,
                     double{pressureAt(readings.averageDepth)}, double{gas._sacBar})};
}

ExplainedFigure explainedAverageDepth(const GasReadings& readings, bool usUnits) {
    if (!readings.hasProfile()) {
        return {{}, text("Carnet", "Unknown without samples")};
    }
    if (!std::isfinite(readings.averageDepth)) {
        return {{}, text("Carnet", "Unknown with bad samples")};
    }
    const Title unit = usUnits ? Title("Carnet", "Feet") : Title("Carnet", "Metres");
    return {textWith(unit, double{readings.averageDepth}), textWith("Carnet", "Explain average depth", readings.samples,
                                                                    textWith(unit, double{readings.averageDepth}))};
}

}  // namespace tavrel
