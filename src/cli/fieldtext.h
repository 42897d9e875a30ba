#pragma once

#include "records/recordlayout.h"

#include <QString>

namespace tavrel {

/// A field's value as text, the way it can be entered again: numbers with a point, dates as ISO 8601, the numbers of a
/// series separated by commas; nothing for what is absent.
QString fieldText(const FieldValue& value);

}  // namespace tavrel
