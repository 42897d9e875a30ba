#pragma once

#include <QFile>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tavrel {

inline QByteArray contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable: ") + path.toUtf8();
}

/// Into the file itself, or a new one.
inline void writeContents(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path.toStdString();
}

/// Who may do what with a file, as chmod() takes it.
inline mode_t modeOf(const QString& path) {
    struct stat status {};
    EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0) << path.toStdString();
    return status.st_mode & 07777U;
}

}  // namespace tavrel
