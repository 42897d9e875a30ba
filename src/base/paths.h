#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace tavrel {

// A file's name is bytes, which need not be UTF-8. As text each byte that is none stands as a lone low surrogate
// (U+DC80 to U+DCFF), so that the way back gives the same bytes. Paths of files that the user names go through these
// functions; QFile's own would lose the bytes.

QString pathFromBytes(QByteArrayView bytes);
QByteArray pathBytes(const QString& path);
/// The path for a reader: bytes that are no text as replacement characters.
QString shownPath(const QString& path);
/// The path's last name for a reader.
QString shownName(const QString& path);

/// The path made absolute; links and dots stay.
QString absolutePath(const QString& path);
/// Whether anything bears the name, a link that leads nowhere included.
bool pathExists(const QString& path);
/// The one name of an existing file, whatever links and dots lead to it; empty when there is none.
QString canonicalPath(const QString& path);
/// The file that writing to the path means: links are followed as the system follows them, also where the last one
/// leads to nothing yet. Empty, with errno set, when it cannot be told.
QByteArray resolvedPath(const QByteArray& path);

/// The folder for what the program keeps of its work between two runs (XDG state folder), made when it is missing,
/// readable by the user alone. Empty when it cannot be made.
QString stateFolder();

}  // namespace tavrel
