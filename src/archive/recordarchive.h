#pragma once

#include "archive/seriespath.h"
#include "base/failure.h"
#include "base/progress.h"
#include "records/recordlayout.h"

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>

namespace tavrel {

/// The records of a document file, and the class version that the first of them was archived with (the version that
/// would be written, when there is none). An archive may hold the same record twice; it is then one shared record here
/// too.
struct RecordFile {
    int version = 0;
    RecordList records;
};

/// The class of the first record of a document file, which tells the type of document; null when it holds none.
Expected<QString> recordClassOf(QByteArrayView bytes);
/// The version of that class; 0 when there is none.
std::int64_t recordVersionOf(QByteArrayView bytes);

/// Reads a document file in one pass. Every item that the layout names for the record's class version must stand there
/// in order and with its type; groups beyond them, which a later version may have added, are skipped. Fails as a whole,
/// with the offset of what cannot be read.
Expected<RecordFile> readRecords(QByteArrayView bytes, const RecordLayout& layout, const Progress& progress = {},
                                 SeriesPath path = SeriesPath::fast);

/// The document file of the records, all items of the layout's version. A record that stands twice in the list is
/// written once.
QByteArray writeRecords(const RecordList& records, const RecordLayout& layout,
                        SeriesNumbers numbers = SeriesNumbers::shared, SeriesPath path = SeriesPath::fast);

}  // namespace tavrel
