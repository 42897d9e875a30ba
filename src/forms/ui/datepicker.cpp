#include "forms/ui/datepicker.h"

#include "forms/ui/wheelguard.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLocale>

namespace tavrel {

namespace {

/// The earliest day that the widget can hold; it stands for a blank one.
const QDate blankDay(100, 1, 1);

/// The locale's short form, with the century.
QString dayFormat() {
    QString format = QLocale().dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1StringView("yyyy"))) {
        format.replace(QLatin1StringView("yy"), QLatin1StringView("yyyy"));
    }
    return format;
}

QString timeFormat() {
    QString format = QLocale().timeFormat(QLocale::ShortFormat);
    return format.remove(QLatin1StringView(":ss"));
}

/// The day and time as they stand, without a time zone whose missing hours would shift them.
QDateTime asShown(const QDateTime& moment) {
    return QDateTime(moment.date(), moment.time(), Qt::UTC);
}

}  // namespace

DatePicker::DatePicker(Part part, QWidget* parent) : QDateTimeEdit(parent), part_(part) {
    setTimeSpec(Qt::UTC);
    setDisplayFormat(part == day ? dayFormat() : timeFormat());
    setMinimumDateTime(QDateTime(blankDay, QTime(0, 0), Qt::UTC));
    setSpecialValueText(QStringLiteral(" "));
    if (part == day) {
        setCalendarPopup(true);
        calendarWidget()->installEventFilter(this);
    }
    guardAgainstWheel(this);
    connect(this, &QDateTimeEdit::dateTimeChanged, this, &DatePicker::takeChoice);
}

void DatePicker::showDate(const Date& date) {
    date_ = date;
    const QDateTime moment = asShown(date.toDateTime());
    const QDateTime shown = moment.isValid() && moment >= minimumDateTime() && moment <= maximumDateTime()
                                ? moment
                                : minimumDateTime();
    if (shown != dateTime()) {
        showing_ = true;
        setDateTime(shown);
        showing_ = false;
    }
}

void DatePicker::takeChoice() {
    if (showing_ || isBlank()) {
        return;
    }
    QDateTime before = date_.toDateTime();
    if (!before.isValid()) {
        before = QDate(2001, 1, 1).startOfDay();
        date_ = Date::fromDateTime(before);
    }
    const QDateTime after = part_ == day ? QDateTime(date(), before.time()) : QDateTime(before.date(), time());
    // By the difference, so that what a QDateTime cannot hold of a moment stays.
    date_ = Date(date_.secondsSince2001() + static_cast<double>(before.msecsTo(after)) / 1000.0);
    Q_EMIT picked(date_);
}

void DatePicker::startFromToday() {
    showing_ = true;
    setDateTime(QDateTime(QDate::currentDate(), QTime(0, 0), Qt::UTC));
    showing_ = false;
}

bool DatePicker::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && isBlank() && watched == calendarWidget()) {
        const QDate today = QDate::currentDate();
        calendarWidget()->setCurrentPage(today.year(), today.month());
    }
    return QDateTimeEdit::eventFilter(watched, event);
}

void DatePicker::keyPressEvent(QKeyEvent* event) {
    if (isBlank() && !event->text().isEmpty() && event->text().front().isDigit()) {
        startFromToday();
        setSelectedSection(sectionAt(0));
    }
    QDateTimeEdit::keyPressEvent(event);
}

void DatePicker::stepBy(int steps) {
    if (isBlank()) {
        startFromToday();
        takeChoice();
    } else {
        QDateTimeEdit::stepBy(steps);
    }
}

QAbstractSpinBox::StepEnabled DatePicker::stepEnabled() const {
    return isBlank() ? StepUpEnabled | StepDownEnabled : QDateTimeEdit::stepEnabled();
}

}  // namespace tavrel
