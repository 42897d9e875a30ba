#pragma once

#include "base/fileidentity.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

namespace tavrel {

/// Notices what other programs do to a file while it is open.
class FileWatch : public QObject {
    Q_OBJECT

public:
    FileWatch();

    /// From now on this file, which is what the identity says; an empty name watches none.
    void watch(const QString& file, const FileIdentity& identity);
    /// Looks now.
    FileIdentity::State look();

Q_SIGNALS:
    /// Told once for each new state.
    void stateChanged(tavrel::FileIdentity::State state);

private:
    void addPaths();

    QString file_;
    FileIdentity identity_;
    FileIdentity::State told_ = FileIdentity::State::same;
    QFileSystemWatcher watcher_;
};

}  // namespace tavrel
