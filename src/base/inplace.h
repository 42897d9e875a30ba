#pragma once

#include <QByteArray>
#include <QByteArrayView>

struct stat;

namespace tavrel {

/// Writes over the contents of an existing file, which stays the same file: for one that cannot be replaced, or only
/// at the price of its owner or access list. A copy of the old contents lies in the state folder until the new ones
/// are complete, and goes back when they cannot be; a copy that could not go back stays, and is named. Signals that
/// would end the program wait. False with errno set on failure; the status is that of the file written.
bool writeInPlace(const QByteArray& target, QByteArrayView bytes, struct stat& status, QByteArray& copyLeft);

}  // namespace tavrel
