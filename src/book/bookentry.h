#pragma once

#include "base/failure.h"

#include <QString>

namespace tavrel {

class BookForm;

/// Enters a value as the user would, by the name of a control or of its field; a failure, with the form as it was,
/// where there is none or the control does not have the value.
Expected<void> enterByName(BookForm& form, const QString& name, const QString& value);

/// Whether the control of that name, or of that field, is given the name of a file, which is then read.
bool readsFile(const BookForm& form, const QString& name);

}  // namespace tavrel
