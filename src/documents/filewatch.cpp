#include "documents/filewatch.h"

#include "base/paths.h"

#include <QFileInfo>

#include <utility>

namespace tavrel {

FileWatch::FileWatch() {
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, &FileWatch::look);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &FileWatch::look);
}

void FileWatch::watch(const QString& file, const FileIdentity& identity) {
    const QStringList watched = watcher_.files() + watcher_.directories();
    if (file_ != file && !watched.isEmpty()) {
        watcher_.removePaths(watched);
    }
    file_ = file;
    identity_ = identity;
    addPaths();
    if (std::exchange(told_, FileIdentity::State::same) != FileIdentity::State::same) {
        Q_EMIT stateChanged(told_);
    }
}

/// The file, for what is written into it, and its folder, for what takes its place.
void FileWatch::addPaths() {
    const QString real = canonicalPath(file_);
    if (!real.isEmpty() && !watcher_.files().contains(real)) {
        watcher_.addPath(real);
    }
    const QString folder = QFileInfo(real.isEmpty() ? file_ : real).path();
    if (!file_.isEmpty() && !watcher_.directories().contains(folder)) {
        watcher_.addPath(folder);
    }
}

FileIdentity::State FileWatch::look() {
    if (file_.isEmpty()) {
        return FileIdentity::State::same;
    }
    const auto state = identity_.stateOf(pathBytes(file_));
    addPaths();
    if (std::exchange(told_, state) != state) {
        Q_EMIT stateChanged(state);
    }
    return state;
}

}  // namespace tavrel
