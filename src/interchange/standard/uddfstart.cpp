#include "interchange/standard/uddfstart.h"

#include "interchange/standard/filevalues.h"

#include <algorithm>

namespace tavrel {

namespace {

/// A part of a date or a time: a child or an attribute.
std::optional<int> partOf(XmlElement element, const char* name) {
    auto value = numberOf(element.first(name));
    value = value ? value : numberOf(element.attribute(name));
    return value && *value >= 0 && *value < 10'000 ? std::optional(static_cast<int>(*value)) : std::nullopt;
}

QTime clockOf(XmlElement element) {
    if (const XmlElement inner = element.first("time"); !inner.isNull()) {
        return clockOf(inner);
    }
    const auto hour = partOf(element, "hour");
    if (!hour) {
        const QString words = element.firstElement().isNull() ? wordsOf(element) : QString();
        const auto moment = fileTime(words);
        return moment ? moment->time : fileClock(words);
    }
    const auto minute = partOf(element, "minute");
    return {*hour == 24 ? 0 : *hour, minute.value_or(0), std::min(partOf(element, "second").value_or(0), 59)};
}

/// The day of an element, with the time of day if it holds one.
std::optional<FileTime> momentOf(XmlElement element) {
    for (const char* name : {"datetime", "date"}) {
        if (const XmlElement inner = element.first(name); !inner.isNull()) {
            auto moment = momentOf(inner);
            if (moment) {
                moment->settleTime(clockOf(element));
            }
            return moment;
        }
    }
    const auto year = partOf(element, "year");
    const auto month = partOf(element, "month");
    const auto day = partOf(element, "day");
    if (!year || !month || !day) {
        return fileTime(wordsOf(element));
    }
    const auto date = fileDay(*year, *month, *day);
    return date ? std::optional(FileTime{*date, clockOf(element)}) : std::nullopt;
}

}  // namespace

std::optional<FileTime> uddfStart(const std::vector<XmlElement>& parts) {
    std::optional<FileTime> start;
    for (const char* name : {"datetime", "date"}) {
        for (const XmlElement part : parts) {
            for (const XmlElement element : part.children(name)) {
                start = start ? start : momentOf(element);
            }
        }
    }
    for (const XmlElement part : parts) {
        for (const XmlElement element : part.children("time")) {
            if (start) {
                start->settleTime(clockOf(element));
            }
        }
    }
    return start;
}

}  // namespace tavrel
