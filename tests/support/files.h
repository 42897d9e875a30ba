#pragma once

#include <QFile>
#include <gtest/gtest.h>

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

}  // namespace tavrel
