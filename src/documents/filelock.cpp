#include "documents/filelock.h"

#include "base/paths.h"
#include "base/texts.h"

#include <QFileInfo>

namespace tavrel {

namespace {

QString lockName(const QString& file) {
    const QFileInfo info(file);
    return info.path() + QStringLiteral("/.") + info.fileName() + QStringLiteral(".lock");
}

}  // namespace

QString LockHolder::name() const {
    return textWith("Main", "Lock holder", program, QString::number(process), host);
}

QString FileLock::lockedFile(const QString& file) {
    return pathFromBytes(resolvedPath(pathBytes(absolutePath(file))));
}

FileLock::FileLock(const QString& file) : file_(lockedFile(file)), lock_(lockName(file_)) {
    // However long ago it was taken: a document may be open for days.
    lock_.setStaleLockTime(0);
}

std::optional<LockHolder> FileLock::take(std::chrono::milliseconds patience) {
    constexpr int attempts = 10;
    LockHolder holder;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (lock_.tryLock(static_cast<int>(patience.count())) || lock_.error() != QLockFile::LockFailedError) {
            return std::nullopt;
        }
        // A holder may have gone, or not have signed yet, when it is looked at.
        if (lock_.getLockInfo(&holder.process, &holder.host, &holder.program)) {
            break;
        }
    }
    return holder;
}

}  // namespace tavrel
