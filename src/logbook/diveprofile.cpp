#include "logbook/diveprofile.h"

#include "base/texts.h"
#include "dives/divecodes.h"
#include "logbook/carnet.h"
#include "profile/profiledrawing.h"

namespace tavrel {

namespace {

/// The set point of its code, bar: 1.2 to 1.6 for 1 to 5, then down from 1.1 to 0.7 for 6 to 10.
std::optional<double> setPointOf(qint32 code) {
    if (code < 1 || code > 10) {
        return std::nullopt;
    }
    return (code <= 5 ? 11 + code : 17 - code) / 10.0;
}

}  // namespace

ProfileDive profileDiveOf(const Plongee& dive) {
    ProfileDive drawn;
    drawn.series = dive;
    drawn.series.profilArraysDefaultContent();
    drawn.samplingRate = dive.samplingRate;
    drawn.fracO2 = dive.o2Mix;
    drawn.ppO2 = dive.ppO2;
    drawn.ean = {dive.decoO2_Level_1, dive.decoO2_Level_2, dive.decoO2_Level_3,
                 dive.decoO2_Level_4, dive.decoO2_Level_5, dive.decoO2_Level_6};
    drawn.pressDepart = dive.pressionDepart;
    drawn.pressFin = dive.pressionFin;
    if (Apparatus::isClosed(dive.rebreather)) {
        drawn.setPoint = setPointOf(dive.ppO2);
    }
    return drawn;
}

Drawing profileDrawing(const Plongee& dive, const Preferences& preferences) {
    Drawing drawing = profileDrawing(profileDiveOf(dive), ProfileStyle::read(preferences));
    drawing.title = textWith("Carnet", "Profile of dive", dive.noPlongee);
    return drawing;
}

void importProfil(Carnet& carnet, const SeriesTexts& texts) {
    importProfil(carnet.form().profile(), texts);
    carnet.updateDive();
    carnet.editFields();
}

}  // namespace tavrel
