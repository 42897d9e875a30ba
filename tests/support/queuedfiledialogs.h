#pragma once

#include "desktop/ui/filedialogs.h"

#include <deque>
#include <utility>

namespace tavrel {

/// Answers with the names queued for it, as a user who chooses them; cancels when there are none.
struct QueuedFileDialogs : FileDialogs {
    QStringList filesToOpen(QWidget* parent, const QString&, const QList<FileFilter>& filters, bool several) override {
        askedBy = parent;
        severalAllowed = several;
        offered = filters;
        return open.empty() ? QStringList() : std::exchange(open, {});
    }
    std::optional<FileToSave> fileToSave(QWidget* parent, const QString&, const QString& proposal,
                                         const QList<FileFilter>& filters) override {
        askedBy = parent;
        proposed = proposal;
        offered = filters;
        if (save.empty()) {
            return std::nullopt;
        }
        const FileToSave next = save.front();
        save.pop_front();
        return next;
    }

    QStringList open;
    std::deque<FileToSave> save;
    const QWidget* askedBy = nullptr;
    bool severalAllowed = false;
    QString proposed;
    QList<FileFilter> offered;
};

}  // namespace tavrel
