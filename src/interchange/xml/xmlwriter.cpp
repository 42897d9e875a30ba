#include "interchange/xml/xmlwriter.h"

#include "base/numbers.h"

#include <utility>

namespace tavrel {

namespace {

bool isPlain(char character) {
    return static_cast<unsigned char>(character) >= 0x20 && character != '<' && character != '>' && character != '&' &&
           character != '"';
}

/// U+FFFE and U+FFFF, the only characters outside ASCII that XML excludes and UTF-8 can hold.
bool isExcluded(std::string_view text, std::size_t position) {
    const std::string_view bytes = text.substr(position, 3);
    return bytes == "\xEF\xBF\xBE" || bytes == "\xEF\xBF\xBF";
}

/// Escapes what markup would take for its own; an attribute also its quotes and line ends.
void appendEscaped(std::string& out, std::string_view text, bool attribute = false) {
    std::size_t copied = 0;
    for (std::size_t position = 0; position < text.size(); ++position) {
        const char character = text[position];
        if (isPlain(character) && !(character == '\xEF' && isExcluded(text, position))) {
            continue;
        }
        out.append(text, copied, position - copied);
        copied = position + 1;
        switch (character) {
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '&':
                out += "&amp;";
                break;
            case '\r':
                out += "&#13;";
                break;
            case '"':
                out += attribute ? "&quot;" : "\"";
                break;
            case '\t':
                out += attribute ? "&#9;" : "\t";
                break;
            case '\n':
                out += attribute ? "&#10;" : "\n";
                break;
            case '\xEF':
                position += 2;
                copied = position + 1;
                break;
            default:
                break;
        }
    }
    out.append(text, copied);
}

}  // namespace

void XmlWriter::openLine() {
    if (tagOpen_) {
        text_ += ">\n";
        tagOpen_ = false;
    }
    text_.append(2 * open_.size(), ' ');
}

void XmlWriter::openTag(std::string_view name, std::initializer_list<XmlAttribute> attributes) {
    openLine();
    text_ += '<';
    text_ += name;
    for (const XmlAttribute& attribute : attributes) {
        text_ += ' ';
        text_ += attribute.name;
        text_ += "=\"";
        appendEscaped(text_, attribute.value, true);
        text_ += '"';
    }
}

void XmlWriter::closeTag(std::string_view name) {
    text_ += "</";
    text_ += name;
    text_ += ">\n";
}

void XmlWriter::begin(std::string_view name, std::initializer_list<XmlAttribute> attributes) {
    openTag(name, attributes);
    open_.push_back(name);
    tagOpen_ = true;
}

void XmlWriter::end() {
    const std::string_view name = open_.back();
    open_.pop_back();
    if (tagOpen_) {
        text_ += "/>\n";
        tagOpen_ = false;
    } else {
        text_.append(2 * open_.size(), ' ');
        closeTag(name);
    }
}

void XmlWriter::finishElement(std::string_view name, std::string_view text) {
    const std::size_t start = text_.size();
    text_ += '>';
    appendEscaped(text_, text);
    if (text_.size() == start + 1) {
        text_.resize(start);
        text_ += "/>\n";
    } else {
        closeTag(name);
    }
}

void XmlWriter::element(std::string_view name, std::string_view text) {
    openTag(name);
    finishElement(name, text);
}

void XmlWriter::element(std::string_view name, std::initializer_list<XmlAttribute> attributes, std::string_view text) {
    openTag(name, attributes);
    finishElement(name, text);
}

void XmlWriter::element(std::string_view name, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    element(name, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

void XmlWriter::decimal(std::string_view name, double value, int decimals) {
    openTag(name);
    text_ += '>';
    appendFixed(text_, value, decimals);
    closeTag(name);
}

void XmlWriter::integer(std::string_view name, qint64 value) {
    openTag(name);
    text_ += '>';
    appendInteger(text_, value);
    closeTag(name);
}

void XmlWriter::comment(std::string_view text) {
    openLine();
    text_ += "<!--";
    text_ += text;
    text_ += "-->\n";
}

QByteArray XmlWriter::finish() {
    while (!open_.empty()) {
        end();
    }
    const std::string text = std::exchange(text_, {});
    return {text.data(), static_cast<qsizetype>(text.size())};
}

}  // namespace tavrel
