#include "forms/formentry.h"

#include "base/texts.h"
#include "forms/pictures.h"

#include <QDateTime>

#include <optional>

namespace tavrel {

namespace {

bool isSame(const QString& left, const QString& right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

std::optional<int> chosenTag(const Control& control, const QString& value) {
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    for (const Choice& choice : control.choices) {
        if (isNumber ? choice.tag == number
                     : isSame(value, choice.title.text()) || isSame(value, QString::fromUtf8(choice.title.key))) {
            return choice.tag;
        }
    }
    return std::nullopt;
}

std::optional<int> switchTag(const QString& value) {
    for (const auto& word : {QStringLiteral("1"), QStringLiteral("yes"), QStringLiteral("on"), QStringLiteral("true"),
                             text("Main", "Yes")}) {
        if (isSame(value, word)) {
            return 1;
        }
    }
    for (const auto& word : {QStringLiteral("0"), QStringLiteral("no"), QStringLiteral("off"), QStringLiteral("false"),
                             text("Main", "No")}) {
        if (isSame(value, word)) {
            return 0;
        }
    }
    return std::nullopt;
}

std::optional<int> sliderTag(const Control& control, const QString& value) {
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (!isNumber || number < control.minimum || number > control.maximum) {
        return std::nullopt;
    }
    return number;
}

std::optional<Date> dateOf(const QString& value) {
    // A day is exactly ten characters long; what stands behind them would be passed over.
    const QDate day = value.size() == 10 ? QDate::fromString(value, Qt::ISODate) : QDate();
    const QDateTime moment = value.contains(u'T') ? QDateTime::fromString(value, Qt::ISODateWithMs) : day.startOfDay();
    return moment.isValid() ? std::optional(Date::fromDateTime(moment)) : std::nullopt;
}

std::optional<Date> timeOf(const Date& held, const QString& value) {
    if (value.contains(u'T')) {
        return dateOf(value);
    }
    const QTime time = QTime::fromString(value, Qt::ISODate);
    if (!time.isValid()) {
        return std::nullopt;
    }
    const QDate day = held.isNull() ? QDate() : held.toDateTime().date();
    return Date::ofLocalTime(day.isValid() ? day : QDate(2001, 1, 1), time);
}

Expected<void> enterPicture(FormStateBase& form, int index, const QString& path) {
    if (path.isEmpty()) {
        form.place(index, {});
        return {};
    }
    return pictureOfFile(path).map([&](const Image& picture) { form.place(index, picture); });
}

}  // namespace

bool takesEntries(ControlKind kind) {
    return kind != ControlKind::readOnly && kind != ControlKind::gauge && kind != ControlKind::progress &&
           kind != ControlKind::button && kind != ControlKind::view;
}

Expected<void> enterValue(FormStateBase& form, int index, const QString& value) {
    const PlacedControl& placed = form.table().controls()[static_cast<std::size_t>(index)];
    const auto entered = [&](const auto& parsed, auto enter) -> Expected<void> {
        if (!parsed) {
            return failure(textWith("Main", "No such value",
                                    QString::fromStdString(placed.field.empty() ? placed.name : placed.field), value));
        }
        (form.*enter)(index, *parsed);
        return {};
    };
    switch (placed.control.kind) {
        case ControlKind::popUp:
        case ControlKind::radio:
            return entered(chosenTag(placed.control, value), &FormStateBase::choose);
        case ControlKind::onOff:
            return entered(switchTag(value), &FormStateBase::choose);
        case ControlKind::slider:
        case ControlKind::rating:
            return entered(sliderTag(placed.control, value), &FormStateBase::choose);
        case ControlKind::date:
            return entered(dateOf(value), &FormStateBase::pick);
        case ControlKind::time:
            return entered(timeOf(form.at(index).date, value), &FormStateBase::pick);
        case ControlKind::picture:
            return enterPicture(form, index, value);
        default:
            form.type(index, value);
            return {};
    }
}

}  // namespace tavrel
