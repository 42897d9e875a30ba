#include "interchange/diveimport.h"

#include "base/numbers.h"
#include "dives/divecodes.h"

#include <array>
#include <span>

namespace tavrel {

namespace {

constexpr CalendarNames lowerCaseCalendar{"year", "month", "day", "time", "hour", "minute"};

constexpr qint64 minutesOfDay = 1440;

/// Floor division for the carry of calendar numbers.
qint64 floorDivided(qint64 value, qint64 by) {
    return value / by - (value % by < 0 ? 1 : 0);
}

/// The day number of the first day of a month (from 0, carried over) of a year that counts through 0.
qint64 julianDayOfMonth(qint64 year, qint64 month) {
    const qint64 carriedYear = year + floorDivided(month, 12);
    const qint64 monthOfYear = month - floorDivided(month, 12) * 12;
    // By eras of 400 years, which all have 146097 days, from a year that the calendar class knows.
    const qint64 era = floorDivided(carriedYear, 400);
    const QDate inEra(static_cast<int>(carriedYear - era * 400) + 2000, static_cast<int>(monthOfYear) + 1, 1);
    return inEra.toJulianDay() + (era - 5) * 146097;
}

}  // namespace

qint32 integerOf(XmlElement element) {
    std::string buffer;
    return integerInFile(element.text(buffer));
}

double doubleOf(XmlElement element) {
    std::string buffer;
    return doubleInFile(element.text(buffer));
}

Date calendarDate(XmlElement element, const CalendarNames& names) {
    const XmlElement time = element.parent().last(names.time);
    const qint64 minutes = qint64(60) * integerOf(time.last(names.hour)) + integerOf(time.last(names.minute));
    const qint64 carriedDays = floorDivided(minutes, minutesOfDay);
    const qint64 day =
        julianDayOfMonth(integerOf(element.last(names.year)), qint64(integerOf(element.last(names.month))) - 1) +
        integerOf(element.last(names.day)) - 1 + carriedDays;
    const QTime clock =
        QTime::fromMSecsSinceStartOfDay(static_cast<int>(minutes - carriedDays * minutesOfDay) * 60'000);
    return Date::ofLocalTime(QDate::fromJulianDay(day), clock);
}

Date GetCalendarDateFromElementUDCF(XmlElement element) {
    return calendarDate(element, upperCaseCalendar);
}

Date GetCalendarDateFromElementUDDF(XmlElement element) {
    return calendarDate(element, lowerCaseCalendar);
}

void typeMix(DiveForm& form, double oxygenFraction, double heliumFraction) {
    const double oxygen = oxygenFraction * 100;
    const double helium = heliumFraction * 100;
    const double nitrogen = 100 - oxygen - helium;
    const DiveControls& controls = form.controls();
    const auto choose = [&](Gas::Code gas) { form.state().setTag(controls.gazPopUp[0], gas); };
    // The first test that holds decides; the last one never does, as trimix takes all of its mixes before.
    if (oxygen == 21 && nitrogen == 79) {
        choose(Gas::air);
    } else if (oxygen > 21 && helium == 0) {
        choose(Gas::nitrox);
    } else if (helium > 0 && nitrogen > 0) {
        choose(Gas::trimix);
    } else if (helium > 0 && nitrogen == 0) {
        choose(Gas::heliox);
    } else if (helium > 21 && nitrogen > 0) {
        choose(Gas::triox);
    }
    form.state().setInteger(controls.o2MixField[0], truncated(oxygen));
    form.state().setInteger(controls.heMixField[0], truncated(helium));
    form.state().setInteger(controls.n2MixField[0], truncated(nitrogen));
}

void typeTank(DiveForm& form, XmlElement tank, const char* volume, const char* start, const char* end) {
    const DiveControls& controls = form.controls();
    const std::array<std::pair<const char*, DiveControls::Id>, 3> fields{{
        {volume, controls.volumeBlocField[0]},
        {start, controls.departField[0]},
        {end, controls.finField[0]},
    }};
    for (const auto& [name, field] : fields) {
        if (const XmlElement value = tank.last(name); !value.isNull()) {
            form.state().setText(field, value.text());
        }
    }
}

void typeSurfaceInterval(DiveForm& form, XmlElement interval) {
    std::string buffer;
    if (interval.text(buffer) == "infinity") {
        form.state().setText(form.controls().surfaceField, QStringLiteral("--:--"));
    }
}

void resetConditions(DiveForm& form) {
    const DiveControls& controls = form.controls();
    form.state().setTag(controls.meteoPopUp, Weather::notGiven);
    form.state().setTag(controls.courantPopUp, Current::notGiven);
    form.state().setTag(controls.visibilitePopUp, Visibility::notGiven);
    form.state().setTag(controls.typePlongeePopUp, DiveKind::other);
}

void typeProfile(DiveForm& form, const std::vector<float>& depths) {
    ProfileSeries& profile = form.profile();
    profile.profilProfondeur.clear();
    profile.profilProfondeur.append(std::span(depths));
    Series flags = Series::empty();
    flags.append(std::span<const std::int8_t>(std::vector<std::int8_t>(depths.size(), 0)));
    for (const auto series : {&ProfileSeries::ASC_Flag, &ProfileSeries::SLOW_Flag, &ProfileSeries::CEIL_Flag,
                              &ProfileSeries::SURF_Flag, &ProfileSeries::GAZ_Flag}) {
        profile.*series = flags;
    }
}

Expected<XmlElement> required(XmlElement parent, const char* name) {
    const XmlElement element = parent.first(name);
    if (element.isNull()) {
        return failure(textWith("Carnet", "Import element missing", QString::fromLatin1(name)));
    }
    return element;
}

}  // namespace tavrel
