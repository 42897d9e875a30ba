#include "base/numbers.h"
#include "base/texts.h"

#include <QStringView>
#include <fmt/printf.h>

#include <cmath>
#include <optional>
#include <string>

namespace tavrel {

namespace {

/// Widths and precisions beyond this are a slip of the pen in a text table, not a layout.
constexpr int largestWidth = 400;

/// "%-8.2lf": the parts that matter for filling it.
struct Placeholder {
    std::string flags;
    int width = 0;
    int precision = -1;  ///< -1: not given
    char conversion = 0;
    qsizetype end = 0;  ///< position behind it
};

std::optional<int> readCount(QStringView format, qsizetype& position) {
    int count = 0;
    for (; position < format.size() && format[position] >= u'0' && format[position] <= u'9'; ++position) {
        count = count * 10 + format[position].digitValue();
        if (count > largestWidth) {
            return std::nullopt;
        }
    }
    return count;
}

/// Reads the placeholder that starts at the percent sign; nothing when it is none that can be filled.
std::optional<Placeholder> readPlaceholder(QStringView format, qsizetype position) {
    Placeholder placeholder;
    ++position;
    while (position < format.size() && QStringView(u"-+ #0").contains(format[position])) {
        placeholder.flags += format[position++].toLatin1();
    }
    const auto width = readCount(format, position);
    if (!width) {
        return std::nullopt;
    }
    placeholder.width = *width;
    if (position < format.size() && format[position] == u'.') {
        const auto precision = readCount(format, ++position);
        if (!precision) {
            return std::nullopt;
        }
        placeholder.precision = *precision;
    }
    while (position < format.size() && QStringView(u"hlqjzt").contains(format[position])) {
        ++position;
    }
    if (position >= format.size() || !QStringView(u"diuxXofFeEgG@s%").contains(format[position])) {
        return std::nullopt;
    }
    placeholder.conversion = format[position].toLatin1();
    placeholder.end = position + 1;
    return placeholder;
}

QString plainText(const FormatArgument& argument) {
    if (const auto* integer = std::get_if<qint64>(&argument)) {
        return QString::number(*integer);
    }
    if (const auto* real = std::get_if<double>(&argument)) {
        return shortestText(*real);
    }
    return std::get<QString>(argument);
}

QString padded(const QString& text, const Placeholder& placeholder) {
    const bool left = placeholder.flags.find('-') != std::string::npos;
    return left ? text.leftJustified(placeholder.width) : text.rightJustified(placeholder.width);
}

/// The conversion with its flags, width and precision, for fmt's printf. The length letters are left out: fmt knows the
/// type.
std::string printfPlaceholder(const Placeholder& placeholder, const std::string& flags) {
    std::string result(1, '%');
    result += flags;
    if (placeholder.width > 0) {
        result += std::to_string(placeholder.width);
    }
    if (placeholder.precision >= 0) {
        result += '.';
        result += std::to_string(placeholder.precision);
    }
    result += placeholder.conversion;
    return result;
}

std::optional<QString> filledInteger(const Placeholder& placeholder, const FormatArgument& argument) {
    const auto* integer = std::get_if<qint64>(&argument);
    if (!integer) {
        return std::nullopt;
    }
    const std::string format = printfPlaceholder(placeholder, placeholder.flags);
    if (placeholder.conversion == 'd' || placeholder.conversion == 'i') {
        return QString::fromStdString(fmt::sprintf(format, static_cast<long long>(*integer)));
    }
    if (*integer < 0) {
        return std::nullopt;
    }
    return QString::fromStdString(fmt::sprintf(format, static_cast<unsigned long long>(*integer)));
}

std::optional<QString> filledReal(const Placeholder& placeholder, const FormatArgument& argument) {
    double value = 0;
    if (const auto* real = std::get_if<double>(&argument)) {
        value = *real;
    } else if (const auto* integer = std::get_if<qint64>(&argument)) {
        value = static_cast<double>(*integer);
    } else {
        return std::nullopt;
    }
    if (!std::isfinite(value)) {
        return padded(shortestText(value), placeholder);
    }
    return QString::fromStdString(fmt::sprintf(printfPlaceholder(placeholder, placeholder.flags), value));
}

std::optional<QString> filled(const Placeholder& placeholder, const FormatArgument& argument) {
    switch (placeholder.conversion) {
        case '@':
        case 's': {
            QString text = plainText(argument);
            if (placeholder.precision >= 0) {
                text.truncate(placeholder.precision);
            }
            return padded(text, placeholder);
        }
        case 'd':
        case 'i':
        case 'u':
        case 'x':
        case 'X':
        case 'o':
            return filledInteger(placeholder, argument);
        default:
            return filledReal(placeholder, argument);
    }
}

}  // namespace

QString fillFormat(const QString& format, const std::vector<FormatArgument>& arguments, const QString& fallback) {
    QString result;
    std::size_t used = 0;
    qsizetype position = 0;
    while (position < format.size()) {
        const qsizetype percent = format.indexOf(u'%', position);
        if (percent < 0) {
            break;
        }
        result += QStringView(format).mid(position, percent - position);
        const auto placeholder = readPlaceholder(format, percent);
        if (!placeholder) {
            return fallback;
        }
        position = placeholder->end;
        if (placeholder->conversion == '%') {
            result += u'%';
            continue;
        }
        if (used == arguments.size()) {
            return fallback;
        }
        const auto text = filled(*placeholder, arguments[used++]);
        if (!text) {
            return fallback;
        }
        result += *text;
    }
    result += QStringView(format).mid(position);
    return used == arguments.size() ? result : fallback;
}

QString formatPlaceholders(const QString& format) {
    QString letters = QStringLiteral("");
    for (qsizetype percent = format.indexOf(u'%'); percent >= 0; percent = format.indexOf(u'%', percent)) {
        const auto placeholder = readPlaceholder(format, percent);
        if (!placeholder) {
            return {};
        }
        if (placeholder->conversion != '%') {
            letters += QLatin1Char(placeholder->conversion);
        }
        percent = placeholder->end;
    }
    return letters;
}

FormatArgument formatArgument(int value) {
    return static_cast<qint64>(value);
}
FormatArgument formatArgument(qint64 value) {
    return value;
}
FormatArgument formatArgument(std::size_t value) {
    return static_cast<qint64>(value);
}
// Through its own shortest text: a float's 0.1 shows as 0.1, not as the double next to it.
FormatArgument formatArgument(float value) {
    return std::isfinite(value) ? doubleValue(shortestText(value)) : double{value};
}
FormatArgument formatArgument(double value) {
    return value;
}
FormatArgument formatArgument(QString value) {
    return value;
}

}  // namespace tavrel
