#include "app/recentdocuments.h"

#include "base/paths.h"

namespace tavrel {

namespace {

constexpr int longest = 10;

QString key() {
    return QStringLiteral("recent documents");
}

const QString bytesMark = QStringLiteral("file://");

// The store holds text only. A name whose bytes are none stands as a URL, which no absolute path looks like.

QString storedName(const QString& file) {
    return shownPath(file) == file
               ? file
               : bytesMark + QString::fromLatin1(pathBytes(file).toPercentEncoding(QByteArrayLiteral("/")));
}

QString fileOfStored(const QString& name) {
    return name.startsWith(bytesMark)
               ? pathFromBytes(QByteArray::fromPercentEncoding(name.sliced(bytesMark.size()).toLatin1()))
               : name;
}

}  // namespace

QStringList RecentDocuments::files() const {
    QStringList files;
    for (const QString& name : preferences_.strings(key())) {
        if (!name.isEmpty()) {
            files.append(fileOfStored(name));
        }
    }
    return files;
}

void RecentDocuments::note(const QString& file) {
    QStringList latest = files();
    if (!latest.isEmpty() && latest.constFirst() == file) {
        return;
    }
    latest.removeAll(file);
    latest.prepend(file);
    keep(latest.mid(0, longest));
}

void RecentDocuments::drop(const QString& file) {
    QStringList others = files();
    if (others.removeAll(file) > 0) {
        keep(others);
    }
}

void RecentDocuments::clear() {
    keep({});
}

void RecentDocuments::keep(const QStringList& files) {
    QStringList names;
    for (const QString& file : files) {
        names.append(storedName(file));
    }
    preferences_.set(key(), names);
}

}  // namespace tavrel
