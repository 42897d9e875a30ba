#include "archive/recordjson.h"

#include "base/jsonwriter.h"

#include <QCryptographicHash>

#include <algorithm>

namespace tavrel {

namespace {

void write(JsonWriter& json, qint32 value) {
    json.value(value);
}
void write(JsonWriter& json, float value) {
    json.value(value);
}
void write(JsonWriter& json, const QString& value) {
    value.isNull() ? json.null() : json.value(value);
}
void write(JsonWriter& json, const Date& value) {
    value.isNull() ? json.null() : json.value(value.toIso());
}

void write(JsonWriter& json, const Series& value) {
    if (value.isNull()) {
        json.null();
        return;
    }
    json.beginArray();
    for (std::size_t index = 0; index < value.size(); ++index) {
        const Number number = value.at(index);
        if (number.code == 'f') {
            json.value(static_cast<float>(number.real));
        } else if (number.isReal()) {
            json.value(number.real);
        } else if (number.code == 'Q' || number.code == 'L') {
            json.value(static_cast<quint64>(number.integer));
        } else {
            json.value(static_cast<qint64>(number.integer));
        }
    }
    json.endArray();
}

void write(JsonWriter& json, const Image& value) {
    if (value.tiff.isEmpty()) {
        json.null();
        return;
    }
    json.beginObject();
    json.member(u"bytes", static_cast<qint64>(value.tiff.size()));
    json.member(u"sha256",
                QString::fromLatin1(QCryptographicHash::hash(value.tiff, QCryptographicHash::Sha256).toHex()));
    json.endObject();
}

QString latin(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// What the present version stores, and what only the file's own does.
bool isListed(const Item& item, int version, const RecordLayout& layout) {
    return item.travels(layout.version) ||
           (item.travels(version) && std::none_of(layout.items.begin(), layout.items.end(), [&](const Item& other) {
                return other.key() == item.key() && other.travels(layout.version);
            }));
}

}  // namespace

void writeRecordsJson(JsonWriter& json, const QString& type, const RecordFile& file, const RecordLayout& layout) {
    json.beginObject();
    json.member(u"type", type);
    json.member(u"class", latin(layout.className));
    json.member(u"version", file.version);
    json.key(u"records");
    json.beginArray();
    for (const auto& record : file.records) {
        json.beginObject();
        for (const auto& item : layout.items) {
            if (isListed(item, file.version, layout)) {
                json.key(latin(item.key()));
                item.field().visit(*record, [&json](const auto& value) { write(json, value); });
            }
        }
        json.endObject();
    }
    json.endArray();
    json.endObject();
    json.flush();
}

}  // namespace tavrel
