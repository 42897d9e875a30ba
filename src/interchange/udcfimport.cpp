#include "base/numbers.h"
#include "interchange/diveimport.h"

#include <algorithm>

namespace tavrel {

namespace {

/// The sampling code of an interval in seconds; other intervals leave the menu as it is.
void chooseSamplingRate(DiveForm& form, qint32 seconds) {
    const auto code = std::find(samplingIntervals.begin(), samplingIntervals.end(), seconds);
    if (code != samplingIntervals.end()) {
        form.state().setTag(form.controls().samplingRatePopUp, static_cast<int>(code - samplingIntervals.begin()));
    }
}

void typeSamples(DiveForm& form, XmlElement samples) {
    const qint32 delta = integerOf(samples.last("DELTA"));
    // The dive time is the sampling interval; the time that the file gives is not read.
    form.state().setInteger(form.controls().tempsField, delta);
    std::vector<float> depths;
    std::string buffer;
    qint32 maximum = 0;
    for (const XmlElement sample : samples.children("D")) {
        const float depth = floatInFile(sample.text(buffer));
        depths.push_back(depth);
        if (static_cast<double>(depth) > maximum) {
            maximum = truncated(static_cast<double>(depth));
        }
    }
    typeProfile(form, depths);
    chooseSamplingRate(form, delta);
    form.state().setInteger(form.controls().profondeurField, maximum);
}

Expected<void> fill(XmlElement dive, DiveForm& form) {
    const DiveControls& controls = form.controls();
    if (const XmlElement place = dive.last("PLACE"); !place.isNull()) {
        form.state().setText(controls.lieuField, place.text());
    }
    form.state().setDate(controls.dateField, GetCalendarDateFromElementUDCF(dive.last("DATE")));
    form.state().setDate(controls.heureField, GetCalendarDateFromElementUDCF(dive.last("TIME")));
    resetConditions(form);
    form.state().setText(controls.tempEauField, dive.last("TEMPERATURE").text());
    form.state().setText(controls.altitudeField, dive.last("ALTITUDE").text());
    typeSurfaceInterval(form, dive.last("SURFACEINTERVAL"));
    return required(dive, "SAMPLES")
        .map([&](XmlElement samples) { typeSamples(form, samples); })
        .and_then([&] { return required(dive, "GASES"); })
        .and_then([](XmlElement gases) { return required(gases, "MIX"); })
        .and_then([&](XmlElement mix) {
            typeMix(form, doubleOf(mix.last("O2")), doubleOf(mix.last("HE")));
            return required(mix, "TANK");
        })
        .map([&](XmlElement tank) { typeTank(form, tank, "TANKVOLUME", "PSTART", "PEND"); });
}

}  // namespace

const DiveSource udcfSource{nullptr, "REPGROUP", "DIVE", fill};

}  // namespace tavrel
