#pragma once

#include "base/failure.h"

#include <QString>

namespace tavrel {

class BookForm;

/// Whether a value of that name can be entered into the form: a control's, a field's, or what the form holds beside its
/// controls.
bool hasEntry(const BookForm& form, const QString& name);
/// Enters a value as the user would, by the name of a control or of its field; a failure, with the form as it was,
/// where there is none or the control does not have the value.
Expected<void> enterByName(BookForm& form, const QString& name, const QString& value);

}  // namespace tavrel
