#include "forms/entryhint.h"

#include "base/numbers.h"
#include "base/texts.h"

#include <QLocale>

#include <algorithm>

namespace tavrel {

namespace {

bool isWhole(const Control& control, std::optional<FieldKind> field) {
    return field ? *field == FieldKind::integer : control.kind == ControlKind::wholeNumber;
}

bool holdsNumber(const Control& control, std::optional<FieldKind> field) {
    const bool isTyped = control.kind == ControlKind::text || control.kind == ControlKind::combo ||
                         control.kind == ControlKind::wholeNumber || control.kind == ControlKind::decimal;
    const bool isNumber = field ? *field == FieldKind::integer || *field == FieldKind::real
                                : control.kind == ControlKind::wholeNumber || control.kind == ControlKind::decimal;
    return isTyped && isNumber;
}

QString rangeHint(const Control& control) {
    const auto words = [](double bound) { return shortestText(bound); };
    if (control.usualMinimum && control.usualMaximum) {
        return textWith("Main", "Hint usual range", words(*control.usualMinimum), words(*control.usualMaximum));
    }
    return control.usualMaximum ? textWith("Main", "Hint usual maximum", words(*control.usualMaximum))
                                : textWith("Main", "Hint usual minimum", words(*control.usualMinimum));
}

}  // namespace

QString entryHint(const Control& control, const ControlState& held, std::optional<FieldKind> field) {
    const bool isBlank =
        std::none_of(held.text.begin(), held.text.end(), [](QChar letter) { return letter.isLetterOrNumber(); });
    if (isBlank || !held.enabled || !holdsNumber(control, field)) {
        return {};
    }
    QString typed = held.text.trimmed();
    typed.replace(u',', u'.');
    bool isNumber = false;
    const double whole = QLocale::c().toDouble(typed, &isNumber);
    const bool wholly = isWhole(control, field);
    const double read = wholly ? integerOf(held) : static_cast<double>(singleOf(held));
    const bool isReadAsTyped = isNumber && (wholly ? whole == read : static_cast<float>(whole) == singleOf(held));
    if (!isReadAsTyped) {
        return textWith("Main", "Hint read as", wholly ? QString::number(integerOf(held)) : textOf(singleOf(held)));
    }
    const bool isUsual = read >= control.usualMinimum.value_or(read) && read <= control.usualMaximum.value_or(read);
    return isUsual ? QString() : rangeHint(control);
}

}  // namespace tavrel
