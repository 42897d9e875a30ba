#pragma once

#include "interchange/xml/xmltree.h"
#include "logbook/carnet.h"

namespace tavrel {

/// One format's part of an import: where its dives stand, and how one of them is typed into the cleared form. Of
/// several groups of dives the last is taken. Filling fails at a dive that lacks an element which it cannot do without.
struct DiveSource {
    const char* groupsIn;  ///< the element of the root that holds the groups; null: the root itself
    const char* groupName;
    const char* diveName;
    Expected<void> (*fill)(XmlElement dive, DiveForm& form);
};

extern const DiveSource udcfSource;
extern const DiveSource uddfSource;
extern const DiveSource handheldSource;

// What the formats share.

/// Number texts of a file as whole numbers; 0 for an element that is missing.
qint32 integerOf(XmlElement element);
double doubleOf(XmlElement element);

/// The names of the parts of a date. Year, month and day stand in the element itself, hour and minute in the last time
/// element beside it.
struct CalendarNames {
    const char *year, *month, *day, *time, *hour, *minute;
};
inline constexpr CalendarNames upperCaseCalendar{"YEAR", "MONTH", "DAY", "TIME", "HOUR", "MINUTE"};

/// The moment of an element in the user's time zone, second 0. What is missing counts as 0, and numbers outside their
/// range carry over: day 0 of month 0 of year 0 is 30 November of the year before year 0. No date beyond the calendar.
Date calendarDate(XmlElement element, const CalendarNames& names);
Date GetCalendarDateFromElementUDCF(XmlElement element);
Date GetCalendarDateFromElementUDDF(XmlElement element);

/// Types the gas of a dive: its kind, where the fractions of oxygen and helium tell one, and the three percentages.
void typeMix(DiveForm& form, double oxygenFraction, double heliumFraction);
/// Types the volume and the pressures of a tank that stand in the file.
void typeTank(DiveForm& form, XmlElement tank, const char* volume, const char* start, const char* end);
/// The element text "infinity" is a surface interval that the form shows as "--:--".
void typeSurfaceInterval(DiveForm& form, XmlElement interval);
/// Chooses "not given" or "other" in the four menus of conditions, the last item of each.
void resetConditions(DiveForm& form);

/// The depths of an imported profile, and a 0 for each in the five series of flags. Replaces the single zero of a
/// cleared form, which stands for no profile; the pressures keep theirs.
void typeProfile(DiveForm& form, const std::vector<float>& depths);

/// The first element of a name, or why the dive cannot be taken.
Expected<XmlElement> required(XmlElement parent, const char* name);

}  // namespace tavrel
