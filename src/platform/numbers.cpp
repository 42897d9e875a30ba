#include "platform/numbers.h"

#include <QVarLengthArray>

#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace tavrel {

namespace {

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

/// The leading number of a text as the ASCII characters that std::from_chars understands (no plus sign, a point for a
/// comma), and where its first significant digit stands, for numbers beyond the range of the result.
struct LeadingNumber {
    QVarLengthArray<char, 64> characters;
    qsizetype magnitude = 0;  ///< power of ten just above the number: 3 for 123, 0 for 0.5; 0 for zero
    bool negative = false;
};

/// Reads "[exponent]" at the position: the exponent's value, saturated, when there is one; copies its characters.
qsizetype readExponent(QStringView text, qsizetype position, LeadingNumber& number) {
    if (position >= text.size() || text[position].toCaseFolded() != u'e') {
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
        number.characters.append(text[digits].toLatin1());
        exponent = std::min<qsizetype>(exponent * 10 + text[digits].digitValue(), 1'000'000);
    }
    return negative ? -exponent : exponent;
}

LeadingNumber leadingNumber(QStringView text) {
    LeadingNumber number;
    qsizetype position = 0;
    while (position < text.size() && text[position].isSpace()) {
        ++position;
    }
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
        const QChar character = text[position];
        if (isDigit(character)) {
            digit = true;
            significant = significant || character != u'0';
            if (significant && !point) {
                ++number.magnitude;
            } else if (!significant && point) {
                --number.magnitude;
            }
            number.characters.append(character.toLatin1());
        } else if (!point && (character == u'.' || character == u',')) {
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

template <class Real>
Real realValue(QStringView text) {
    const LeadingNumber number = leadingNumber(text);
    Real value = 0;
    const auto result = std::from_chars(number.characters.begin(), number.characters.end(), value);
    if (result.ec == std::errc::result_out_of_range) {
        value = number.magnitude > 0 ? std::numeric_limits<Real>::infinity() : Real(0);
        return number.negative ? -value : value;
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
    const LeadingNumber number = leadingNumber(text);
    qint32 value = 0;
    const auto result = std::from_chars(number.characters.begin(), number.characters.end(), value);
    if (result.ec == std::errc::result_out_of_range) {
        return number.negative ? std::numeric_limits<qint32>::min() : std::numeric_limits<qint32>::max();
    }
    return value;
}

double doubleValue(QStringView text) {
    return realValue<double>(text);
}

float floatValue(QStringView text) {
    return realValue<float>(text);
}

bool startsWithNumber(QStringView text) {
    return !leadingNumber(text).characters.isEmpty();
}

// Above these sizes plain digits would claim a precision that the value does not have.
QString shortestText(double value) {
    return shortest(value, 1e15);
}

QString shortestText(float value) {
    return shortest(value, 1e9F);
}

}  // namespace tavrel
