#include "base/filebeside.h"

#include "base/fileattributes.h"

#include <QRandomGenerator>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <mutex>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrel {

namespace {

constexpr QByteArrayView namePrefix(".tavrel-");
constexpr qsizetype randomLength = 16;

// The names that a signal which ends the program removes first. A handler may do no more than read them.
std::array<std::atomic<const char*>, 8> pendingNames;
static_assert(std::atomic<const char*>::is_always_lock_free);

void removeAndEnd(int signal) {
    for (const auto& name : pendingNames) {
        if (const char* path = name.load()) {
            ::unlink(path);
        }
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

/// Signals that the program itself handles are left to it.
void watchSignals() {
    static std::once_flag once;
    std::call_once(once, [] {
        for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE}) {
            struct sigaction held {};
            if (::sigaction(signal, nullptr, &held) == 0 && held.sa_handler == SIG_DFL) {
                struct sigaction removing {};
                removing.sa_handler = removeAndEnd;
                ::sigaction(signal, &removing, nullptr);
            }
        }
    });
}

/// A file too long for the user's limit fails like any other write, instead of ending the program.
void ignoreSizeSignal() {
    static std::once_flag once;
    std::call_once(once, [] {
        struct sigaction held {};
        if (::sigaction(SIGXFSZ, nullptr, &held) == 0 && held.sa_handler == SIG_DFL) {
            std::signal(SIGXFSZ, SIG_IGN);
        }
    });
}

bool isOurs(const char* name) {
    const QByteArrayView view(name);
    if (!view.startsWith(namePrefix) || view.size() != namePrefix.size() + randomLength) {
        return false;
    }
    for (const char each : view.sliced(namePrefix.size())) {
        if (!((each >= '0' && each <= '9') || (each >= 'a' && each <= 'z'))) {
            return false;
        }
    }
    return true;
}

/// Removes what programs that ended in the middle of a save have left in the folder. One that still writes holds a
/// lock on its file.
void sweep(const QByteArray& folder) {
    struct Closed {
        void operator()(DIR* open) const { ::closedir(open); }
    };
    const std::unique_ptr<DIR, Closed> open(::opendir(folder.constData()));
    while (const dirent* entry = open ? ::readdir(open.get()) : nullptr) {
        if (!isOurs(entry->d_name)) {
            continue;
        }
        const QByteArray path = folder + entry->d_name;
        const int file = ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        struct stat status {};
        if (file >= 0 && ::fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid() &&
            ::flock(file, LOCK_EX | LOCK_NB) == 0) {
            ::unlink(path.constData());
        }
        if (file >= 0) {
            ::close(file);
        }
    }
}

QByteArray newName(const QByteArray& folder) {
    const QByteArray random = QByteArray::number(QRandomGenerator::global()->generate64(), 36);
    return folder + namePrefix.toByteArray() + random.rightJustified(randomLength, '0');
}

}  // namespace

FileBeside::FileBeside(const QByteArray& target) : target_(target), folder_(target.left(target.lastIndexOf('/') + 1)) {
    ignoreSizeSignal();
}

FileBeside::~FileBeside() {
    const int error = errno;
    if (!name_.isEmpty()) {
        ::unlink(name_.constData());
        dropName();
    }
    if (descriptor_ >= 0) {
        ::close(descriptor_);
    }
    errno = error;
}

bool FileBeside::create(bool named, Access access) {
    sweep(folder_);
    // What the system gives a new file, the folder's access list considered, is noted and taken back while it fills.
    // It never is what others may not read: they could have it open by then.
    const mode_t mode = access == Access::usual ? 0666 : 0600;
    if (named) {
        int attempts = 0;
        do {
            name_ = newName(folder_);
            descriptor_ = ::open(name_.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        } while (descriptor_ < 0 && errno == EEXIST && ++attempts < 100);
        if (descriptor_ < 0) {
            name_.clear();
            return false;
        }
        if (!claimName()) {
            return false;
        }
    } else {
        descriptor_ = ::open(folder_.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, mode);
    }
    struct stat status {};
    if (descriptor_ < 0 || ::fstat(descriptor_, &status) != 0) {
        return false;
    }
    usualMode_ = status.st_mode & 07777U;
    return stayPrivate();
}

/// Locks the file, so that nobody sweeps it, and has signals remove it. A file system without locks does without:
/// there nobody can take one to sweep either.
bool FileBeside::claimName() {
    watchSignals();
    for (std::size_t slot = 0; slot < pendingNames.size() && slot_ < 0; ++slot) {
        const char* empty = nullptr;
        if (pendingNames[slot].compare_exchange_strong(empty, name_.constData())) {
            slot_ = static_cast<int>(slot);
        }
    }
    ::flock(descriptor_, LOCK_EX);
    return true;
}

void FileBeside::dropName() {
    if (slot_ >= 0) {
        pendingNames[static_cast<std::size_t>(slot_)].store(nullptr);
        slot_ = -1;
    }
    name_.clear();
}

bool FileBeside::write(QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(descriptor_, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written < 0 && errno != EINTR) {
            return false;
        }
        bytes = bytes.sliced(written < 0 ? 0 : written);
    }
    return true;
}

bool FileBeside::takeAttributesOf(const QByteArray& path, const struct stat& old) {
    return copyAttributes(path, old, descriptor_);
}

bool FileBeside::stayPrivate() {
    // Of an access list this leaves the owner's part alone.
    return ::fchmod(descriptor_, 0600) == 0;
}

bool FileBeside::takeUsualMode() {
    return ::fchmod(descriptor_, usualMode_) == 0;
}

bool FileBeside::flush() {
    return ::fsync(descriptor_) == 0;
}

bool FileBeside::status(struct stat& status) const {
    return ::fstat(descriptor_, &status) == 0;
}

bool FileBeside::link() {
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(descriptor_);
    int attempts = 0;
    int linked = -1;
    do {
        name_ = newName(folder_);
        claimName();
        linked = ::linkat(AT_FDCWD, self.constData(), AT_FDCWD, name_.constData(), AT_SYMLINK_FOLLOW);
        if (linked != 0) {
            const int error = errno;
            dropName();
            errno = error;
        }
    } while (linked != 0 && errno == EEXIST && ++attempts < 100);
    return linked == 0;
}

bool FileBeside::replaceTarget() {
    if (name_.isEmpty() && !link()) {
        return false;
    }
    if (std::rename(name_.constData(), target_.constData()) != 0) {
        return false;
    }
    dropName();
    // The rename itself reaches the disk with the folder; file systems that cannot flush one do without.
    const int folder = ::open(folder_.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
    return true;
}

}  // namespace tavrel
