#include "interchange/xml/xmlencoding.h"

#include <QRegularExpression>
#include <QStringConverter>
#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <optional>

namespace tavrel {

namespace {

constexpr const char* commonEncoding = "windows-1252";

/// The encoding that the file's first line names; empty for none.
QByteArray declaredEncoding(QByteArrayView bytes) {
    constexpr qsizetype farthest = 200;
    static const QRegularExpression declaration(
        QStringLiteral(R"(^\s*<\?xml[^>]*\sencoding\s*=\s*["']([A-Za-z][A-Za-z0-9._-]*)["'])"));
    const auto match = declaration.match(QString::fromLatin1(bytes.first(std::min(bytes.size(), farthest))));
    return match.captured(1).toLatin1();
}

/// What a byte is that is no sign of its encoding.
QByteArray strayByte(char byte) {
    const QChar sign = QLatin1Char(byte);
    return QString(sign.isPrint() ? sign : QChar(QChar::ReplacementCharacter)).toUtf8();
}

struct Converted {
    QByteArray text;
    bool isWhole = true;  ///< every byte is a sign
};

/// Nothing where the system does not know the encoding, or it is none in which the bytes could begin as they do.
std::optional<Converted> converted(QByteArrayView bytes, const char* encoding) {
    const iconv_t converter = iconv_open("UTF-8", encoding);
    if (reinterpret_cast<std::intptr_t>(converter) == -1) {
        return std::nullopt;
    }
    Converted result;
    std::array<char, 1 << 15> piece{};
    // The converter's interface is not const, though it changes nothing.
    char* in = const_cast<char*>(bytes.data());
    auto inLeft = static_cast<std::size_t>(bytes.size());
    while (inLeft > 0) {
        char* out = piece.data();
        std::size_t outLeft = piece.size();
        const bool isWhole = iconv(converter, &in, &inLeft, &out, &outLeft) != static_cast<std::size_t>(-1);
        const int why = errno;
        result.text.append(piece.data(), out - piece.data());
        if (!isWhole && why != E2BIG) {
            result.isWhole = false;
            result.text += strayByte(*in++);
            --inLeft;
        }
    }
    iconv_close(converter);
    const auto start = bytes.first(std::min<qsizetype>(bytes.size(), 5));
    return result.text.startsWith(start) ? std::optional(std::move(result)) : std::nullopt;
}

}  // namespace

std::optional<QByteArray> xmlInUtf8(QByteArrayView bytes) {
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        return bytes.isValidUtf8() ? std::nullopt : std::optional(QString::fromUtf8(bytes).toUtf8());
    }
    if (const auto shown = QStringConverter::encodingForData(bytes, u'<'); shown && *shown != QStringConverter::Utf8) {
        return QString(QStringDecoder(*shown)(bytes)).toUtf8();
    }
    const QByteArray declared = declaredEncoding(bytes);
    const bool isUtf8 = bytes.isValidUtf8();
    if (isUtf8 && (declared.isEmpty() || declared.compare("utf-8", Qt::CaseInsensitive) == 0)) {
        return std::nullopt;
    }
    auto text = declared.isEmpty() ? std::nullopt : converted(bytes, declared.constData());
    if (isUtf8 && !(text && text->isWhole)) {
        return std::nullopt;
    }
    text = text ? std::move(text) : converted(bytes, commonEncoding);
    return text ? std::move(text->text) : QString::fromLatin1(bytes).toUtf8();
}

}  // namespace tavrel
