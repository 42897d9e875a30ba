#include "documents/filelock.h"

#include "base/fileidentity.h"
#include "base/paths.h"
#include "base/texts.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrel {

namespace {

/// Milliseconds between two looks at a lock that another program has.
constexpr qint64 step = 50;
/// Seconds in which whoever makes a lock has surely signed it; one without a name is left over after that.
constexpr std::time_t signingTime = 2;

QString lockName(const QString& file) {
    const QFileInfo info(file);
    // A lock's name is text: bytes that are none go by a hash, since what would stand for them is the same for all.
    const QString name = shownName(file) == info.fileName()
                             ? info.fileName()
                             : QString::fromLatin1(contentHash(pathBytes(info.fileName())).toHex().first(32));
    return info.path() + QStringLiteral("/.") + name + QStringLiteral(".lock");
}

}  // namespace

QString LockHolder::name() const {
    if (process == 0) {
        return text("Main", "Lock holder unknown");
    }
    return textWith("Main", "Lock holder", program, QString::number(process), host);
}

QString FileLock::lockedFile(const QString& file) {
    return pathFromBytes(resolvedPath(pathBytes(absolutePath(file))));
}

FileLock::FileLock(const QString& file) : file_(lockedFile(file)), lock_(lockName(file_)) {
    // However long ago it was taken: a document may be open for days.
    lock_.setStaleLockTime(0);
}

std::optional<LockHolder> FileLock::take(QLockFile& lock, std::chrono::milliseconds patience) {
    const QByteArray name = pathBytes(lock.fileName());
    const QDeadlineTimer deadline(patience);
    const QDeadlineTimer signing(patience + 2 * std::chrono::seconds(signingTime));
    for (;;) {
        // What is no regular file was not put there to lock this one, and opening a pipe might never end.
        struct stat status {};
        if (::lstat(name.constData(), &status) == 0 && !S_ISREG(status.st_mode)) {
            return std::nullopt;
        }
        if (lock.tryLock(0) || lock.error() != QLockFile::LockFailedError) {
            return std::nullopt;
        }
        LockHolder holder;
        const bool isSigned = lock.getLockInfo(&holder.process, &holder.host, &holder.program);
        if (!isSigned && ::access(name.constData(), R_OK) == 0 && ::lstat(name.constData(), &status) == 0) {
            const auto isOld = [&status] { return std::abs(std::time(nullptr) - status.st_mtime) > signingTime; };
            if (isOld()) {
                // One at a time: the later of two would remove the lock that the earlier has made meanwhile.
                QLockFile remover(lock.fileName() + QStringLiteral(".rmlock"));
                const bool isAlone = remover.tryLock(0);
                if (!isAlone && remover.error() != QLockFile::LockFailedError) {
                    return std::nullopt;
                }
                if (isAlone && !lock.getLockInfo(&holder.process, &holder.host, &holder.program) &&
                    ::lstat(name.constData(), &status) == 0 && isOld()) {
                    if (!lock.removeStaleLockFile()) {
                        return std::nullopt;
                    }
                    continue;
                }
            }
            if (!signing.hasExpired()) {
                QThread::msleep(step);
                continue;
            }
        }
        if (deadline.hasExpired()) {
            return isSigned ? holder : LockHolder();
        }
        QThread::msleep(static_cast<unsigned long>(std::clamp<qint64>(deadline.remainingTime(), 1, step)));
    }
}

}  // namespace tavrel
