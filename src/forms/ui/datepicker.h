#pragma once

#include "records/date.h"

#include <QDateTimeEdit>

namespace tavrel {

/// Picks the day or the time of day of a Date. A missing date, or one that no calendar holds, shows as blank and stays
/// until the user picks another.
class DatePicker : public QDateTimeEdit {
    Q_OBJECT

public:
    enum Part { day, timeOfDay };

    explicit DatePicker(Part part, QWidget* parent = nullptr);

    /// Whether 1 January 1900, 00:00:00, stands for no date: it shows as blank, and the user can go back to it.
    void setEmptyAt1900(bool isEmpty) { emptyAt1900_ = isEmpty; }

    void showDate(const Date& date);
    /// As wide as a date, a blank picker too.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The user's choice: the date shown before with its day, or its time of day, replaced.
    void picked(const tavrel::Date& date);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void stepBy(int steps) override;
    StepEnabled stepEnabled() const override;
    QString textFromDateTime(const QDateTime& moment) const override;

private:
    void takeChoice();
    void put(const QDateTime& moment);
    /// Gives a blank picker something to edit.
    void startFromToday();

    Part part_;
    Date date_;
    bool emptyAt1900_ = false;
    mutable bool blank_ = false;
    mutable QSize size_;
    bool showing_ = false;
};

}  // namespace tavrel
