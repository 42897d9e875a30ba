#include "forms/ui/datepicker.h"

#include "forms/ui/wheelguard.h"
#include "records/nodate.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLocale>

#include <utility>

namespace tavrel {

namespace {

/// The bounds of what the widget can hold; a blank one holds the lower.
const QDateTime earliest(QDate(100, 1, 1), QTime(0, 0), Qt::UTC);
const QDateTime latest(QDate(9999, 12, 31), QTime(23, 59, 59, 999), Qt::UTC);

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
    setDateTimeRange(earliest, latest);
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
    const bool blank = (emptyAt1900_ && isNoDate(date)) || !moment.isValid() || moment <= earliest || moment > latest;
    if (blank != blank_ || (!blank && moment != dateTime())) {
        blank_ = blank;
        put(blank ? earliest : moment);
    }
}

void DatePicker::put(const QDateTime& moment) {
    showing_ = true;
    setDateTime(moment);
    showing_ = false;
}

QSize DatePicker::sizeHint() const {
    if (!size_.isValid()) {
        const bool blank = std::exchange(blank_, false);
        size_ = QDateTimeEdit::sizeHint();
        blank_ = blank;
    }
    return size_;
}

QString DatePicker::textFromDateTime(const QDateTime& moment) const {
    const QString text = QDateTimeEdit::textFromDateTime(moment);
    // As long as a date, for the widget goes on to select its parts.
    return blank_ ? QString(text.size(), u' ') : text;
}

void DatePicker::takeChoice() {
    if (showing_) {
        return;
    }
    blank_ = false;
    QDateTime before = date_.toDateTime();
    if (!before.isValid()) {
        before = QDate(2001, 1, 1).startOfDay();
        date_ = Date::fromDateTime(before);
    }
    const Date chosen =
        part_ == day ? Date::ofLocalTime(date(), before.time()) : Date::ofLocalTime(before.date(), time());
    const QDateTime after = chosen.toDateTime();
    // By the difference, so that what a QDateTime cannot hold of a moment stays.
    date_ = Date(date_.secondsSince2001() + static_cast<double>(before.msecsTo(after)) / 1000.0);
    Q_EMIT picked(date_);
}

void DatePicker::startFromToday() {
    blank_ = false;
    put(QDateTime(QDate::currentDate(), QTime(0, 0), Qt::UTC));
}

bool DatePicker::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && blank_ && watched == calendarWidget()) {
        const QDate today = QDate::currentDate();
        calendarWidget()->setCurrentPage(today.year(), today.month());
    }
    return QDateTimeEdit::eventFilter(watched, event);
}

void DatePicker::keyPressEvent(QKeyEvent* event) {
    const bool erases = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
    if (emptyAt1900_ && erases && !blank_) {
        showDate(noDate());
        Q_EMIT picked(date_);
        return;
    }
    if (blank_ && !event->text().isEmpty() && event->text().front().isDigit()) {
        startFromToday();
        setSelectedSection(sectionAt(0));
    }
    QDateTimeEdit::keyPressEvent(event);
}

void DatePicker::stepBy(int steps) {
    if (blank_) {
        startFromToday();
        takeChoice();
    } else {
        QDateTimeEdit::stepBy(steps);
    }
}

QAbstractSpinBox::StepEnabled DatePicker::stepEnabled() const {
    return blank_ ? StepUpEnabled | StepDownEnabled : QDateTimeEdit::stepEnabled();
}

}  // namespace tavrel
