#pragma once

#include "archive/recordarchive.h"
#include "base/jsonwriter.h"

#include <QCryptographicHash>
#include <QString>

namespace tavrel {

namespace recordjson {

inline void write(JsonWriter& json, qint32 value) {
    json.value(value);
}
inline void write(JsonWriter& json, float value) {
    json.value(value);
}
inline void write(JsonWriter& json, const QString& value) {
    value.isNull() ? json.null() : json.value(value);
}
inline void write(JsonWriter& json, const Date& value) {
    value.isNull() ? json.null() : json.value(value.toIso());
}
void write(JsonWriter& json, const Series& value);
void write(JsonWriter& json, const Image& value);

}  // namespace recordjson

/// The records of a document as one JSON object: type name, record class, class version of the file, and the records
/// with every archived field under its name in archive order. Integers and the shortest decimals that restore a number,
/// "nan", "inf" and "-inf" as texts, null for what was never entered, dates in ISO 8601 UTC, series as arrays, pictures
/// by their size in bytes and SHA-256.
template <class Record>
void writeRecordsJson(JsonWriter& json, const QString& type, const RecordFile<Record>& file,
                      const RecordLayout<Record>& layout) {
    json.beginObject();
    json.member(u"type", type);
    json.member(u"class", QString::fromUtf8(layout.className.data(), static_cast<qsizetype>(layout.className.size())));
    json.member(u"version", file.version);
    json.key(u"records");
    json.beginArray();
    for (const auto& record : file.records) {
        json.beginObject();
        for (const auto& item : layout.items) {
            if (item.travels(layout.version)) {
                json.key(QString::fromUtf8(item.key.data(), static_cast<qsizetype>(item.key.size())));
                std::visit([&](auto member) { recordjson::write(json, (*record).*member); }, item.field());
            }
        }
        json.endObject();
    }
    json.endArray();
    json.endObject();
    json.flush();
}

}  // namespace tavrel
