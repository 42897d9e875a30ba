#pragma once

#include "platform/failure.h"

#include <QByteArrayView>
#include <QFile>
#include <QString>
#include <memory>

namespace tavrel {

/// The bytes of a file, mapped into memory where the system can, for as long as the object lives.
class FileBytes {
public:
    static Expected<FileBytes> open(const QString& path);
    QByteArrayView bytes() const { return bytes_; }

private:
    std::unique_ptr<QFile> file_;
    QByteArray copy_;
    QByteArrayView bytes_;
};

/// Writes beside the file, flushes to the disk and renames: on any failure the old file is as it was. Keeps the
/// permissions of an existing file and follows a symbolic link to it.
Expected<void> writeFile(const QString& path, QByteArrayView bytes);

}  // namespace tavrel
