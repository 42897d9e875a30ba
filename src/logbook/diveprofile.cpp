#include "logbook/diveprofile.h"

#include "base/texts.h"
#include "dives/divecodes.h"
#include "logbook/carnet.h"
#include "profile/profiledrawing.h"

namespace tavrel {

namespace {

/// The set point of its code, bar.
std::optional<double> setPointOf(qint32 code) {
    const int tenths = SetPoint::tenthsOfBar(code);
    return tenths == 0 ? std::nullopt : std::optional(tenths / 10.0);
}

}  // namespace

ProfileDive profileDiveOf(const Plongee& dive) {
    ProfileDive drawn;
    drawn.series = static_cast<const ProfileSeries&>(dive);
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

ProfileDive profileDiveOf(const DiveForm& form) {
    const auto& fields = form.state();
    const DiveControls& controls = form.controls();
    ProfileDive drawn;
    drawn.series = form.profile();
    drawn.series.profilArraysDefaultContent();
    drawn.samplingRate = fields.tag(controls.samplingRatePopUp);
    drawn.fracO2 = fields.integer(controls.o2MixField[0]);
    drawn.ppO2 = fields.tag(controls.ppO2PopUp);
    for (std::size_t level = 0; level < drawn.ean.size(); ++level) {
        drawn.ean[level] = fields.integer(controls.decoO2_Level_Field[level]);
    }
    drawn.pressDepart = fields.integer(controls.departField[0]);
    drawn.pressFin = fields.integer(controls.finField[0]);
    if (Apparatus::isClosed(fields.tag(controls.rebreatherMatrix))) {
        drawn.setPoint = setPointOf(drawn.ppO2);
    }
    return drawn;
}

QString profileTitle(qint32 number) {
    return textWith("Carnet", "Profile of dive", number);
}

Drawing profileDrawing(const Plongee& dive, const Preferences& preferences) {
    Drawing drawing = profileDrawing(profileDiveOf(dive), ProfileStyle::read(preferences));
    drawing.title = profileTitle(dive.noPlongee);
    return drawing;
}

void importProfil(Carnet& carnet, const SeriesTexts& texts) {
    importProfil(carnet.form().profile(), texts);
    if (carnet.shownRow() >= 0) {
        carnet.updateDive();
        carnet.editFields();
    } else {
        Q_EMIT carnet.form().userEdited();
        carnet.updateUI();
    }
}

}  // namespace tavrel
