#pragma once

#include <QByteArray>

struct stat;

namespace tavrel {

/// Gives a new file the owner, group, access list, user attributes and permissions of an old one, the permissions last.
/// Where the owner cannot be given, the group is, unless the old owner would then get less than before. False, with
/// errno set, when something cannot be kept.
bool copyAttributes(const QByteArray& old, const struct stat& status, int descriptor);

}  // namespace tavrel
