#pragma once

#include "base/failure.h"
#include "base/progress.h"
#include "base/texts.h"
#include "records/record.h"

#include <QByteArray>
#include <QStringList>

#include <span>
#include <string_view>

namespace tavrel {

class Carnet;

/// A format that a logbook can be written in besides its own, as documents, menus and the command line know it.
struct LogbookExport {
    const char* name;       ///< "csv-semicolon"
    const char* typeName;   ///< the document type
    Title title;            ///< for a choice among them
    const char* extension;  ///< of new files, without a dot
    Expected<QByteArray> (*produce)(Carnet& carnet);
    /// The fields of a dive that the format has a place for, where its files cannot be read back; else empty.
    std::span<const std::string_view> heldFields = {};
    /// Of a format with a column for each field: the bytes with some of them, all when none is named.
    Expected<QByteArray> (*produceColumns)(const RecordList& dives, const QStringList& columns,
                                           const Progress& progress) = nullptr;

    bool hasColumns() const { return produceColumns; }
    /// The bytes for these dives alone, in the order given, with the columns chosen or all. The progress is the
    /// logbook's.
    Expected<QByteArray> produceFrom(const Carnet& carnet, const RecordList& dives,
                                     const QStringList& columns = {}) const;
};

}  // namespace tavrel
