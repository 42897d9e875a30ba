#include "interchange/standard/filevalues.h"

#include "base/numbers.h"
#include "dives/divecodes.h"

#include <QRegularExpression>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>

namespace tavrel {

namespace {

constexpr double zeroCelsius = 273.15;
constexpr double coldestKelvin = 150;  // below, a number can only be degrees Celsius
constexpr double pascalPerBar = 100'000;
constexpr double highestBar = 1000;       // above, a number can only be pascal
constexpr double largestTankCubic = 0.5;  // m³; above, a number can only be litres

}  // namespace

QString wordsOf(XmlElement element) {
    return element.text().trimmed();
}

std::optional<double> numberOf(std::string_view text) {
    const QString words = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    if (!startsWithNumber(words)) {
        return std::nullopt;
    }
    const double value = doubleValue(words);
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<double> numberOf(XmlElement element) {
    if (element.isNull()) {
        return std::nullopt;
    }
    std::string buffer;
    const std::string_view text = element.text(buffer);
    // The usual case without a detour: digits and points alone.
    if (!text.empty() && text.size() < 40 && text.find_first_not_of("0123456789.") == std::string_view::npos &&
        text != ".") {
        return doubleInFile(text);
    }
    return numberOf(text);
}

bool isNamed(XmlElement element, std::string_view name) {
    const std::string_view own = element.name();
    return own.size() == name.size() && std::equal(own.begin(), own.end(), name.begin(), [](char one, char other) {
               return std::tolower(static_cast<unsigned char>(one)) == std::tolower(static_cast<unsigned char>(other));
           });
}

XmlElement childOf(XmlElement parent, std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) {
        for (XmlElement child = parent.firstElement(); !child.isNull(); child = child.nextElement()) {
            if (isNamed(child, name)) {
                return child;
            }
        }
    }
    return {};
}

qint32 rounded(double value) {
    return std::isnan(value) ? 0 : truncated(std::round(value));
}

double celsiusOf(double kelvin) {
    return kelvin < coldestKelvin ? kelvin : kelvin - zeroCelsius;
}

std::optional<qint32> celsius(std::optional<double> kelvin) {
    if (!kelvin || *kelvin == 0) {
        return std::nullopt;
    }
    return thinkableCelsius(celsiusOf(*kelvin));
}

std::optional<qint32> thinkableCelsius(std::optional<double> degrees) {
    return degrees && *degrees > temperatureNotGiven && *degrees <= 100 ? std::optional(rounded(*degrees))
                                                                        : std::nullopt;
}

std::optional<qint32> ofWater(std::optional<qint32> degrees) {
    constexpr qint32 coldestWater = -5;
    return degrees && *degrees >= coldestWater ? degrees : std::nullopt;
}

std::optional<qint32> waterCelsius(std::optional<double> kelvin) {
    return ofWater(celsius(kelvin));
}

std::optional<double> secondsOf(XmlElement element) {
    static const QRegularExpression clock(QStringLiteral(R"(^(?:(\d{1,3}):)?(\d{1,4}):(\d\d)(?:[.,]\d+)?$)"));
    const auto number = numberOf(element);
    std::string buffer;
    if (!number || element.text(buffer).find(':') == std::string_view::npos) {
        return number;
    }
    const auto match = clock.match(wordsOf(element));
    return match.hasMatch()
               ? match.captured(1).toInt() * 3600.0 + match.captured(2).toInt() * 60.0 + match.captured(3).toInt()
               : number;
}

QString intervalText(qint32 minutes) {
    return QStringLiteral("%1:%2")
        .arg(minutes / 60, 2, 10, QLatin1Char('0'))
        .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

std::optional<double> bars(std::optional<double> pascal) {
    if (!pascal || *pascal <= 0) {
        return std::nullopt;
    }
    const double bar = *pascal > highestBar ? *pascal / pascalPerBar : *pascal;
    return std::round(bar * 1e6) / 1e6;
}

std::optional<double> litres(std::optional<double> cubicMetres) {
    if (!cubicMetres || *cubicMetres <= 0) {
        return std::nullopt;
    }
    return *cubicMetres > largestTankCubic ? *cubicMetres : *cubicMetres * 1000;
}

}  // namespace tavrel
