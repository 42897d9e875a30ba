#pragma once

#include "base/texts.h"

#include <QString>

#include <span>
#include <vector>

namespace tavrel {

/// One unit of a conversion tab. The first carries tag 1, the second of three tag 2, the last any other tag.
struct ConversionUnit {
    const char* name;    ///< on the command line and in its output
    const char* field;   ///< the window's field
    const char* symbol;  ///< behind a figure
    Title label;
    int tag;  ///< of its radio button
};

/// A tab of the conversions page: units of one quantity.
struct ConversionTab {
    const char* identifier;  ///< of the tab
    const char* radioGroup;  ///< the group that chooses the source unit
    Title title;
    std::span<const ConversionUnit> units;
    /// The value of every unit, in the order of `units`, from a value in the unit of the tag; that value comes back as
    /// it is.
    std::vector<double> (*convert)(int sourceTag, double value);
    /// The rules with their factors, one line.
    QString (*formula)();
};

/// Pressure, volume, length, mass, temperature. US units; nothing is rounded.
std::span<const ConversionTab> conversionTabs();

/// The tab that holds the unit of this name, and the unit's place in it; null for an unknown name.
struct FoundUnit {
    const ConversionTab* tab = nullptr;
    std::size_t position = 0;
};
FoundUnit conversionUnit(const QString& name);

/// A value in another unit of the same quantity, both by their names, which have to be known.
double inUnit(const char* to, const char* from, double value);

}  // namespace tavrel
