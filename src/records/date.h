#pragma once

#include <QDateTime>
#include <QString>

#include <bit>
#include <cstdint>
#include <optional>

namespace tavrel {

/// A point in time as the archives hold it: seconds since 1 January 2001 00:00:00 UTC, or nothing.
class Date {
public:
    Date() = default;
    explicit Date(double secondsSince2001) : seconds_(secondsSince2001) {}
    static Date fromDateTime(const QDateTime& moment);
    /// A day and time of the user's time zone. A time that a clock change skips is moved on by what the change skips,
    /// as a clock that nobody has set would show it, and so keeps its day.
    static Date ofLocalTime(const QDate& day, const QTime& time);

    bool isNull() const { return !seconds_; }
    /// Seconds since 1 January 2001 00:00:00 UTC; 0 when there is no date.
    double secondsSince2001() const { return seconds_.value_or(0.0); }
    /// In the user's time zone, to the millisecond; invalid when there is no date or it lies outside QDateTime's range.
    QDateTime toDateTime() const;
    /// ISO 8601 in UTC with "Z" and as many decimals of a second as restore the value; empty when there is no date.
    /// Years outside 0 to 9999 carry a sign and six digits or more; a value that no calendar holds (not finite, or
    /// 10^15 s and more) is given as its seconds.
    QString toIso() const;

    /// The same bits, or both nothing.
    friend bool operator==(const Date& left, const Date& right) {
        return left.isNull() == right.isNull() && std::bit_cast<std::uint64_t>(left.secondsSince2001()) ==
                                                      std::bit_cast<std::uint64_t>(right.secondsSince2001());
    }

private:
    std::optional<double> seconds_;
};

}  // namespace tavrel
