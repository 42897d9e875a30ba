#include "base/numbers.h"

#include <QVarLengthArray>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace tavrel {

namespace {

constexpr bool isDigit(char16_t character) {
    return character >= u'0' && character <= u'9';
}

/// A form's text or a file's bytes as characters; what is not ASCII matters only as a blank.
struct TypedText {
    static constexpr bool commaIsPoint = true;
    QStringView text;
    qsizetype size() const { return text.size(); }
    char16_t operator[](qsizetype position) const { return text[position].unicode(); }
};

struct FileText {
    static constexpr bool commaIsPoint = false;
    std::string_view text;
    qsizetype size() const { return static_cast<qsizetype>(text.size()); }
    char16_t operator[](qsizetype position) const {
        return static_cast<unsigned char>(text[static_cast<std::size_t>(position)]);
    }
};

/// The leading number of a text as the ASCII characters that std::from_chars understands (no plus sign, a point for a
/// comma), and where its first significant digit stands, for numbers beyond the range of the result.
struct LeadingNumber {
    QVarLengthArray<char, 64> characters;
    qsizetype magnitude = 0;  ///< power of ten just above the number: 3 for 123, 0 for 0.5; 0 for zero
    bool negative = false;
};

/// Reads "[exponent]" at the position: the exponent's value, saturated, when there is one; copies its characters.
template <class Text>
qsizetype readExponent(const Text& text, qsizetype position, LeadingNumber& number) {
    if (position >= text.size() || (text[position] != u'e' && text[position] != u'E')) {
        return 0;
    }
    qsizetype digits = position + 1;
    bool negative = false;
    if (digits < text.size() && (text[digits] == u'+' || text[digits] == u'-')) {
        negative = text[digits] == u'-';
        ++digits;
    }
    if (digits >= text.size() || !isDigit(text[digits])) {
        return 0;
    }
    number.characters.append('e');
    number.characters.append(negative ? '-' : '+');
    qsizetype exponent = 0;
    for (; digits < text.size() && isDigit(text[digits]); ++digits) {
        number.characters.append(static_cast<char>(text[digits]));
        exponent = std::min<qsizetype>(exponent * 10 + (text[digits] - u'0'), 1'000'000);
    }
    return negative ? -exponent : exponent;
}

template <class Text>
qsizetype afterBlanks(const Text& text) {
    qsizetype position = 0;
    while (position < text.size() && QChar(text[position]).isSpace()) {
        ++position;
    }
    return position;
}

template <class Text>
LeadingNumber leadingNumber(const Text& text) {
    LeadingNumber number;
    qsizetype position = afterBlanks(text);
    if (position < text.size() && (text[position] == u'+' || text[position] == u'-')) {
        number.negative = text[position] == u'-';
        ++position;
    }
    if (number.negative) {
        number.characters.append('-');
    }
    bool point = false;
    bool digit = false;
    bool significant = false;
    for (; position < text.size(); ++position) {
        const char16_t character = text[position];
        if (isDigit(character)) {
            digit = true;
            significant = significant || character != u'0';
            if (significant && !point) {
                ++number.magnitude;
            } else if (!significant && point) {
                --number.magnitude;
            }
            number.characters.append(static_cast<char>(character));
        } else if (!point && (character == u'.' || (Text::commaIsPoint && character == u','))) {
            point = true;
            number.characters.append('.');
        } else {
            break;
        }
    }
    if (!digit) {
        number.characters.clear();
        return number;
    }
    number.magnitude += readExponent(text, position, number);
    return number;
}

template <class Real, class Text>
Real realValue(const Text& text) {
    const LeadingNumber number = leadingNumber(text);
    Real value = 0;
    const auto result = std::from_chars(number.characters.begin(), number.characters.end(), value);
    if (result.ec == std::errc::result_out_of_range) {
        value = number.magnitude > 0 ? std::numeric_limits<Real>::infinity() : Real(0);
        return number.negative ? -value : value;
    }
    return value;
}

/// The plain case without a copy: most numbers of a file have no plus sign and lie within the range of their type.
template <class Real>
Real realInFile(std::string_view text) {
    const FileText file{text};
    const qsizetype start = afterBlanks(file);
    const qsizetype first = start < file.size() && file[start] == u'-' ? start + 1 : start;
    if (first < file.size() && isDigit(file[first])) {
        Real value = 0;
        const auto result = std::from_chars(text.data() + start, text.data() + text.size(), value);
        if (result.ec == std::errc()) {
            return value;
        }
    }
    return realValue<Real>(file);
}

template <class Text>
qint32 leadingInteger(const Text& text) {
    const LeadingNumber number = leadingNumber(text);
    qint32 value = 0;
    const auto result = std::from_chars(number.characters.begin(), number.characters.end(), value);
    if (result.ec == std::errc::result_out_of_range) {
        return number.negative ? std::numeric_limits<qint32>::min() : std::numeric_limits<qint32>::max();
    }
    return value;
}

template <class Real>
QString shortest(Real value, Real fixedBelow) {
    if (std::isnan(value)) {
        return QStringLiteral("nan");
    }
    if (std::isinf(value)) {
        return value < 0 ? QStringLiteral("-inf") : QStringLiteral("inf");
    }
    const Real size = std::abs(value);
    const bool fixed = size == 0 || (size >= Real(1e-5) && size < fixedBelow);
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value,
                                      fixed ? std::chars_format::fixed : std::chars_format::scientific);
    return QString::fromLatin1(buffer, result.ptr - buffer);
}

}  // namespace

qint32 integerValue(QStringView text) {
    return leadingInteger(TypedText{text});
}

double doubleValue(QStringView text) {
    return realValue<double>(TypedText{text});
}

float floatValue(QStringView text) {
    return realValue<float>(TypedText{text});
}

qint32 integerInFile(std::string_view text) {
    return leadingInteger(FileText{text});
}

double doubleInFile(std::string_view text) {
    return realInFile<double>(text);
}

float floatInFile(std::string_view text) {
    return realInFile<float>(text);
}

qint32 truncated(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double lowest = std::numeric_limits<qint32>::min();
    constexpr double highest = std::numeric_limits<qint32>::max();
    return static_cast<qint32>(std::clamp(value, lowest, highest));
}

void appendInteger(std::string& text, qint64 value) {
    char buffer[24];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    text.append(buffer, result.ptr);
}

void appendFixed(std::string& text, double value, int decimals) {
    if (std::isnan(value)) {
        text += "nan";
        return;
    }
    char buffer[std::numeric_limits<double>::max_exponent10 + 16];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    text.append(buffer, result.ptr);
}

bool startsWithNumber(QStringView text) {
    return !leadingNumber(TypedText{text}).characters.isEmpty();
}

// Above these sizes plain digits would claim a precision that the value does not have.
QString shortestText(double value) {
    return shortest(value, 1e15);
}

QString shortestText(float value) {
    return shortest(value, 1e9F);
}

}  // namespace tavrel
