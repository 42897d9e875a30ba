#include "base/inplace.h"

#include "base/fileidentity.h"
#include "base/paths.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrel {

namespace {

class OpenFile {
public:
    explicit OpenFile(int descriptor) : descriptor_(descriptor) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        const int error = errno;
        if (descriptor_ >= 0) {
            ::close(descriptor_);
        }
        errno = error;
    }
    bool isOpen() const { return descriptor_ >= 0; }
    int operator*() const { return descriptor_; }

private:
    int descriptor_;
};

class SignalsWait {
public:
    SignalsWait() {
        sigset_t ending;
        ::sigemptyset(&ending);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
            ::sigaddset(&ending, signal);
        }
        ::pthread_sigmask(SIG_BLOCK, &ending, &before_);
    }
    SignalsWait(const SignalsWait&) = delete;
    SignalsWait& operator=(const SignalsWait&) = delete;
    ~SignalsWait() {
        const int error = errno;
        ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
        errno = error;
    }

private:
    sigset_t before_{};
};

bool writeAll(int file, QByteArrayView bytes) {
    off_t offset = 0;
    while (!bytes.isEmpty()) {
        const ssize_t written = ::pwrite(file, bytes.data(), static_cast<std::size_t>(bytes.size()), offset);
        if (written < 0 && errno != EINTR) {
            return false;
        }
        bytes = bytes.sliced(written < 0 ? 0 : written);
        offset += written < 0 ? 0 : written;
    }
    return true;
}

std::optional<QByteArray> readAll(const QByteArray& path) {
    const OpenFile file(::open(path.constData(), O_RDONLY | O_CLOEXEC));
    QByteArray bytes;
    constexpr qsizetype piece = 1 << 20;
    while (file.isOpen()) {
        const qsizetype size = bytes.size();
        bytes.resize(size + piece);
        const ssize_t read = ::read(*file, bytes.data() + size, piece);
        bytes.truncate(size + std::max<ssize_t>(read, 0));
        if (read == 0) {
            return bytes;
        }
        if (read < 0 && errno != EINTR) {
            break;
        }
    }
    return std::nullopt;
}

/// Where the old contents of that file lie while it is written.
QByteArray copyName(const QByteArray& target) {
    const QString folder = stateFolder();
    return folder.isEmpty() ? QByteArray() : pathBytes(folder) + "/saving-" + contentHash(target).toHex().left(32);
}

bool keepCopy(const QByteArray& name, QByteArrayView bytes) {
    if (name.isEmpty()) {
        errno = EROFS;
        return false;
    }
    const OpenFile file(::open(name.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600));
    return file.isOpen() && writeAll(*file, bytes) && ::fsync(*file) == 0;
}

bool replaceContents(int file, QByteArrayView bytes) {
    return writeAll(file, bytes) && ::ftruncate(file, bytes.size()) == 0 && ::fsync(file) == 0;
}

}  // namespace

bool writeInPlace(const QByteArray& target, QByteArrayView bytes, struct stat& status, QByteArray& copyLeft) {
    const OpenFile file(::open(target.constData(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC));
    if (!file.isOpen()) {
        return false;
    }
    const auto old = readAll(target);
    const QByteArray copy = copyName(target);
    const SignalsWait signalsWait;
    if (!old || !keepCopy(copy, *old)) {
        return false;
    }
    // Room is claimed before anything is overwritten: a full disk is the likeliest failure.
    const int room = bytes.size() > old->size() ? ::posix_fallocate(*file, 0, bytes.size()) : 0;
    const bool mayWrite = room == 0 || room == EOPNOTSUPP || room == EINVAL;
    errno = room;
    const bool written = mayWrite && replaceContents(*file, bytes) && ::fstat(*file, &status) == 0;
    const int error = errno;
    if (!written && !replaceContents(*file, *old)) {
        copyLeft = copy;
        errno = error;
        return false;
    }
    ::unlink(copy.constData());
    errno = error;
    return written;
}

}  // namespace tavrel
