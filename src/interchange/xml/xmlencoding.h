#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace tavrel {

/// An XML file in UTF-8, nothing where it is in UTF-8 already: read in the encoding that its first bytes show, which
/// outranks the declared one; else in the declared one. In UTF-8 all the same if the file is that throughout and the
/// declared one is of single bytes, unknown or broken in places. Without a known one as textInUtf8() does. A byte that
/// is no sign stands for that of the common encoding of Windows (windows-1252), or where it has none for U+FFFD.
std::optional<QByteArray> xmlInUtf8(QByteArrayView bytes);

/// A text that names no encoding in UTF-8, nothing where it is in UTF-8 already: read in UTF-8 where that takes more
/// than half of the bytes beyond ASCII, and else in the common encoding of Windows.
std::optional<QByteArray> textInUtf8(QByteArrayView bytes);

}  // namespace tavrel
