#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <future>

struct stat;

namespace tavrel {

/// Which contents a file held when it was read or written: by its place, size and times where these tell, otherwise by
/// a hash of its bytes.
class FileIdentity {
public:
    FileIdentity() = default;
    /// Of a file with that status whose so many bytes have that hash.
    FileIdentity(const struct stat& status, std::int64_t size, QByteArray hash);

    enum class State { same, changed, gone };
    /// What has become of the file that the path means. One that cannot be read has changed. Contents that had to be
    /// looked at and are the same are remembered with their times, so that this is not done again.
    State stateOf(const QByteArray& path);

    std::int64_t size() const { return size_; }
    const QByteArray& hash() const { return hash_; }

private:
    bool hasStatus(const struct stat& status) const;
    void takeStatus(const struct stat& status);

    std::uint64_t device_ = 0;
    std::uint64_t node_ = 0;
    std::int64_t size_ = 0;
    std::int64_t modified_ = 0;  ///< nanoseconds since 1970, as the next
    std::int64_t changed_ = 0;
    /// The file had been left alone for a while, so that a later change shows in its times, which move in steps.
    bool settled_ = false;
    QByteArray hash_;
};

/// A hash of contents, the same in every run.
QByteArray contentHash(QByteArrayView bytes);
/// The same, worked out beside other work on the bytes when they are many. They must live until it is there.
std::future<QByteArray> contentHashAside(QByteArrayView bytes);

}  // namespace tavrel
