#pragma once

#include "records/date.h"

#include <cmath>

namespace tavrel {

/// What stands for no date in the forms of record books: 1 January 1900 00:00:00 in the user's time zone.
inline Date noDate() {
    return Date::fromDateTime(QDate(1900, 1, 1).startOfDay());
}

/// Whether it is that, in whatever time zone it was stored, or nothing at all.
inline bool isNoDate(const Date& date) {
    constexpr double start1900 = -3187296000;  // in UTC, seconds since 2001: 36,890 days
    constexpr double farthestZone = 15 * 3600;
    return date.isNull() || std::abs(date.secondsSince2001() - start1900) <= farthestZone;
}

}  // namespace tavrel
