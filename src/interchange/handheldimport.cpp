#include "interchange/diveimport.h"

#include <array>

namespace tavrel {

namespace {

/// Fields that a missing element leaves as the cleared form has them.
void typeFields(DiveForm& form, XmlElement dive) {
    const DiveControls& controls = form.controls();
    using Field = std::pair<const char*, DiveControls::Id>;
    const std::array<Field, 2> texts{{{"place", controls.lieuField}, {"site", controls.siteField}}};
    const std::array<Field, 4> menus{{{"weather", controls.meteoPopUp},
                                      {"current", controls.courantPopUp},
                                      {"visibility", controls.visibilitePopUp},
                                      {"divetype", controls.typePlongeePopUp}}};
    // The doubled r is how these files spell the air temperature.
    const std::array<Field, 5> numbers{{{"maxdepth", controls.profondeurField},
                                        {"divetime", controls.tempsField},
                                        {"watertemperature", controls.tempEauField},
                                        {"airrtemperature", controls.tempAirField},
                                        {"altitude", controls.altitudeField}}};
    const auto each = [&](const auto& fields, auto type) {
        for (const auto& [name, field] : fields) {
            if (const XmlElement element = dive.last(name); !element.isNull()) {
                type(field, element);
            }
        }
    };
    each(texts, [&](auto field, XmlElement element) { form.state().setText(field, element.text()); });
    form.state().setDate(controls.dateField, GetCalendarDateFromElementUDCF(dive.last("date")));
    form.state().setDate(controls.heureField, GetCalendarDateFromElementUDCF(dive.last("time")));
    each(menus, [&](auto field, XmlElement element) { form.state().selectPosition(field, integerOf(element)); });
    each(numbers, [&](auto field, XmlElement element) { form.state().setInteger(field, integerOf(element)); });
}

Expected<void> fill(XmlElement dive, DiveForm& form) {
    typeFields(form, dive);
    typeSurfaceInterval(form, dive.last("surfaceinterval"));
    return required(dive, "gases")
        .and_then([](XmlElement gases) { return required(gases, "mix"); })
        .and_then([&](XmlElement mix) {
            typeMix(form, doubleOf(mix.last("o2")), doubleOf(mix.last("he")));
            return required(mix, "tank");
        })
        .map([&](XmlElement tank) { typeTank(form, tank, "tankvolume", "pstart", "pend"); });
}

}  // namespace

const DiveSource handheldSource{nullptr, "repgroup", "dive", fill};

}  // namespace tavrel
