#include "base/fileattributes.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cerrno>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace tavrel {

namespace {

constexpr char accessList[] = "system.posix_acl_access";

/// Whether an attribute is merely not there, or not known to the file system at all.
bool isAbsence(int error) {
    return error == ENODATA || error == ENOTSUP || error == ENOSYS;
}

enum class Copied { yes, absent, failed };

Copied copyAttribute(const QByteArray& old, int descriptor, const char* name) {
    const ssize_t size = ::getxattr(old.constData(), name, nullptr, 0);
    if (size < 0) {
        return isAbsence(errno) ? Copied::absent : Copied::failed;
    }
    QByteArray value(static_cast<qsizetype>(size), '\0');
    const ssize_t read = ::getxattr(old.constData(), name, value.data(), static_cast<std::size_t>(size));
    if (read < 0 || ::fsetxattr(descriptor, name, value.constData(), static_cast<std::size_t>(read), 0) != 0) {
        return Copied::failed;
    }
    return Copied::yes;
}

/// One that the folder gave to the new file would let in whom the old file kept out.
bool copyAccessList(const QByteArray& old, int descriptor, bool& hasList) {
    const Copied copied = copyAttribute(old, descriptor, accessList);
    hasList = copied == Copied::yes;
    if (copied == Copied::absent && ::fremovexattr(descriptor, accessList) != 0) {
        return isAbsence(errno);
    }
    return copied != Copied::failed;
}

bool copyUserAttributes(const QByteArray& old, int descriptor) {
    const ssize_t size = ::listxattr(old.constData(), nullptr, 0);
    if (size < 0) {
        return isAbsence(errno);
    }
    QByteArray names(static_cast<qsizetype>(size), '\0');
    const ssize_t read = ::listxattr(old.constData(), names.data(), static_cast<std::size_t>(size));
    if (read < 0) {
        return false;
    }
    names.truncate(static_cast<qsizetype>(read));
    const QList<QByteArray> all = names.split('\0');
    return std::all_of(all.begin(), all.end(), [&](const QByteArray& name) {
        return !name.startsWith("user.") || copyAttribute(old, descriptor, name.constData()) != Copied::failed;
    });
}

bool isMember(uid_t user, gid_t group) {
    passwd entry{};
    passwd* found = nullptr;
    std::array<char, 16384> buffer{};
    if (::getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found) != 0 || !found) {
        return false;
    }
    std::vector<gid_t> groups(64);
    int count = static_cast<int>(groups.size());
    if (::getgrouplist(entry.pw_name, entry.pw_gid, groups.data(), &count) < 0) {
        groups.resize(static_cast<std::size_t>(count));
        ::getgrouplist(entry.pw_name, entry.pw_gid, groups.data(), &count);
    }
    groups.resize(static_cast<std::size_t>(count));
    return std::find(groups.begin(), groups.end(), group) != groups.end();
}

/// Whether the owner of a file could do as much with it when it were another's of the same group.
bool keepsAccess(const struct stat& old) {
    const unsigned own = old.st_mode >> 6U & 06U;
    const unsigned shared = (isMember(old.st_uid, old.st_gid) ? old.st_mode >> 3U : old.st_mode) & 06U;
    return (own & ~shared) == 0;
}

bool copyOwner(const struct stat& old, int descriptor, bool hasList) {
    struct stat made {};
    if (::fstat(descriptor, &made) != 0) {
        return false;
    }
    if (made.st_uid != old.st_uid) {
        if (::fchown(descriptor, old.st_uid, old.st_gid) == 0) {
            return true;
        }
        if (hasList || !keepsAccess(old)) {
            errno = EPERM;
            return false;
        }
    }
    return made.st_gid == old.st_gid || ::fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) == 0;
}

}  // namespace

bool copyAttributes(const QByteArray& old, const struct stat& status, int descriptor) {
    bool hasList = false;
    return copyAccessList(old, descriptor, hasList) && copyOwner(status, descriptor, hasList) &&
           copyUserAttributes(old, descriptor) && ::fchmod(descriptor, status.st_mode & 07777U) == 0;
}

}  // namespace tavrel
