#include "interchange/standard/filetime.h"

#include <QRegularExpression>

namespace tavrel {

namespace {

constexpr int earliestYear = 1900;

const QString clockPattern = QStringLiteral(R"((\d{1,2}):(\d{1,2})(?::(\d{1,2})(?:[.,]\d+)?)?\s*([AaPp][Mm])?)");

QTime clockOf(const QRegularExpressionMatch& match, int first) {
    int hour = match.captured(first).toInt();
    const QString half = match.captured(first + 3).toLower();
    if (half == QLatin1String("pm") && hour < 12) {
        hour += 12;
    } else if (half == QLatin1String("am") && hour == 12) {
        hour = 0;
    }
    // 24:00 and a leap second's 60 are the last moments of what they belong to.
    const int second = std::min(match.captured(first + 2).toInt(), 59);
    return hour == 24 ? QTime(0, 0) : QTime(hour, match.captured(first + 1).toInt(), second);
}

}  // namespace

std::optional<QDate> fileDay(int year, int month, int day) {
    const QDate date(year, month, day);
    return date.isValid() && year >= earliestYear ? std::optional(date) : std::nullopt;
}

QTime fileClock(const QString& text) {
    static const QRegularExpression clock(QStringLiteral("^\\s*") + clockPattern);
    const auto match = clock.match(text);
    return match.hasMatch() ? clockOf(match, 1) : QTime();
}

std::optional<FileTime> fileTime(const QString& text) {
    static const QRegularExpression yearFirst(
        QStringLiteral(R"(^\s*(\d{4})[-/.](\d{1,2})[-/.](\d{1,2})(?:[T\s]\s*)?)") + QStringLiteral("(?:") +
        clockPattern + QStringLiteral(")?"));
    static const QRegularExpression basic(QStringLiteral(R"(^\s*(\d{4})(\d\d)(\d\d)(?:T?(\d\d)(\d\d)(\d\d)?)?(?!\d))"));
    static const QRegularExpression yearLast(
        QStringLiteral(R"(^\s*(\d{1,2})[-/.](\d{1,2})[-/.](\d{4})(?:[T,\s]\s*)?)") + QStringLiteral("(?:") +
        clockPattern + QStringLiteral(")?"));
    const auto made = [](std::optional<QDate> day, QTime time) {
        return day ? std::optional(FileTime{*day, time}) : std::nullopt;
    };
    if (const auto match = yearFirst.match(text); match.hasMatch()) {
        return made(fileDay(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()),
                    match.captured(4).isEmpty() ? QTime() : clockOf(match, 4));
    }
    if (const auto match = basic.match(text); match.hasMatch()) {
        return made(fileDay(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()),
                    match.captured(4).isEmpty()
                        ? QTime()
                        : QTime(match.captured(4).toInt(), match.captured(5).toInt(), match.captured(6).toInt()));
    }
    if (const auto match = yearLast.match(text); match.hasMatch()) {
        int day = match.captured(1).toInt();
        int month = match.captured(2).toInt();
        const bool monthFirst = month > 12;
        if (monthFirst) {
            std::swap(day, month);
        }
        auto moment = made(fileDay(match.captured(3).toInt(), month, day),
                           match.captured(4).isEmpty() ? QTime() : clockOf(match, 4));
        if (moment && day != month) {
            using Order = FileTime::Order;
            moment->order = monthFirst ? Order::monthFirst : day > 12 ? Order::dayFirst : Order::either;
        }
        return moment;
    }
    return std::nullopt;
}

}  // namespace tavrel
