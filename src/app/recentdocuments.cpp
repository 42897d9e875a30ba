#include "app/recentdocuments.h"

namespace tavrel {

namespace {

constexpr int longest = 10;

QString key() {
    return QStringLiteral("recent documents");
}

}  // namespace

QStringList RecentDocuments::files() const {
    QStringList files = preferences_.strings(key());
    files.removeAll(QString());
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
    preferences_.set(key(), files);
}

}  // namespace tavrel
