#pragma once

#include "dives/gasreadings.h"

#include <QString>

#include <optional>

namespace tavrel {

/// The gas breathed from the main tank, in whole litres at the surface, whole bar and single precision. Divisions by
/// nothing stay what they give: infinite or not a number.
struct Consumption {
    qint32 _pressionConsommee = 0;  ///< start less end, bar
    float _pressionParMinute = 0;   ///< bar per minute
    qint32 _volumeDisponible = 0;   ///< litres at the start
    qint32 _volumeConsomme = 0;     ///< litres used
    float _sac = 0;                 ///< surface air consumption, litres per minute
    float _sacBar = 0;              ///< the same, bar per minute
};

/// Ambient pressure at the average depth is taken as depth / 10 + 1 bar: no correction for salt water or altitude.
Consumption calculVolumeAirConsomme(const GasReadings& readings);

/// The report of the consumption sheet; tells what is missing when there is no start pressure or no time.
QString consumptionReport(const GasReadings& readings, const Consumption& consumption, bool usUnits);

/// Pressure drop of tank 0 or 1, bar.
qint32 pressureDrop(const GasReadings& readings, std::size_t tank);
QString pressureDropText(qint32 drop);
QString pressureDropExplanation(const GasReadings& readings, std::size_t tank);

/// A stage bottle or bail-out in use.
struct AuxiliaryGas {
    qint32 available = 0;  ///< litres at the surface
    qint32 used = 0;
    QString text;
    QString explanation;
    qint32 maximum = 0;  ///< of its gauge: the start pressure, bar
    qint32 value = 0;    ///< of its gauge: the end pressure
    qint32 ticks = 0;    ///< one every 10 bar
};

/// Nothing where there is no bottle (no volume), and everywhere while none of the decompression levels 3 to 6 is on.
std::array<std::optional<AuxiliaryGas>, GasReadings::auxiliaryCount> auxiliaryGases(const GasReadings& readings);

/// The title of the box of stage bottle 1 to 3: depth and oxygen of the level that it feeds.
QString ponyTitle(const GasReadings& readings, std::size_t pony);

/// What the oxygen clock makes of a dive.
struct OxygenExposure {
    float ppO2 = 0;      ///< the highest met, bar
    double percent = 0;  ///< of the oxygen clock
    QString text;
    QString explanation;
};

/// The highest oxygen pressure of the main tank at the deepest point and of the decompression levels that are on, for
/// the whole dive. A level's depth counts in whole tens of metres: stops at 3, 6 and 9 m count as 1 bar.
OxygenExposure oxygenExposure(const GasReadings& readings);

/// A figure in words, with its formula and the numbers put in; when it cannot be known the text is null and the
/// explanation says why.
struct ExplainedFigure {
    QString text;
    QString explanation;
};

ExplainedFigure explainedAvailable(const GasReadings& readings);
ExplainedFigure explainedUsed(const GasReadings& readings);
ExplainedFigure explainedPerMinute(const GasReadings& readings);
ExplainedFigure explainedSac(const GasReadings& readings);
ExplainedFigure explainedSacBar(const GasReadings& readings);
ExplainedFigure explainedAverageDepth(const GasReadings& readings, bool usUnits);

}  // namespace tavrel
