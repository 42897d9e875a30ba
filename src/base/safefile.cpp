#include "base/safefile.h"

#include "base/filebeside.h"
#include "base/inplace.h"
#include "base/paths.h"
#include "base/texts.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <deque>
#include <fcntl.h>
#include <memory>
#include <sys/resource.h>
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

/// New contents on their way into a file's place, in two steps, so that several files can take each together.
class Replacement {
public:
    Replacement(const QString& path, QByteArrayView bytes) : path_(path), bytes_(bytes) {}

    /// Fills a file beside: what fails for want of room or rights fails here, but for a file to be written in place.
    Expected<void> fill() {
        target_ = resolvedPath(pathBytes(path_));
        exists_ = !target_.isEmpty() && ::stat(target_.constData(), &old_) == 0;
        if (target_.isEmpty() || (!exists_ && errno != ENOENT)) {
            return failed();
        }
        if (exists_ && S_ISDIR(old_.st_mode)) {
            return tl::unexpected(writeFailure(EISDIR, path_));
        }
        if (exists_ && !S_ISREG(old_.st_mode)) {
            return tl::unexpected(savingFailure(path_, {text("Main", "File is not regular"), shownPath(path_)}));
        }
        // Renaming would replace a file that its owner has protected.
        if (exists_ && ::access(target_.constData(), W_OK) != 0) {
            return failed();
        }
        if (!fillBeside(false) && (beside_ || !fillBeside(true))) {
            beside_.reset();
            error_ = errno;
            return mayGoInPlace() ? Expected<void>() : failed();
        }
        return {};
    }

    /// Gives the status of the file, empty where that cannot be told.
    Expected<struct stat> replace() {
        struct stat written {};
        if (beside_) {
            if (putInPlace()) {
                if (!beside_->status(written)) {
                    written = {};
                }
                return written;
            }
            error_ = errno;
        }
        QByteArray copyLeft;
        errno = error_;
        if (!mayGoInPlace() || !writeInPlace(target_, bytes_, written, copyLeft)) {
            Failure reason = writeFailure(errno, path_);
            if (!copyLeft.isEmpty()) {
                reason.detail += u'\n' + textWith("Main", "Copy kept", shownPath(pathFromBytes(copyLeft)));
            }
            return tl::unexpected(std::move(reason));
        }
        return written;
    }

private:
    tl::unexpected<Failure> failed() const { return tl::unexpected(writeFailure(errno, path_)); }
    bool mayGoInPlace() const { return exists_ && mayWriteInPlace(errno); }

    /// Leaves no file beside where none without a name can be made.
    bool fillBeside(bool named) {
        beside_ = std::make_unique<FileBeside>(target_);
        if (!beside_->create(named, exists_ ? FileBeside::Access::owner : FileBeside::Access::usual)) {
            beside_.reset();
            return false;
        }
        return beside_->write(bytes_) &&
               (exists_ ? beside_->takeAttributesOf(target_, old_) : beside_->takeUsualMode()) && beside_->flush();
    }

    /// A file that was filled without a name and cannot get one is filled again with one.
    bool putInPlace() {
        return beside_->replaceTarget() || (!beside_->isNamed() && fillBeside(true) && beside_->replaceTarget());
    }

    QString path_;
    QByteArrayView bytes_;
    QByteArray target_;
    struct stat old_ {};
    bool exists_ = false;
    std::unique_ptr<FileBeside> beside_;  ///< null for a file to be written in place
    int error_ = 0;                       ///< why it is
};

/// Lets the program have so many files open beside its others, as far as the system lets it.
class OpenFiles {
public:
    explicit OpenFiles(std::size_t count) {
        constexpr rlim_t others = 256;
        if (::getrlimit(RLIMIT_NOFILE, &usual_) == 0 && usual_.rlim_cur < count + others) {
            struct rlimit more = usual_;
            more.rlim_cur = std::min<rlim_t>(count + others, usual_.rlim_max);
            isRaised_ = ::setrlimit(RLIMIT_NOFILE, &more) == 0;
        }
    }
    OpenFiles(const OpenFiles&) = delete;
    OpenFiles& operator=(const OpenFiles&) = delete;
    ~OpenFiles() { isRaised_ ? ::setrlimit(RLIMIT_NOFILE, &usual_) : 0; }

private:
    struct rlimit usual_ {};
    bool isRaised_ = false;
};

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
    Replacement replacement(path, bytes);
    auto hash = contentHashAside(bytes);
    return replacement.fill().and_then([&] { return replacement.replace(); }).map([&](const struct stat& written) {
        return FileIdentity(written, bytes.size(), hash.get());
    });
}

Expected<void> writeFiles(const std::vector<FileContents>& files) {
    const OpenFiles room(files.size());
    std::deque<Replacement> replacements;
    for (const FileContents& file : files) {
        if (auto filled = replacements.emplace_back(file.path, file.bytes).fill(); !filled) {
            return filled;
        }
    }
    for (Replacement& each : replacements) {
        if (const auto replaced = each.replace(); !replaced) {
            return tl::unexpected(replaced.error());
        }
    }
    return {};
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

bool isSameFile(const QString& path, const QString& other) {
    struct stat one {};
    struct stat two {};
    return ::stat(pathBytes(path).constData(), &one) == 0 && ::stat(pathBytes(other).constData(), &two) == 0 &&
           one.st_dev == two.st_dev && one.st_ino == two.st_ino;
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
