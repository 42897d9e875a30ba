#include "logbook/divefigures.h"

#include "base/numbers.h"
#include "desktop/commonsettings.h"
#include "desktop/desktop.h"
#include "desktop/preferences.h"
#include "dives/consumption.h"
#include "dives/divecodes.h"
#include "logbook/divecells.h"
#include "logbook/diveform.h"

namespace tavrel {

namespace {

KeyFigure figure(const Title& label, const ExplainedFigure& explained) {
    return {label, explained.text, explained.explanation};
}

KeyFigure temperature(const Title& label, qint32 degrees, bool usUnits) {
    if (degrees == temperatureNotGiven) {
        return {label, {}, text("Carnet", "Unknown temperature")};
    }
    return {label, textWith(usUnits ? Title("Carnet", "Farenheit") : Title("Carnet", "Celsius"), degrees), {}};
}

}  // namespace

GasReadings gasReadingsOf(const Plongee& dive, Desktop& desktop) {
    DiveForm form(desktop);
    form.editFields(dive);
    return form.gasReadings();
}

std::vector<KeyFigure> keyFigures(const Plongee& dive, DiveForm& form) {
    form.editFields(dive);
    const GasReadings readings = form.gasReadings();
    const Desktop& desktop = form.desktop();
    DiveTableStyle style(desktop.preferences, desktop.clock);
    style.displayUnits = true;
    const auto cellText = [&](std::string_view field, const QString& plain) {
        Cell cell;
        cell.text = plain;
        describeDiveCell(dive, field, style, cell);
        return cell.text;
    };
    const bool usUnits = desktop.preferences.get(settings::usUnits);
    const OxygenExposure oxygen = oxygenExposure(readings);
    return {
        {{"Carnet", "Label maximum depth"}, cellText("profondeur", shortestText(dive.profondeur)), {}},
        figure({"Carnet", "Figure average depth"}, explainedAverageDepth(readings, usUnits)),
        {{"Carnet", "Label dive time"}, cellText("temps", QString::number(dive.temps)), {}},
        {{"Carnet", "Label gas"}, cellText("gaz", QString::number(dive.gaz)), {}},
        figure({"Carnet", "Figure gas used"}, explainedUsed(readings)),
        figure({"Carnet", "Figure SAC"}, explainedSac(readings)),
        figure({"Carnet", "Figure pressure per minute"}, explainedPerMinute(readings)),
        readings.minutes > 0 ? KeyFigure{{"Carnet", "Figure oxygen clock"}, oxygen.text, oxygen.explanation}
                             : KeyFigure{{"Carnet", "Figure oxygen clock"}, {}, text("Carnet", "Unknown without time")},
        temperature({"Carnet", "Figure water"}, dive.tempEau, usUnits),
        temperature({"Carnet", "Figure air"}, dive.tempAir, usUnits),
    };
}

}  // namespace tavrel
