#include "base/jsonwriter.h"

#include <array>
#include <charconv>
#include <cmath>

namespace tavrel {

void JsonWriter::key(QStringView name) {
    separate();
    appendQuoted(name);
    text_ += ": ";
    first_ = true;
}

template <class Real>
void JsonWriter::appendReal(Real value) {
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.begin(), digits.end(), value).ptr;
    const std::string_view number(digits.data(), static_cast<std::size_t>(end - digits.data()));
    if (value == 0 && std::signbit(value)) {
        append("-0.0");  // "-0" is an integer to many readers, which have no zero below zero
    } else if (std::isfinite(value)) {
        append(number);
    } else {
        separate();
        text_ += std::isnan(value) ? "\"nan\"" : value > 0 ? "\"inf\"" : "\"-inf\"";
    }
}

void JsonWriter::value(double value) {
    appendReal(value);
}

void JsonWriter::value(float value) {
    appendReal(value);
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

void JsonWriter::append(std::string_view value) {
    separate();
    text_ += value;
}

void JsonWriter::flush() {
    if (sink_) {
        sink_(text_);
        text_.clear();
    }
}

void JsonWriter::separate() {
    constexpr std::size_t piece = 1 << 16;
    if (sink_ && text_.size() >= piece) {
        flush();
    }
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
