#pragma once

#include "base/failure.h"
#include "profileshape.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

namespace tavrel {

/// A dive of the list: what is entered into the form, in order, and the course of its profile.
struct ListedDive {
    std::vector<std::pair<QString, QString>> entries;
    std::optional<ProfileShape> shape;
};

/// Reads a list of dives: blocks of lines, separated by empty lines. A line is "field=value" ("\n" in it starts a new
/// line) or one of
///
///     # a remark
///     [name]                   the block is a set of lines and not a dive
///     use NAME                 the lines of that set
///     stop LEVEL DEPTH MINUTES OXYGEN [HELIUM]
///     course MINUTE:DEPTH …    the profile; gives the depth and the time of the dive too
///     gas MINUTE:FLAG …        gas switches of the profile
///     ceiling FROM-TO …        ceiling violations, in minutes
///     pressure START END       the pressure series
///
/// Fails with the number of a line that is none of these.
Expected<std::vector<ListedDive>> readDiveList(const QString& list);

}  // namespace tavrel
