#include "calculators/calculatorpage.h"

#include "base/numbers.h"
#include "calculators/divingconstants.h"
#include "calculators/nitrox.h"
#include "calculators/trimix.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tavrel {

namespace {

using Values = std::span<const double>;

// The inputs.

constexpr const char* percent = "%";
constexpr const char* metres = "m";
constexpr const char* bar = "bar";
constexpr const char* litresPerMinute = "l/min";

constexpr CalculatorInput ppO2Choice{"ppO2PopUp", "ppo2", Title("Nitrox", "Maximum ppO2"), bar,
                                     CalculatorInputKind::PpO2Menu};
constexpr CalculatorInput nitroxOxygen{"fracO2Field", "o2", Title("Nitrox", "Oxygen of the mix"), percent};

constexpr std::array profMaxInputs{nitroxOxygen, ppO2Choice};
constexpr std::array bestMixInputs{
    CalculatorInput{"profondeurMaxField", "depth", Title("Nitrox", "Planned maximum depth"), metres}, ppO2Choice};
constexpr std::array equivalentDepthInputs{
    nitroxOxygen, CalculatorInput{"profondeurField", "depth", Title("Nitrox", "Depth"), metres}};
constexpr std::array oxygenWindowInputs{
    CalculatorInput{"winFO2", "o2", Title("Nitrox", "Oxygen of the mix"), percent},
    CalculatorInput{"winMinPpO2", "min-ppo2", Title("Nitrox", "Minimum ppO2"), bar}};
constexpr std::array blendInputs{
    CalculatorInput{"pressionInitialeField", "start-pressure", Title("Nitrox", "Pressure in the tank"), bar},
    CalculatorInput{"fracO2InitialeField", "start-o2", Title("Nitrox", "Oxygen in the tank"), percent},
    CalculatorInput{"pressionFinaleField", "end-pressure", Title("Nitrox", "Wanted pressure"), bar},
    CalculatorInput{"fracO2FinaleField", "end-o2", Title("Nitrox", "Wanted oxygen"), percent}};

constexpr CalculatorInput trimixOxygen{"fracO2TxField", "o2", Title("Trimix", "Oxygen of the mix"), percent};
constexpr std::array eadEndInputs{trimixOxygen,
                                  CalculatorInput{"fracHeTxField", "he", Title("Trimix", "Helium of the mix"), percent},
                                  CalculatorInput{"profondeurMaxField", "depth", Title("Trimix", "Depth"), metres}};
constexpr std::array profMinInputs{trimixOxygen};
constexpr std::array bestTrimixInputs{
    CalculatorInput{"depthTxField", "depth", Title("Trimix", "Planned depth"), metres},
    CalculatorInput{"ENDField", "end", Title("Trimix", "Wanted narcotic depth"), metres},
    CalculatorInput{"ppO2Field", "ppo2", Title("Trimix", "Wanted ppO2"), bar}};

constexpr std::array sodaTimeInputs{
    CalculatorInput{"sodaWeightField", "weight", Title("Rebreather", "Absorbent weight"), "kg"},
    CalculatorInput{"sodaCapacityField", "capacity", Title("Rebreather", "Absorbent capacity"), "l/kg"},
    CalculatorInput{"metabolicProductionField", "production", Title("Rebreather", "Carbon dioxide production"),
                    litresPerMinute}};
constexpr std::array breathedFractionInputs{
    CalculatorInput{"brEanxField", "o2", Title("Rebreather", "Oxygen of the supply"), percent},
    CalculatorInput{"brFlowField", "flow", Title("Rebreather", "Supply flow"), litresPerMinute},
    CalculatorInput{"brMetabolicField", "consumption", Title("Rebreather", "Oxygen consumption"), litresPerMinute}};
constexpr std::array idealFlowInputs{
    CalculatorInput{"idEanxField", "o2", Title("Rebreather", "Oxygen of the supply"), percent},
    CalculatorInput{"idMetabolicField", "consumption", Title("Rebreather", "Oxygen consumption"), litresPerMinute},
    CalculatorInput{"idRealFracO2Field", "fraction", Title("Rebreather", "Wanted breathed oxygen"), percent}};

// The constants that the formula lines show.

constexpr std::array noConstants = std::array<double, 0>{};
constexpr std::array airNitrogen{airNitrogenFraction};
constexpr std::array oxygenWindowConstants{highestPpO2, airNitrogenFraction};
constexpr std::array airNitrogenShare{airNitrogenPercent};
constexpr std::array minimumDepthConstants{lowestPpO2, leastHypoxicOxygen, mostHypoxicOxygen};
constexpr std::array airOxygen{airOxygenPercent};
constexpr std::array supplyFlows{lowestSupplyFlow, highestSupplyFlow};

// The inputs that make a result useless, named beside their fields.

constexpr Title givesInfinity("Calculators", "Gives infinity");
constexpr Title givesNegativeDepth("Calculators", "Gives a negative depth");
constexpr Title isNegative("Calculators", "Is negative");
constexpr std::array faultWords{givesInfinity, givesNegativeDepth, isNegative};

void nameInfinity(CalculatorResult& result, double figure, std::size_t input) {
    if (!std::isfinite(figure)) {
        result.faults.push_back({input, givesInfinity});
    }
}

void nameDepth(CalculatorResult& result, double depth, std::size_t input) {
    nameInfinity(result, depth, input);
    if (std::isfinite(depth) && depth < 0) {
        result.faults.push_back({input, givesNegativeDepth});
    }
}

void nameNegative(CalculatorResult& result, Values in, std::size_t input) {
    if (in[input] < 0) {
        result.faults.push_back({input, isNegative});
    }
}

/// Of a mix and the depth it is breathed at: the mix where it gives a negative depth everywhere, else the depth.
std::size_t mixOrDepth(Values in, std::size_t mix, std::size_t depth) {
    return in[mix] >= 100 ? mix : depth;
}

// The evaluations.

CalculatorResult profMax(Values in) {
    const double mod = maximumOperatingDepth(in[0], in[1]);
    CalculatorResult result{fillFormat(QStringLiteral("MOD : %.1f m"), {mod}), {{"mod", mod}}, {}};
    nameDepth(result, mod, 0);
    return result;
}

CalculatorResult bestMixPage(Values in) {
    const double oxygen = bestMix(in[0], in[1]);
    CalculatorResult result{textWith(Title("Nitrox", "Best Mix"), oxygen), {{"o2", oxygen}}, {}};
    nameInfinity(result, oxygen, 0);
    nameNegative(result, in, 0);
    return result;
}

CalculatorResult profEquivalente(Values in) {
    const double ead = equivalentAirDepth(in[0], in[1]);
    CalculatorResult result{fillFormat(QStringLiteral("EAD : %.1f m"), {ead}), {{"ead", ead}}, {}};
    nameDepth(result, ead, mixOrDepth(in, 0, 1));
    return result;
}

CalculatorResult oxygenWindowPage(Values in) {
    const OxygenWindow window = oxygenWindow(in[0], in[1]);
    CalculatorResult result{
        textWith(Title("Nitrox", "Oxygen window"), window.deepest, window.shallowest, window.nitrogenNeutral),
        {{"a", window.deepest}, {"b", window.shallowest}, {"c", window.nitrogenNeutral}},
        {}};
    nameDepth(result, window.deepest, 0);
    if (result.faults.empty()) {
        nameDepth(result, window.shallowest, 1);
    }
    return result;
}

CalculatorResult blendNitrox(Values in) {
    const Blend result = blend(in[0], in[1], in[2], in[3]);
    CalculatorResult shown{textWith(Title("Nitrox", "Oxygen to transfer"), result.oxygen, result.topUp),
                           {{"oxygen", result.oxygen}, {"topUp", result.topUp}},
                           {}};
    nameInfinity(shown, result.topUp, 2);
    return shown;
}

CalculatorResult calcEadEnd(Values in) {
    const EquivalentDepths depths = trimixEquivalentDepths(in[0], in[1], in[2]);
    CalculatorResult result{
        textWith(Title("Trimix", "EAD END"), depths.ead, depths.end), {{"ead", depths.ead}, {"end", depths.end}}, {}};
    nameDepth(result, depths.end, mixOrDepth(in, 1, 2));
    return result;
}

CalculatorResult profMin(Values in) {
    const std::optional<double> depth = trimixMinimumDepth(in[0]);
    if (!depth) {
        return {text(Title("Main", "No valid datas")), {{"valid", false}}, {}};
    }
    return {textWith(Title("Trimix", "Prof min"), *depth), {{"valid", true}, {"depth", *depth}}, {}};
}

CalculatorResult calcBestTx(Values in) {
    const TrimixShares mix = bestTrimix(in[0], in[1], in[2]);
    CalculatorResult result{
        textWith(Title("Trimix", "Best Tx"), mix.oxygen, mix.helium), {{"o2", mix.oxygen}, {"he", mix.helium}}, {}};
    nameInfinity(result, mix.oxygen, 0);
    nameNegative(result, in, 0);
    nameNegative(result, in, 1);
    return result;
}

CalculatorResult calcSodaTime(Values in) {
    const SodaTime time = sodaTime(in[0], in[1], in[2]);
    CalculatorResult result{textWith(Title("Rebreather", "Soda time"), time.hours, time.minutes),
                            {{"hours", time.hours}, {"minutes", time.minutes}},
                            {}};
    nameInfinity(result, in[0] * in[1] / in[2], 2);
    return result;
}

CalculatorRow tableRow(Title format, double consumption, double value, RowColour colour) {
    return {consumption, value, colour, textWith(format, consumption, value)};
}

CalculatorResult calcBreathedFracO2(Values in) {
    const double fraction = breathedFraction(in[0], in[1], in[2]);
    CalculatorResult result{textWith(Title("Rebreather", "Breathed frac"), fraction), {{"fraction", fraction}}, {}};
    for (const double consumption : tableConsumptions) {
        const double value = breathedFraction(in[0], in[1], consumption);
        result.rows.push_back(
            tableRow(Title("Rebreather", "Table breathed frac"), consumption, value, breathedFractionColour(value)));
    }
    nameInfinity(result, fraction, 1);
    return result;
}

CalculatorResult calcIdealFlow(Values in) {
    const double flow = idealFlow(in[0], in[1], in[2]);
    CalculatorResult result{textWith(Title("Rebreather", "Ideal flow"), flow), {{"flow", flow}}, {}};
    for (const double consumption : tableConsumptions) {
        const double value = idealFlow(in[0], consumption, in[2]);
        result.rows.push_back(tableRow(Title("Rebreather", "Table flow"), consumption, value, idealFlowColour(value)));
    }
    nameInfinity(result, flow, 2);
    return result;
}

const std::array<CalculatorPage, 11> pages{{
    {CalculatorId::ProfMax, profMaxInputs, "resultatField", Title("Nitrox", "MOD formula"), noConstants, profMax},
    {CalculatorId::BestMix, bestMixInputs, "resultatField", Title("Nitrox", "Best mix formula"), noConstants,
     bestMixPage},
    {CalculatorId::EquivalentDepth, equivalentDepthInputs, "resultatField", Title("Nitrox", "EAD formula"), airNitrogen,
     profEquivalente},
    {CalculatorId::OxygenWindow, oxygenWindowInputs, "winResult", Title("Nitrox", "Oxygen window formula"),
     oxygenWindowConstants, oxygenWindowPage},
    {CalculatorId::BlendNitrox, blendInputs, "resultatField", Title("Nitrox", "Blending formula"), airNitrogenShare,
     blendNitrox},
    {CalculatorId::TrimixEadEnd, eadEndInputs, "resultatField", Title("Trimix", "EAD END formula"), airNitrogen,
     calcEadEnd},
    {CalculatorId::TrimixProfMin, profMinInputs, "resultatField", Title("Trimix", "Minimum depth formula"),
     minimumDepthConstants, profMin},
    {CalculatorId::BestTrimix, bestTrimixInputs, "resultatField", Title("Trimix", "Best trimix formula"), airNitrogen,
     calcBestTx},
    {CalculatorId::SodaTime, sodaTimeInputs, "sodaTimeField", Title("Rebreather", "Soda formula"), noConstants,
     calcSodaTime},
    {CalculatorId::BreathedFraction, breathedFractionInputs, "breathedFracO2Field",
     Title("Rebreather", "Breathed fraction formula"), noConstants, calcBreathedFracO2, "c",
     Title("Rebreather", "Breathed fraction legend"), airOxygen},
    {CalculatorId::IdealFlow, idealFlowInputs, "idealFlowField", Title("Rebreather", "Ideal flow formula"), noConstants,
     calcIdealFlow, "d", Title("Rebreather", "Ideal flow legend"), supplyFlows},
}};

QString withConstants(Title key, Values constants) {
    std::vector<FormatArgument> arguments;
    for (const double constant : constants) {
        arguments.push_back(formatArgument(constant));
    }
    return fillFormat(text(key), arguments);
}

}  // namespace

std::span<const CalculatorPage> calculatorPages() {
    return pages;
}

const CalculatorPage* calculatorPage(CalculatorId id) {
    const auto page =
        std::find_if(pages.begin(), pages.end(), [&](const CalculatorPage& each) { return each.id == id; });
    return page == pages.end() ? nullptr : &*page;
}

std::span<const Title> inputFaultWords() {
    return faultWords;
}

QString formulaLine(const CalculatorPage& page) {
    return withConstants(page.formula, page.formulaConstants);
}

QString rowLegend(const CalculatorPage& page) {
    return withConstants(page.rowLegend, page.rowLegendConstants);
}

QString rowField(const CalculatorPage& page, std::size_t row) {
    return QStringLiteral("%1%2Field")
        .arg(QLatin1StringView(page.rowFieldLetter))
        .arg(std::lround(tableConsumptions[row] * 10), 2, 10, QLatin1Char('0'));
}

QString ppO2Title(double ppO2) {
    return shortestText(ppO2);
}

}  // namespace tavrel
