#pragma once

#include "desktop/preferences.h"

#include <QStringList>

namespace tavrel {

/// The documents that were opened or saved last, the latest first, kept in the preferences.
class RecentDocuments {
public:
    explicit RecentDocuments(Preferences& preferences) : preferences_(preferences) {}

    QStringList files() const;
    /// Puts a file first.
    void note(const QString& file);
    void drop(const QString& file);
    void clear();

private:
    void keep(const QStringList& files);

    Preferences& preferences_;
};

}  // namespace tavrel
