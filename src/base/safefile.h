#pragma once

#include "base/failure.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QString>

#include <memory>

namespace tavrel {

/// The bytes of a file, mapped into memory where the system can, for as long as the object lives. Folders, pipes and
/// devices are refused.
class FileBytes {
public:
    static Expected<FileBytes> open(const QString& path);
    QByteArrayView bytes() const { return bytes_; }

private:
    std::unique_ptr<QFile> file_;
    QByteArray copy_;
    QByteArrayView bytes_;
};

/// Writes beside the file, flushes to the disk and renames: on any failure the old file is as it was. Keeps the owner
/// and permissions of an existing file and follows a symbolic link to it.
Expected<void> writeFile(const QString& path, QByteArrayView bytes);

// The sentences of both name the file and say why; the detail holds its whole path and the system's word.

/// A failure met while opening or saving the file, told with the file's name: "“x” could not be opened: …".
Failure openingFailure(const QString& path, const Failure& reason);
Failure savingFailure(const QString& path, const Failure& reason);

}  // namespace tavrel
