#pragma once

#include "base/failure.h"
#include "forms/formstate.h"

#include <QString>

namespace tavrel {

/// Whether a control can be entered at all: captions, gauges, progress bars and buttons cannot.
bool takesEntries(ControlKind kind);

/// Enters a value, given as text, into the control at an index, as its user would: texts and numbers as typed; a choice
/// by its tag or its title (in the user's language or as its key, case aside); a switch as 0, 1, yes or no; a slider or
/// rating by its position; a day as 2024-05-03, a moment as 2024-05-03T10:30 (in the user's time zone, or with "Z" or
/// an offset) and a time of day as 10:30. A day alone begins at midnight; a time of day keeps the day that the control
/// holds. A picture is entered by the name of its file, and removed by an empty one. Fails, with the form as it was,
/// for a value that the control does not have.
Expected<void> enterValue(FormStateBase& form, int index, const QString& value);

}  // namespace tavrel
