#pragma once

#include "forms/formstate.h"
#include "records/field.h"

#include <QString>

#include <optional>

namespace tavrel {

/// What its user is told beside a control: how its text is read where that is not what was typed, or the usual range
/// that the control's declaration gives and the number lies outside. Empty where there is nothing to tell: a text
/// without a letter or digit ("-", "--:--") stands for no value. A control of a text holds a number where its record's
/// field, if it has one, is a number.
QString entryHint(const Control& control, const ControlState& held, std::optional<FieldKind> field);

}  // namespace tavrel
