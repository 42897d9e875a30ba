#include "base/numbers.h"
#include "interchange/diveimport.h"

namespace tavrel {

namespace {

/// What the program takes off kelvins; not 273.15.
constexpr double kelvinOffset = 273.1;

Expected<void> fill(XmlElement dive, DiveForm& form) {
    const DiveControls& controls = form.controls();
    form.state().setDate(controls.dateField, GetCalendarDateFromElementUDDF(dive.last("date")));
    form.state().setDate(controls.heureField, GetCalendarDateFromElementUDDF(dive.last("time")));
    resetConditions(form);
    const auto celsius = [&](const char* name) { return truncated(doubleOf(dive.last(name)) - kelvinOffset); };
    form.state().setInteger(controls.tempAirField, celsius("airtemperature"));
    form.state().setInteger(controls.tempEauField, celsius("lowesttemperature"));
    form.state().setText(controls.profondeurField, dive.last("greatestdepth").text());
    form.state().setText(controls.notesField, dive.last("notes").last("text").text());

    std::vector<float> depths;
    std::string buffer;
    XmlElement lastWaypoint;
    for (const XmlElement waypoint : dive.last("samples").children("waypoint")) {
        // The depth is the number that the waypoint's text begins with, whatever element it comes from.
        depths.push_back(floatInFile(waypoint.text(buffer)));
        lastWaypoint = waypoint;
    }
    typeProfile(form, depths);
    for (const XmlElement seconds : lastWaypoint.children("divetime")) {
        form.state().setInteger(controls.tempsField, integerOf(seconds) / 60);
    }
    return {};
}

}  // namespace

const DiveSource uddfSource{"profiledata", "repetitiongroup", "dive", fill};

}  // namespace tavrel
