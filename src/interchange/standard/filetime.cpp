#include "interchange/standard/filetime.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace tavrel {

namespace {

constexpr int earliestYear = 1900;

/// A time of day, or 24:00, which is the midnight behind it.
struct Clock {
    QTime time;
    bool endsDay = false;
};

/// The time of day that a text begins with.
Clock clockAtStart(const QString& text) {
    static const QRegularExpression apart(QStringLiteral(
        R"(^\s*(\d{1,2})([:.-])(\d\d|(?<=:)\d)(?:\2(\d{1,2})(?![\d:])(?:[.,]\d+)?)?(?!\d)\s*(?:([AaPp])\.?\s?[Mm](?![A-Za-z]))?)"));
    static const QRegularExpression together(QStringLiteral(R"(^\s*(\d\d)()(\d\d)(\d\d)?(?!\d))"));
    auto match = apart.match(text);
    match = match.hasMatch() ? match : together.match(text);
    if (!match.hasMatch()) {
        return {};
    }
    int hour = match.captured(1).toInt();
    const int minute = match.captured(3).toInt();
    // A leap second's 60 is the last moment of what it belongs to.
    const int second = std::min(match.captured(4).toInt(), 59);
    const QString half = match.captured(5).toLower();
    if (half == u'p' && hour < 12) {
        hour += 12;
    } else if (half == u'a' && hour == 12) {
        hour = 0;
    }
    return hour == 24 ? Clock{QTime(0, 0), true} : Clock{QTime(hour, minute, second)};
}

/// The moment of a day and what stands behind it, where that is a time.
std::optional<FileTime> momentOf(std::optional<QDate> day, const QString& behind) {
    // A hyphen leads to an offset unless a time with its seconds follows.
    static const QRegularExpression between(QStringLiteral(R"(^(?:[T,\s]\s*|-(?=\d\d:\d\d:\d\d)))"));
    const Clock clock = clockAtStart(QString(behind).remove(between));
    if (!day) {
        return std::nullopt;
    }
    FileTime moment{day->addDays(clock.endsDay ? 1 : 0), clock.time};
    moment.endsDay = clock.endsDay;
    return moment;
}

}  // namespace

std::optional<QDate> fileDay(int year, int month, int day) {
    const QDate date(year, month, day);
    return date.isValid() && year >= earliestYear ? std::optional(date) : std::nullopt;
}

void FileTime::settleTime(const QTime& apart) {
    if (apart.isValid() && (!time.isValid() || time == QTime(0, 0))) {
        time = apart;
    }
}

QTime fileClock(const QString& text) {
    static const QRegularExpression day(QStringLiteral(R"(^\d{1,4}[-/.]\d{1,2}[-/.]\d{1,4}[T\s](?=\d))"));
    return clockAtStart(text.simplified().remove(day)).time;
}

std::optional<FileTime> fileTime(const QString& words) {
    // Blanks of any kind, which some languages have before PM.
    const QString text = words.simplified();
    static const QRegularExpression yearFirst(QStringLiteral(R"(^(\d{4})[-/.](\d{1,2})[-/.](\d{1,2}))"));
    static const QRegularExpression basic(QStringLiteral(R"(^(\d{4})(\d\d)(\d\d)(?=(?:T?\d{4}(?:\d\d)?)?(?!\d)))"));
    static const QRegularExpression yearLast(QStringLiteral(R"(^(\d{1,2})[-/.](\d{1,2})[-/.](\d{4}))"));
    for (const QRegularExpression& pattern : {yearFirst, basic}) {
        if (const auto match = pattern.match(text); match.hasMatch()) {
            const auto day = fileDay(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt());
            return momentOf(day, text.mid(match.capturedEnd()));
        }
    }
    const auto match = yearLast.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    int day = match.captured(1).toInt();
    int month = match.captured(2).toInt();
    const bool monthFirst = month > 12;
    if (monthFirst) {
        std::swap(day, month);
    }
    auto moment = momentOf(fileDay(match.captured(3).toInt(), month, day), text.mid(match.capturedEnd()));
    if (moment && day != month) {
        using Order = FileTime::Order;
        moment->order = monthFirst ? Order::monthFirst : day > 12 ? Order::dayFirst : Order::either;
    }
    return moment;
}

}  // namespace tavrel
