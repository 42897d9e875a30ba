#pragma once

#include "base/failure.h"
#include "base/progress.h"
#include "interchange/standard/founddive.h"
#include "interchange/standard/tablereading.h"
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

/// What the tree of a root is; nothing when it holds none of these.
std::optional<SourceKind> kindOfRoot(XmlElement root);
/// The same of a whole tree, where that of a UDDF file gets its names in small letters.
std::optional<SourceKind> kindOfTree(XmlTree& tree);

/// What a file seems to be by its beginning, which is enough to offer an import; nothing when it holds no dives.
std::optional<SourceKind> kindOfStart(QByteArrayView bytes);

/// The dives of a file as they were found, whatever it is.
struct Source {
    SourceKind kind;
    FoundDives found;
    std::vector<TableColumn> columns = {};  ///< of a table
};

/// Fails when the file is nothing that holds dives, or cannot be read. The columns of a table are taken for what was
/// chosen, its numbers for the logbook's in US or metric units; one of which none holds the day comes without dives.
Expected<Source> readSource(QByteArrayView bytes, const Progress& progress = {}, const TableColumns& chosen = {},
                            bool usUnits = false);

}  // namespace tavrel
