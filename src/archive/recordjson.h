#pragma once

#include "archive/recordarchive.h"

#include <QString>

namespace tavrel {

class JsonWriter;

/// The records of a document as one JSON object: type name, record class, class version of the file, and the records
/// with every archived field under its name in archive order. Integers and the shortest decimals that restore a number,
/// "nan", "inf" and "-inf" as texts, null for what was never entered, dates in ISO 8601 UTC, series as arrays, pictures
/// by their size in bytes and SHA-256.
void writeRecordsJson(JsonWriter& json, const QString& type, const RecordFile& file, const RecordLayout& layout);

}  // namespace tavrel
