#pragma once

#include "base/failure.h"

#include <QString>

namespace tavrel {

class BookForm;

/// Enters a value as the user would, by the name of a control or of its field; a failure, with the form as it was,
/// where there is none or the control does not have the value.
Expected<void> enterByName(BookForm& form, const QString& name, const QString& value);

}  // namespace tavrel
