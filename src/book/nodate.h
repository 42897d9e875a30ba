#pragma once

#include "records/date.h"

namespace tavrel {

/// What stands for no date in the forms of record books: 1 January 1900 00:00:00 in the user's time zone.
inline Date noDate() {
    return Date::fromDateTime(QDate(1900, 1, 1).startOfDay());
}

/// Whether it is that, or nothing at all.
inline bool isNoDate(const Date& date) {
    return date.isNull() || date == noDate();
}

}  // namespace tavrel
