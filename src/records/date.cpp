#include "records/date.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>

namespace tavrel {

namespace {

constexpr qint64 epoch2001 = 978307200;  // 1 January 2001 00:00:00 UTC, seconds since 1970
constexpr double calendarBound = 1e15;   // seconds; some 30 million years

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

QString yearText(qint64 year) {
    if (year >= 0 && year <= 9999) {
        return QStringLiteral("%1").arg(year, 4, 10, QLatin1Char('0'));
    }
    return (year < 0 ? QLatin1Char('-') : QLatin1Char('+')) +
           QStringLiteral("%1").arg(std::abs(year), 6, 10, QLatin1Char('0'));
}

// Proleptic Gregorian year of a day counted from 1 March 0000, after the usual reckoning by eras of 400 years;
// std::chrono stops at the year 32767.
struct CivilDay {
    qint64 year;
    int month;
    int day;
};

CivilDay civilDay(qint64 daysSince1970) {
    const qint64 shifted = daysSince1970 + 719468;
    const qint64 era = (shifted >= 0 ? shifted : shifted - 146096) / 146097;
    const qint64 dayOfEra = shifted - era * 146097;
    const qint64 yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const qint64 dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int monthFromMarch = static_cast<int>((5 * dayOfYear + 2) / 153);
    const int day = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    const int month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    return {yearOfEra + era * 400 + (month <= 2 ? 1 : 0), month, day};
}

}  // namespace

Date Date::fromDateTime(const QDateTime& moment) {
    if (!moment.isValid()) {
        return {};
    }
    return Date(static_cast<double>(moment.toMSecsSinceEpoch() - epoch2001 * 1000) / 1000.0);
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
    const qint64 since1970 = parts.whole + epoch2001;
    const qint64 days = since1970 / 86400 - (since1970 % 86400 < 0 ? 1 : 0);
    const qint64 second = since1970 - days * 86400;
    const CivilDay civil = civilDay(days);
    const auto two = [](qint64 value) { return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0')); };
    QString text = yearText(civil.year) + u'-' + two(civil.month) + u'-' + two(civil.day) + u'T' + two(second / 3600) +
                   u':' + two(second / 60 % 60) + u':' + two(second % 60);
    if (!parts.fraction.isEmpty()) {
        text += u'.' + parts.fraction;
    }
    return text + u'Z';
}

}  // namespace tavrel
