#pragma once

#include "book/book.h"

#include <QHash>
#include <QStringList>

namespace tavrel {

/// The texts that the records hold in the field of a control of the form, each once, in no order; none for a control
/// without a field of text.
QStringList heldTexts(const BookBase& book, int control);

/// In how many places the records hold each entry of a shared list, whatever field takes it from there. A text that
/// names several, parted by commas or semicolons, counts for each of them.
QHash<QString, int> pickListUsage(const BookBase& book, PickList list);

}  // namespace tavrel
