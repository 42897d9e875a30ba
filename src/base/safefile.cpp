#include "base/safefile.h"

#include "base/filebeside.h"
#include "base/inplace.h"
#include "base/paths.h"
#include "base/texts.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
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
    return {text(key), shownPath(path) + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(error))};
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
    return {fillFormat(format, {shownName(path), reason.sentence}, reason.sentence), reason.detail};
}

/// Whether a file that cannot be replaced may be written in place; one on a full or failing disk may not.
bool mayWriteInPlace(int error) {
    return error != ENOSPC && error != EDQUOT && error != EIO && error != EFBIG;
}

enum class Attempt { done, failed, unlinkable };

/// Fills a file and puts it in the target's place. `unlinkable`: it was filled without a name and cannot get one.
Attempt writeBeside(const QByteArray& target, QByteArrayView bytes, const struct stat* old, bool named,
                    struct stat& written) {
    FileBeside beside(target);
    if (!beside.create(named, old ? FileBeside::Access::owner : FileBeside::Access::usual)) {
        return named ? Attempt::failed : Attempt::unlinkable;
    }
    if (!beside.write(bytes) || !(old ? beside.takeAttributesOf(target, *old) : beside.takeUsualMode()) ||
        !beside.flush()) {
        return Attempt::failed;
    }
    if (!beside.replaceTarget()) {
        return named || beside.isNamed() ? Attempt::failed : Attempt::unlinkable;
    }
    if (!beside.status(written)) {
        written = {};
    }
    return Attempt::done;
}

}  // namespace

Failure openingFailure(const QString& path, const Failure& reason) {
    return named(text("Main", "Document not opened"), path, reason);
}

Failure savingFailure(const QString& path, const Failure& reason) {
    return named(text("Main", "Document not saved"), path, reason);
}

Expected<FileBytes> FileBytes::open(const QString& path) {
    struct Descriptor {
        explicit Descriptor(int opened) : number(opened) {}
        Descriptor(const Descriptor&) = delete;
        Descriptor& operator=(const Descriptor&) = delete;
        ~Descriptor() { number >= 0 ? ::close(number) : 0; }
        int number;
    };
    // Without waiting for who might write into a pipe.
    const Descriptor file(::open(pathBytes(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    FileBytes result;
    struct stat& status = result.status_;
    if (file.number < 0 || ::fstat(file.number, &status) != 0) {
        return tl::unexpected(readFailure(errno, path));
    }
    if (S_ISDIR(status.st_mode)) {
        return tl::unexpected(readFailure(EISDIR, path));
    }
    if (!S_ISREG(status.st_mode)) {
        return tl::unexpected(openingFailure(path, {text("Main", "File is not regular"), shownPath(path)}));
    }
    // Read and not mapped: another program may cut the file short at any time. One byte more shows its end.
    QByteArray& bytes = result.bytes_;
    bytes.resize(status.st_size + 1);
    qsizetype filled = 0;
    for (;;) {
        const ssize_t count =
            ::read(file.number, bytes.data() + filled, static_cast<std::size_t>(bytes.size() - filled));
        if (count < 0 && errno != EINTR) {
            return tl::unexpected(readFailure(errno, path));
        }
        if (count == 0) {
            break;
        }
        filled += std::max<ssize_t>(count, 0);
        if (filled == bytes.size()) {
            bytes.resize(bytes.size() * 2);
        }
    }
    bytes.truncate(filled);
    return result;
}

Expected<void> writeFile(const QString& path, QByteArrayView bytes) {
    return replaceFile(path, bytes).map([](const FileIdentity&) {});
}

Expected<FileIdentity> replaceFile(const QString& path, QByteArrayView bytes) {
    const QByteArray target = resolvedPath(pathBytes(path));
    struct stat old {};
    const bool exists = !target.isEmpty() && ::stat(target.constData(), &old) == 0;
    if (target.isEmpty() || (!exists && errno != ENOENT)) {
        return tl::unexpected(writeFailure(errno, path));
    }
    if (exists && S_ISDIR(old.st_mode)) {
        return tl::unexpected(writeFailure(EISDIR, path));
    }
    if (exists && !S_ISREG(old.st_mode)) {
        return tl::unexpected(savingFailure(path, {text("Main", "File is not regular"), shownPath(path)}));
    }
    // Renaming would replace a file that its owner has protected.
    if (exists && ::access(target.constData(), W_OK) != 0) {
        return tl::unexpected(writeFailure(errno, path));
    }
    auto hash = contentHashAside(bytes);
    struct stat written {};
    Attempt attempt = writeBeside(target, bytes, exists ? &old : nullptr, false, written);
    if (attempt == Attempt::unlinkable) {
        attempt = writeBeside(target, bytes, exists ? &old : nullptr, true, written);
    }
    if (attempt != Attempt::done) {
        QByteArray copyLeft;
        if (!exists || !mayWriteInPlace(errno) || !writeInPlace(target, bytes, written, copyLeft)) {
            Failure reason = writeFailure(errno, path);
            if (!copyLeft.isEmpty()) {
                reason.detail += u'\n' + textWith("Main", "Copy kept", shownPath(pathFromBytes(copyLeft)));
            }
            return tl::unexpected(std::move(reason));
        }
    }
    return FileIdentity(written, bytes.size(), hash.get());
}

Expected<void> writePrivateFile(const QString& path, QByteArrayView bytes) {
    FileBeside beside(pathBytes(path));
    if (!beside.create(true, FileBeside::Access::owner) || !beside.write(bytes) || !beside.flush() ||
        !beside.replaceTarget()) {
        return tl::unexpected(writeFailure(errno, path));
    }
    return {};
}

Expected<void> copyFile(const QString& path, const QString& copy) {
    const auto bytes = FileBytes::open(path);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    // A link of the copy's name is replaced, not followed.
    FileBeside beside(pathBytes(absolutePath(copy)));
    if (!beside.create(true, FileBeside::Access::owner) || !beside.write(bytes->bytes()) ||
        (!beside.takeAttributesOf(pathBytes(path), bytes->status()) && !beside.stayPrivate()) || !beside.flush() ||
        !beside.replaceTarget()) {
        return tl::unexpected(writeFailure(errno, copy));
    }
    return {};
}

bool isOutlet(const QString& path) {
    struct stat status {};
    return ::stat(pathBytes(path).constData(), &status) == 0 &&
           (S_ISCHR(status.st_mode) || S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode));
}

Expected<void> writeToOutlet(const QString& path, QByteArrayView bytes) {
    QFile outlet;
    const int descriptor = ::open(pathBytes(path).constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0 || !outlet.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)) {
        return tl::unexpected(writeFailure(errno, path));
    }
    if (outlet.write(bytes.data(), bytes.size()) != bytes.size() || !outlet.flush()) {
        return tl::unexpected(savingFailure(path, {text("Main", "File not writable"), outlet.errorString()}));
    }
    return {};
}

}  // namespace tavrel
