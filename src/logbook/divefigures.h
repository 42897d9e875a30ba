#pragma once

#include "base/texts.h"
#include "dives/gasreadings.h"
#include "dives/plongee.h"

#include <QString>

#include <vector>

namespace tavrel {

class DiveForm;
struct Desktop;

/// What the gas figures of a stored dive are worked out from: what the dive form shows of it.
GasReadings gasReadingsOf(const Plongee& dive, Desktop& desktop);

/// A figure of a dive at a glance. The explanation tells the formula with the numbers put in, or why there is no text.
struct KeyFigure {
    Title label;
    QString text;
    QString explanation;
};

/// Depths, time, gas, consumption, oxygen clock and temperatures of a dive. The form is to read the dive with; what it
/// held is gone.
std::vector<KeyFigure> keyFigures(const Plongee& dive, DiveForm& form);

}  // namespace tavrel
