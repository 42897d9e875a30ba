#pragma once

#include <QDate>
#include <QString>
#include <QTime>

#include <optional>

namespace tavrel {

/// A moment as a file writes it: a day, and a time of day that is invalid where the file gives none.
struct FileTime {
    QDate day;
    QTime time;
    /// Which of day and month stands first, where only their numbers can tell.
    enum class Order { told, dayFirst, monthFirst, either } order = Order::told;
    bool endsDay = false;  ///< 24:00 of the day before was written

    /// Takes the time of day that stands apart, where none stands with the day or a midnight that only fills it up.
    void settleTime(const QTime& apart);
};

/// The day and time of a text such as "2010-08-14T10:02:00+02:00", "2010-8-4 9:05", "20100814T100200", "14.08.2010
/// 10:02", "8/14/2010" or "2010-08-14"; the day stands before the month where both could be either. An offset or Z is
/// dropped: the time stays what the diver's clock showed; 24:00 is midnight of the next day. Nothing when the text
/// holds no day, or one before 1900, which stands for none.
std::optional<FileTime> fileTime(const QString& words);

/// The time of a text such as "10:02", "10:02:30.5Z", "9:05", "10.02", "1002" or "10:02 p.m.", also behind a day;
/// invalid when it holds none.
QTime fileClock(const QString& text);

/// The day, where the numbers make one of 1900 or after.
std::optional<QDate> fileDay(int year, int month, int day);

}  // namespace tavrel
