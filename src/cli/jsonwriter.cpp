#include "cli/jsonwriter.h"

#include "platform/numbers.h"

#include <cmath>

namespace tavrel {

void JsonWriter::key(QStringView name) {
    separate();
    appendQuoted(name);
    text_ += ": ";
    first_ = true;
}

void JsonWriter::value(double value) {
    const QString number = shortestText(value);
    if (std::isfinite(value)) {
        append(number.toStdString());
    } else {
        this->value(number);
    }
}

void JsonWriter::value(const QString& text) {
    separate();
    appendQuoted(text);
}

void JsonWriter::begin(char bracket) {
    separate();
    text_ += bracket;
    first_ = true;
}

void JsonWriter::end(char bracket) {
    text_ += bracket;
    first_ = false;
}

void JsonWriter::append(const std::string& value) {
    separate();
    text_ += value;
}

void JsonWriter::separate() {
    if (!first_) {
        text_ += ", ";
    }
    first_ = false;
}

void JsonWriter::appendQuoted(QStringView text) {
    text_ += '"';
    for (const char byte : text.toUtf8()) {
        if (byte == '"' || byte == '\\') {
            text_ += '\\';
            text_ += byte;
        } else if (static_cast<unsigned char>(byte) < 0x20) {
            constexpr char digits[] = "0123456789abcdef";
            text_ += "\\u00";
            text_ += digits[byte >> 4];
            text_ += digits[byte & 15];
        } else {
            text_ += byte;
        }
    }
    text_ += '"';
}

}  // namespace tavrel
