#include "base/fileidentity.h"

#include "base/paths.h"
#include "base/safefile.h"

#include <QCryptographicHash>

#include <cerrno>
#include <chrono>
#include <sys/stat.h>
#include <utility>

namespace tavrel {

namespace {

constexpr std::int64_t second = 1'000'000'000;
/// Nanoseconds: the coarsest steps of file times that are in use (two seconds, FAT).
constexpr std::int64_t coarsestStep = 2 * second;

std::int64_t nanoseconds(const timespec& time) {
    return time.tv_sec * second + time.tv_nsec;
}

std::int64_t now() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::system_clock::now().time_since_epoch())
        .count();
}

}  // namespace

QByteArray contentHash(QByteArrayView bytes) {
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    hash.addData(bytes);
    return hash.result();
}

std::future<QByteArray> contentHashAside(QByteArrayView bytes) {
    constexpr qsizetype many = 1 << 20;
    return std::async(bytes.size() > many ? std::launch::async : std::launch::deferred, contentHash, bytes);
}

FileIdentity::FileIdentity(const struct stat& status, std::int64_t size, QByteArray hash)
    : size_(size), hash_(std::move(hash)) {
    takeStatus(status);
}

void FileIdentity::takeStatus(const struct stat& status) {
    device_ = status.st_dev;
    node_ = status.st_ino;
    modified_ = nanoseconds(status.st_mtim);
    changed_ = nanoseconds(status.st_ctim);
    settled_ = now() - changed_ > coarsestStep;
}

bool FileIdentity::hasStatus(const struct stat& status) const {
    return status.st_dev == device_ && status.st_ino == node_ && status.st_size == size_ &&
           nanoseconds(status.st_mtim) == modified_ && nanoseconds(status.st_ctim) == changed_;
}

FileIdentity::State FileIdentity::stateOf(const QByteArray& path) {
    struct stat status {};
    if (::stat(path.constData(), &status) != 0) {
        return errno == ENOENT || errno == ENOTDIR ? State::gone : State::changed;
    }
    if (settled_ && hasStatus(status)) {
        return State::same;
    }
    if (status.st_size != size_) {
        return State::changed;
    }
    const auto bytes = FileBytes::open(pathFromBytes(path));
    if (!bytes || contentHash(bytes->bytes()) != hash_) {
        return State::changed;
    }
    takeStatus(bytes->status());
    return State::same;
}

}  // namespace tavrel
