#include "calculators/calculators.h"

#include <array>

namespace tavrel {

namespace {

using enum CalculatorId;

constexpr std::array<Calculator, calculatorCount> table{{
    {ProfMax, CalculatorGroup::Nitrox, Title("Nitrox", "Maximum operating depth"), "displayProfMaxWindow",
     "Nitrox Prof Max", "mod"},
    {BestMix, CalculatorGroup::Nitrox, Title("Nitrox", "Best mix for a depth"), "displayBestMixWindow",
     "Nitrox Best Mix", "best-mix"},
    {EquivalentDepth, CalculatorGroup::Nitrox, Title("Nitrox", "Equivalent air depth"), "displayEquivalentDepthWindow",
     "Nitrox Equivalent Depth", "ead"},
    {OxygenWindow, CalculatorGroup::Nitrox, Title("Nitrox", "Depth range of a mix"), "displayOxygenWindow",
     "Nitrox Oxygen Window", "oxygen-window"},
    {BlendNitrox, CalculatorGroup::Nitrox, Title("Nitrox", "Partial pressure blending"), "displayBlendNitroxWindow",
     "Blend Nitrox", "blend"},
    {TrimixEadEnd, CalculatorGroup::Trimix, Title("Trimix", "Equivalent depths"), "displayTrimixEAD_ENDWindow",
     "Trimix", "trimix-ead-end"},
    {TrimixProfMin, CalculatorGroup::Trimix, Title("Trimix", "Minimum depth of a mix"), "displayTrimixProfMinWindow",
     "Trimix Prof Min", "trimix-min-depth"},
    {BestTrimix, CalculatorGroup::Trimix, Title("Trimix", "Best trimix for a depth"), "displayBestTrimix",
     "Best Trimix", "best-trimix"},
    {SodaTime, CalculatorGroup::Rebreather, Title("Rebreather", "Absorbent endurance"), "displaySodaTimeWindow",
     "Soda Time", "soda-time"},
    {BreathedFraction, CalculatorGroup::Rebreather, Title("Rebreather", "SCR breathed fraction"),
     "displaySCRBreathedFracO2Window", "SCR Breathed Frac O2", "scr-fraction"},
    {IdealFlow, CalculatorGroup::Rebreather, Title("Rebreather", "SCR ideal flow"), "displaySCRIdealFlowWindow",
     "SCR Flow Calc", "scr-flow"},
    {Conversions, CalculatorGroup::Conversions, Title("Calculators", "Unit conversions"), "displayConversionsWindow",
     "Physique", "convert"},
    {Gps, CalculatorGroup::Conversions, Title("Calculators", "GPS datum conversion"), "displayConversionsGPSWindow",
     "Gps", "gps"},
}};

constexpr bool everyCalculatorInItsPlace() {
    for (std::size_t place = 0; place < table.size(); ++place) {
        if (table[place].id != static_cast<CalculatorId>(place)) {
            return false;
        }
    }
    return true;
}
static_assert(everyCalculatorInItsPlace());

}  // namespace

std::span<const Calculator> calculators() {
    return table;
}

const Calculator& calculator(CalculatorId id) {
    return table[static_cast<std::size_t>(id)];
}

Title calculatorGroupTitle(CalculatorGroup group) {
    switch (group) {
        case CalculatorGroup::Nitrox:
            return Title("Calculators", "Nitrox");
        case CalculatorGroup::Trimix:
            return Title("Calculators", "Trimix");
        case CalculatorGroup::Rebreather:
            return Title("Calculators", "Rebreather");
        case CalculatorGroup::Conversions:
            break;
    }
    return Title("Calculators", "Conversions");
}

QString withoutMnemonic(QString label) {
    return label.remove(u'&');
}

}  // namespace tavrel
