#pragma once

#include <QtGlobal>

#include <array>

namespace tavrel {

// Rebreather calculations. Gas shares in percent, flows and consumptions in litres per minute; nothing is checked.

struct SodaTime {
    qint32 hours = 0;
    qint32 minutes = 0;
};
/// Endurance of the absorbent: weight (kg) times capacity (litres of carbon dioxide per kg) over production (l/min),
/// cut to whole minutes. An endurance that a 32-bit integer cannot hold, infinite or not a number, gives the smallest
/// integer.
SodaTime sodaTime(double weight, double capacity, double production);

/// The oxygen consumptions (l/min) of the tables: a diver at rest to one at work.
inline constexpr std::array<double, 11> tableConsumptions{0.8, 0.9, 1.0, 1.1, 1.2, 1.3, 1.4, 1.5, 1.6, 1.7, 1.8};

/// Oxygen percentage in the loop of a semi-closed rebreather with a constant supply: what flows in less what the diver
/// uses, over the gas that stays.
double breathedFraction(double supplyOxygen, double flow, double consumption);

/// Supply flow that holds the wanted oxygen percentage in the loop.
double idealFlow(double supplyOxygen, double consumption, double wantedOxygen);

/// How a row of a table is to be coloured; unchanged keeps the colour of the calculation before.
enum class RowColour { Red, Black, Unchanged };

/// Red below the oxygen of air, black from it on; not-a-number leaves the colour.
RowColour breathedFractionColour(double percent);

/// The supply flows (l/min) that a semi-closed rebreather's dosing is made for.
inline constexpr double lowestSupplyFlow = 3.0;
inline constexpr double highestSupplyFlow = 20.0;
/// Red outside the supply flows, black inside; exactly the highest, and not-a-number, leave the colour.
RowColour idealFlowColour(double flow);

}  // namespace tavrel
