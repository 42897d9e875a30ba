#pragma once

#include "base/failure.h"
#include "base/progress.h"
#include "interchange/standard/founddive.h"
#include "interchange/xml/xmltree.h"

#include <QByteArrayView>

#include <optional>

namespace tavrel {

/// What a file with dives is, told by its contents.
enum class SourceKind {
    olderUddf,  ///< UDDF 1 and 2
    uddf,       ///< UDDF 3 and later
    udcf,       ///< also in a root named uddf, as this program exports
    handheld,   ///< the file of the companion logbook on a telephone
    logbook,    ///< a document of this program
    table,      ///< a text of cells with a heading
};

/// What the tree of a file is; nothing when it holds none of these.
std::optional<SourceKind> kindOfTree(XmlElement root);

/// The dives of a file as they were found, whatever it is. Fails when it is nothing that holds dives, or cannot be
/// read.
struct Source {
    SourceKind kind;
    FoundDives found;
};
Expected<Source> readSource(QByteArrayView bytes, const Progress& progress = {});

}  // namespace tavrel
