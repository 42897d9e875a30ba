#pragma once

#include "platform/date.h"

#include <QDateTimeEdit>

namespace tavrel {

/// Picks the day or the time of day of a Date. A missing date, or one that no calendar holds, shows as blank and stays
/// until the user picks another.
class DatePicker : public QDateTimeEdit {
    Q_OBJECT

public:
    enum Part { day, timeOfDay };

    explicit DatePicker(Part part, QWidget* parent = nullptr);

    void showDate(const Date& date);

Q_SIGNALS:
    /// The user's choice: the date shown before with its day, or its time of day, replaced.
    void picked(const tavrel::Date& date);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void stepBy(int steps) override;
    StepEnabled stepEnabled() const override;

private:
    void takeChoice();
    bool isBlank() const { return dateTime() == minimumDateTime(); }
    /// Gives a blank picker something to edit.
    void startFromToday();

    Part part_;
    Date date_;
    bool showing_ = false;
};

}  // namespace tavrel
