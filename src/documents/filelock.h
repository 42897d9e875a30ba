#pragma once

#include <QLockFile>
#include <QString>

#include <chrono>
#include <optional>

namespace tavrel {

/// A program that has a file open.
struct LockHolder {
    qint64 process = 0;
    QString host;
    QString program;

    /// As a reader is told: "tavrel, process 4711 on lagoon".
    QString name() const;
};

/// Tells other programs of this kind that a file is open, by a lock file beside it, ".NAME.lock", which names the
/// program. One that was left by a program that died counts for nothing, also where it bears no name yet. Where none
/// can be made, as in a folder that is read-only, there is none.
class FileLock {
public:
    explicit FileLock(const QString& file);

    /// Waits so long for another holder; who has the file then, or nobody when the lock was taken or cannot be made.
    std::optional<LockHolder> take(std::chrono::milliseconds patience) { return take(lock_, patience); }
    /// The same for a lock file of any name.
    static std::optional<LockHolder> take(QLockFile& lock, std::chrono::milliseconds patience);
    /// The one name of a file, by which it is locked.
    static QString lockedFile(const QString& file);
    /// The one name of the file that is locked.
    const QString& file() const { return file_; }

private:
    QString file_;
    QLockFile lock_;
};

}  // namespace tavrel
