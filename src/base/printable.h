#pragma once

#include <QString>

namespace tavrel {

/// A text as it may be shown to someone who is to see what it holds: control characters but the line's end as their
/// pictures, and marks that turn the direction of what follows as a replacement character.
QString printable(const QString& text);

}  // namespace tavrel
