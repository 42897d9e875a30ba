#include "base/safefile.h"

#include "base/texts.h"

#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrel {

namespace {

/// The sentence for a system error; one that says nothing to the user gives the general key.
Failure systemFailure(int error, const QString& path, Title missing, Title general) {
    Title key = general;
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            key = missing;
            break;
        case EACCES:
        case EPERM:
            key = Title("Main", "File permission denied");
            break;
        case EROFS:
            key = Title("Main", "File system read-only");
            break;
        case ENOSPC:
        case EDQUOT:
            key = Title("Main", "No space left");
            break;
        case EISDIR:
            key = Title("Main", "File is a folder");
            break;
        default:
            break;
    }
    return {text(key), path + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(error))};
}

Failure readFailure(int error, const QString& path) {
    return openingFailure(
        path, systemFailure(error, path, Title("Main", "File missing"), Title("Main", "File not readable")));
}

Failure writeFailure(int error, const QString& path) {
    return savingFailure(
        path, systemFailure(error, path, Title("Main", "Folder missing"), Title("Main", "File not writable")));
}

Failure named(const QString& format, const QString& path, const Failure& reason) {
    return {fillFormat(format, {QFileInfo(path).fileName(), reason.sentence}, reason.sentence), reason.detail};
}

/// The file that a path means: symbolic links followed, also where the last one leads to nothing yet.
QString followed(const QString& path) {
    QFileInfo file(path);
    for (int links = 0; file.isSymLink() && links < 40; ++links) {
        file.setFile(file.symLinkTarget());
    }
    return file.absoluteFilePath();
}

/// A new file beside another, removed again unless it took the other's place.
class FileBeside {
public:
    explicit FileBeside(const QString& target) : target_(QFile::encodeName(target)) {
        const QByteArray folder = QFile::encodeName(QFileInfo(target).absolutePath());
        do {
            name_ = folder + "/.tavrel-" + QByteArray::number(QRandomGenerator::global()->generate64(), 36);
            descriptor_ = ::open(name_.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        } while (descriptor_ < 0 && errno == EEXIST);
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside() {
        if (descriptor_ >= 0) {
            ::close(descriptor_);
        }
        if (pending_) {
            ::unlink(name_.constData());
        }
    }

    /// Each step answers false with errno set when it fails.
    bool create() {
        pending_ = descriptor_ >= 0;
        return pending_;
    }

    bool write(QByteArrayView bytes) {
        while (!bytes.isEmpty()) {
            const ssize_t written = ::write(descriptor_, bytes.data(), static_cast<std::size_t>(bytes.size()));
            if (written < 0 && errno != EINTR) {
                return false;
            }
            bytes = bytes.sliced(written < 0 ? 0 : written);
        }
        return true;
    }

    bool takeModeOf(const struct stat& old) {
        // Another's file stays another's where the system allows; where it does not, the contents matter more.
        if (::fchown(descriptor_, old.st_uid, old.st_gid) != 0) {
            errno = 0;
        }
        return ::fchmod(descriptor_, old.st_mode & 07777U) == 0;
    }

    bool flush() {
        const bool flushed = ::fsync(descriptor_) == 0;
        const int error = errno;
        const bool closed = ::close(descriptor_) == 0;
        descriptor_ = -1;
        if (!flushed) {
            errno = error;
        }
        return flushed && closed;
    }

    bool replaceTarget() {
        if (std::rename(name_.constData(), target_.constData()) != 0) {
            return false;
        }
        pending_ = false;
        // The rename itself reaches the disk with the folder; file systems that cannot flush one do without.
        const QByteArray folder = target_.left(target_.lastIndexOf('/') + 1);
        const int descriptor = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (descriptor >= 0) {
            ::fsync(descriptor);
            ::close(descriptor);
        }
        return true;
    }

private:
    QByteArray target_;
    QByteArray name_;
    int descriptor_ = -1;
    bool pending_ = false;
};

}  // namespace

Failure openingFailure(const QString& path, const Failure& reason) {
    return named(text("Main", "Document not opened"), path, reason);
}

Failure savingFailure(const QString& path, const Failure& reason) {
    return named(text("Main", "Document not saved"), path, reason);
}

Expected<FileBytes> FileBytes::open(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat status {};
    if (::stat(name.constData(), &status) != 0) {
        return tl::unexpected(readFailure(errno, path));
    }
    if (S_ISDIR(status.st_mode)) {
        return tl::unexpected(readFailure(EISDIR, path));
    }
    if (!S_ISREG(status.st_mode)) {
        return tl::unexpected(openingFailure(path, {text("Main", "File is not regular"), path}));
    }
    if (::access(name.constData(), R_OK) != 0) {
        return tl::unexpected(readFailure(errno, path));
    }
    FileBytes result;
    result.file_ = std::make_unique<QFile>(path);
    QFile& file = *result.file_;
    if (!file.open(QIODevice::ReadOnly)) {
        return tl::unexpected(openingFailure(path, {text("Main", "File not readable"), file.errorString()}));
    }
    const qint64 size = file.size();
    if (const uchar* mapped = size > 0 ? file.map(0, size) : nullptr) {
        result.bytes_ = QByteArrayView(mapped, static_cast<qsizetype>(size));
        return result;
    }
    result.copy_ = file.readAll();
    if (file.error() != QFile::NoError) {
        return tl::unexpected(openingFailure(path, {text("Main", "File not readable"), file.errorString()}));
    }
    result.bytes_ = result.copy_;
    return result;
}

Expected<void> writeFile(const QString& path, QByteArrayView bytes) {
    const QString target = followed(path);
    const QByteArray name = QFile::encodeName(target);
    struct stat old {};
    const bool exists = ::stat(name.constData(), &old) == 0;
    if (!exists && errno != ENOENT) {
        return tl::unexpected(writeFailure(errno, path));
    }
    if (exists && S_ISDIR(old.st_mode)) {
        return tl::unexpected(writeFailure(EISDIR, path));
    }
    if (exists && !S_ISREG(old.st_mode)) {
        return tl::unexpected(savingFailure(path, {text("Main", "File is not regular"), path}));
    }
    // Renaming would replace a file that its owner has protected.
    if (exists && ::access(name.constData(), W_OK) != 0) {
        return tl::unexpected(writeFailure(errno, path));
    }
    FileBeside beside(target);
    if (!beside.create() || !beside.write(bytes) || (exists && !beside.takeModeOf(old)) || !beside.flush() ||
        !beside.replaceTarget()) {
        return tl::unexpected(writeFailure(errno, path));
    }
    return {};
}

}  // namespace tavrel
