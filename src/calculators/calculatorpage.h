#pragma once

#include "calculators/calculators.h"
#include "calculators/rebreather.h"

#include <QString>

#include <span>
#include <variant>
#include <vector>

namespace tavrel {

enum class CalculatorInputKind {
    Number,    ///< a text field
    PpO2Menu,  ///< the menu of oxygen partial pressures
};

struct CalculatorInput {
    const char* field;   ///< the window's field
    const char* option;  ///< on the command line
    Title label;         ///< with its mnemonic and its letter in the formula
    const char* unit;
    CalculatorInputKind kind = CalculatorInputKind::Number;
};

/// A figure of a result, unrounded.
struct CalculatorFigure {
    const char* key;
    std::variant<double, qint32, bool> value;
};

struct CalculatorRow {
    double consumption;
    double value;
    RowColour colour;
    QString text;
};

/// What an input does to a result that no diver can use.
struct InputFault {
    std::size_t input;  ///< its place among the page's inputs
    Title words;
};

struct CalculatorResult {
    QString text;  ///< as shown, lines parted by line feeds
    std::vector<CalculatorFigure> figures;
    std::vector<CalculatorRow> rows;      ///< empty on pages without a table
    std::vector<InputFault> faults = {};  ///< inputs that give infinity or a negative depth
};

/// A page that computes one result text from a few inputs. The windows, the command line and its JSON are made from it.
struct CalculatorPage {
    CalculatorId id;
    std::span<const CalculatorInput> inputs;
    const char* resultField;
    Title formula;  ///< the rule in divers' notation, with a %@ for each constant
    std::span<const double> formulaConstants;
    /// The values in the order of `inputs`.
    CalculatorResult (*evaluate)(std::span<const double> values);
    const char* rowFieldLetter = nullptr;  ///< the row fields' first letter, on pages with a table
    Title rowLegend{};                     ///< what the rows' colour says, with a %@ for each of its constants
    std::span<const double> rowLegendConstants{};
};

std::span<const CalculatorPage> calculatorPages();
/// The page of a calculator; null for the conversions and the GPS window, which have forms of their own.
const CalculatorPage* calculatorPage(CalculatorId id);

/// All words that a fault may be told in.
std::span<const Title> inputFaultWords();

/// The formula line and the legend with their constants filled in.
QString formulaLine(const CalculatorPage& page);
QString rowLegend(const CalculatorPage& page);

/// The field of a row: a letter and the consumption in tenths, "c08Field" to "c18Field".
QString rowField(const CalculatorPage& page, std::size_t row);

/// The menu's title for a partial pressure.
QString ppO2Title(double ppO2);

}  // namespace tavrel
