#include "records/date.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>

namespace tavrel {

namespace {

constexpr qint64 epoch2001 = 978307200;  // 1 January 2001 00:00:00 UTC, seconds since 1970
constexpr qint64 secondsPerDay = 86400;
constexpr double calendarBound = 1e15;  // seconds; some 30 million years

struct DecimalSeconds {
    qint64 whole;      // rounded down
    QString fraction;  // digits after the point, none for a whole second
};

// The value in as few decimals as restore it, exact in decimal arithmetic so that no digit is lost to a subtraction.
DecimalSeconds decimalSeconds(double seconds) {
    std::array<char, 400> digits;
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), std::abs(seconds), std::chars_format::fixed);
    const std::string text(digits.data(), end.ptr);
    const std::size_t point = text.find('.');
    qint64 whole = std::strtoll(text.c_str(), nullptr, 10);
    std::string fraction = point == std::string::npos ? std::string() : text.substr(point + 1);
    if (seconds < 0) {
        whole = -whole;
        if (!fraction.empty()) {
            // -0.25 is second -1 and 0.75: the ten's complement of the digits. The last digit is never 0.
            --whole;
            for (char& digit : fraction) {
                digit = static_cast<char>('9' - (digit - '0'));
            }
            ++fraction.back();
        }
    }
    return {whole, QString::fromLatin1(fraction.data(), static_cast<qsizetype>(fraction.size()))};
}

/// With the year that ISO 8601 counts: 1 BC, QDate's -1, is year 0.
QString dayText(QDate day) {
    const int year = day.year() < 0 ? day.year() + 1 : day.year();
    const bool isPlain = year >= 0 && year <= 9999;
    const QString sign = isPlain ? QString() : QString(year < 0 ? u'-' : u'+');
    return sign + QStringLiteral("%1-%2-%3")
                      .arg(std::abs(year), isPlain ? 4 : 6, 10, QLatin1Char('0'))
                      .arg(day.month(), 2, 10, QLatin1Char('0'))
                      .arg(day.day(), 2, 10, QLatin1Char('0'));
}

}  // namespace

Date Date::fromDateTime(const QDateTime& moment) {
    if (!moment.isValid()) {
        return {};
    }
    return Date(static_cast<double>(moment.toMSecsSinceEpoch() - epoch2001 * 1000) / 1000.0);
}

Date Date::ofLocalTime(const QDate& day, const QTime& time) {
    const QDateTime moment(day, time);
    if (moment.isValid() || !day.isValid() || !time.isValid()) {
        return fromDateTime(moment);
    }
    const int offsetBefore = QDateTime(day.addDays(-1), QTime(12, 0)).offsetFromUtc();
    return fromDateTime(QDateTime(day, time, Qt::OffsetFromUTC, offsetBefore));
}

QDateTime Date::toDateTime() const {
    if (!seconds_ || !(std::abs(*seconds_) < calendarBound)) {
        return {};
    }
    return QDateTime::fromMSecsSinceEpoch(std::llround(*seconds_ * 1000.0) + epoch2001 * 1000);
}

QString Date::toIso() const {
    if (!seconds_) {
        return {};
    }
    if (!(std::abs(*seconds_) < calendarBound)) {
        std::array<char, 32> digits;
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), *seconds_);
        return QString::fromLatin1(digits.data(), end.ptr - digits.data());
    }
    const DecimalSeconds parts = decimalSeconds(*seconds_);
    const qint64 days = parts.whole / secondsPerDay - (parts.whole % secondsPerDay < 0 ? 1 : 0);
    const auto second = static_cast<int>(parts.whole - days * secondsPerDay);
    QString text = dayText(QDate(2001, 1, 1).addDays(days)) + u'T' + QTime(0, 0).addSecs(second).toString(Qt::ISODate);
    if (!parts.fraction.isEmpty()) {
        text += u'.' + parts.fraction;
    }
    return text + u'Z';
}

}  // namespace tavrel
