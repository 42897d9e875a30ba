#include "archive/recordjson.h"

namespace tavrel::recordjson {

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

}  // namespace tavrel::recordjson
