#pragma once

#include "base/failure.h"
#include "base/fileidentity.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <sys/stat.h>
#include <vector>

namespace tavrel {

/// The bytes of a file as they were when it was opened. Folders, pipes and devices are refused.
class FileBytes {
public:
    static Expected<FileBytes> open(const QString& path);
    QByteArrayView bytes() const { return bytes_; }
    const struct stat& status() const { return status_; }
    /// What the file is, its contents having that hash.
    FileIdentity identity(QByteArray hash) const { return {status_, bytes_.size(), std::move(hash)}; }

private:
    QByteArray bytes_;
    struct stat status_ {};
};

/// Writes beside the file, flushes to the disk and renames: on any failure the old file is as it was. Keeps the owner,
/// permissions, access list and user attributes of an existing file and follows a symbolic link to it. A file that
/// cannot be replaced so is written in place, after a copy of it was made.
Expected<void> writeFile(const QString& path, QByteArrayView bytes);
/// The same, for those who will want to know what becomes of the file.
Expected<FileIdentity> replaceFile(const QString& path, QByteArrayView bytes);

struct FileContents {
    QString path;
    QByteArray bytes;
};
/// The same for files that belong together: none takes its place before all are filled.
Expected<void> writeFiles(const std::vector<FileContents>& files);

/// The same for a file that the program keeps for itself: readable by the user alone.
Expected<void> writePrivateFile(const QString& path, QByteArrayView bytes);

/// Makes a copy of a file, with its owner, permissions, access list and user attributes, in the place of whatever bears
/// the other name. Where these cannot be kept, as of another user's file, the user alone may read the copy.
Expected<void> copyFile(const QString& path, const QString& copy);

/// Whether both paths mean one existing file, whatever links lead to it.
bool isSameFile(const QString& path, const QString& other);
/// Whether the path means something that bytes only pass through: a pipe, a terminal, an open file's number.
bool isOutlet(const QString& path);
/// Writes to such a thing.
Expected<void> writeToOutlet(const QString& path, QByteArrayView bytes);

// The sentences of both name the file and say why; the detail holds its whole path and the system's word.

/// A failure met while opening or saving the file, told with the file's name: "“x” could not be opened: …".
Failure openingFailure(const QString& path, const Failure& reason);
Failure savingFailure(const QString& path, const Failure& reason);

}  // namespace tavrel
