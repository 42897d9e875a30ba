#pragma once

#include "base/texts.h"

#include <span>

namespace tavrel {

/// The calculator windows.
enum class CalculatorId {
    ProfMax,
    BestMix,
    EquivalentDepth,
    OxygenWindow,
    BlendNitrox,
    TrimixEadEnd,
    TrimixProfMin,
    BestTrimix,
    SodaTime,
    BreathedFraction,
    IdealFlow,
    Conversions,
    Gps,
};
inline constexpr std::size_t calculatorCount = 13;

/// The menus that the calculators stand in, in order.
enum class CalculatorGroup { Nitrox, Trimix, Rebreather, Conversions };

/// How a calculator is known to the menus, the window store and the command line.
struct Calculator {
    CalculatorId id;
    CalculatorGroup group;
    Title title;
    const char* action;        ///< AppDelegate's function that shows the window
    const char* windowLayout;  ///< the window's own name
    const char* command;       ///< behind "calc" on the command line
};

/// All calculators in menu order; a calculator's place is its id.
std::span<const Calculator> calculators();
const Calculator& calculator(CalculatorId id);
Title calculatorGroupTitle(CalculatorGroup group);

/// A label without its mnemonic mark.
QString withoutMnemonic(QString label);

}  // namespace tavrel
