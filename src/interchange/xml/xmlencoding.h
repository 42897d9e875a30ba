#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace tavrel {

/// Whether the bytes begin with the mark of UTF-8, which outranks what an XML file declares.
bool hasUtf8Mark(QByteArrayView bytes);

/// An XML file in UTF-8 that its declared encoding does not tell, because it is unknown, wrong or broken in places:
/// read in the encoding that its first bytes show, in UTF-8 where it is that throughout, else in the declared one or,
/// where that is none, the common one of Windows. A byte that is no sign there stays as the sign that it is in Latin-1.
QByteArray xmlInUtf8(QByteArrayView bytes);

}  // namespace tavrel
