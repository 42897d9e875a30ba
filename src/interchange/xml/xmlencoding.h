#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace tavrel {

/// An XML file in UTF-8, nothing where it is in UTF-8 already: read in the encoding that its first bytes show, which
/// outranks the declared one; else in the declared one; where that is unknown or broken in places, in UTF-8 if the file
/// is that throughout, and else in the common one of Windows. A byte that is no sign there stays as the sign that it is
/// in Latin-1.
std::optional<QByteArray> xmlInUtf8(QByteArrayView bytes);

}  // namespace tavrel
