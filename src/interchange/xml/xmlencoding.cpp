#include "interchange/xml/xmlencoding.h"

#include <QRegularExpression>
#include <QStringConverter>
#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tavrel {

namespace {

constexpr const char* commonEncoding = "windows-1252";
/// What stands there from 0x80 to 0x9F.
constexpr std::u16string_view commonSigns =
    u"\u20AC\uFFFD\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\uFFFD\u017D\uFFFD"
    u"\uFFFD\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\uFFFD\u017E\u0178";

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
    const auto code = static_cast<unsigned char>(byte);
    const bool isCommon = code >= 0x80 && code < 0x80 + commonSigns.size();
    const QChar sign = isCommon ? QChar(commonSigns[code - 0x80]) : QChar(QLatin1Char(byte));
    return QString(sign.isPrint() ? sign : QChar(QChar::ReplacementCharacter)).toUtf8();
}

struct Converted {
    QByteArray text;
    qsizetype strays = 0;  ///< bytes that are no sign
};

/// Nothing where the system does not know the encoding.
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
            ++result.strays;
            result.text += strayByte(*in++);
            --inLeft;
        }
    }
    iconv_close(converter);
    return result;
}

/// Text of no known encoding: UTF-8 where most of what is not ASCII is that, else the common one.
QByteArray inSeemingEncoding(QByteArrayView bytes) {
    const auto foreign = std::count_if(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) != 0; });
    auto text = converted(bytes, "UTF-8");
    if (!text || 2 * text->strays >= foreign) {
        text = converted(bytes, commonEncoding);
    }
    return text ? std::move(text->text) : QString::fromLatin1(bytes).toUtf8();
}

/// Encodings of one byte a sign, in which what is valid UTF-8 hardly ever means anything.
bool isOfSingleBytes(const QByteArray& encoding) {
    return encoding.startsWith("iso-8859-") || encoding.startsWith("windows-125");
}

}  // namespace

std::optional<QByteArray> textInUtf8(QByteArrayView bytes) {
    return bytes.isValidUtf8() ? std::nullopt : std::optional(inSeemingEncoding(bytes));
}

std::optional<QByteArray> xmlInUtf8(QByteArrayView bytes) {
    const bool isUtf8 = bytes.isValidUtf8();
    const bool isMarked = bytes.startsWith("\xEF\xBB\xBF");
    const auto shown = QStringConverter::encodingForData(bytes, u'<');
    if (!isMarked && shown && *shown != QStringConverter::Utf8) {
        return QString(QStringDecoder(*shown)(bytes)).toUtf8();
    }
    const QByteArray declared = isMarked ? QByteArray("utf-8") : declaredEncoding(bytes).toLower();
    if (isUtf8 && (declared.isEmpty() || declared == "utf-8" || isOfSingleBytes(declared))) {
        return std::nullopt;
    }
    auto text = declared.isEmpty() ? std::nullopt : converted(bytes, declared.constData());
    if (text && !text->text.startsWith(bytes.first(std::min<qsizetype>(bytes.size(), 5)))) {
        text.reset();  // it is none in which the bytes could begin as they do
    }
    if (isUtf8 && !(text && text->strays == 0)) {
        return std::nullopt;
    }
    return text ? std::move(text->text) : inSeemingEncoding(bytes);
}

}  // namespace tavrel
