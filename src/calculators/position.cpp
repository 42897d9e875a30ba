#include "calculators/position.h"

#include <QRegularExpression>

#include <cmath>
#include <vector>

namespace tavrel {

namespace {

/// Degrees, minutes and seconds of one angle, with the letter of its side before or behind it.
struct Angle {
    double degrees;
    QChar side;  ///< N, S, E, W, or none
};

std::vector<Angle> anglesOf(const QString& text) {
    static const QRegularExpression angle(
        QStringLiteral(
            R"(([NSEWO])?\s*([-+]?\d+(?:\.\d+)?)\s*°?\s*(?:(\d+(?:[.,]\d+)?)\s*['′]\s*(?:(\d+(?:[.,]\d+)?)\s*["″]\s*)?)?([NSEWO])?)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    std::vector<Angle> angles;
    bool sidesBefore = false;
    qsizetype from = 0;
    for (auto match = angle.match(text, from); match.hasMatch(); match = angle.match(text, from)) {
        const QString before = match.captured(1);
        if (angles.empty()) {
            sidesBefore = !before.isEmpty();
        }
        const double degrees = match.captured(2).toDouble();
        const auto part = [&](int group) { return match.captured(group).replace(u',', u'.').toDouble(); };
        const double parts = part(3) / 60 + part(4) / 3600;
        const QString side = sidesBefore ? before : match.captured(5);
        const bool negative = match.captured(2).startsWith(u'-');
        angles.push_back({negative ? degrees - parts : degrees + parts, side.isEmpty() ? QChar() : side[0].toUpper()});
        // With the letters in front the one behind belongs to the next angle.
        from = sidesBefore && !match.captured(5).isEmpty() ? match.capturedStart(5) : match.capturedEnd();
    }
    return angles;
}

bool isEastWest(QChar side) {
    return side == u'E' || side == u'W' || side == u'O';
}

double turned(const Angle& angle) {
    return angle.side == u'S' || angle.side == u'W' || angle.side == u'O' ? -angle.degrees : angle.degrees;
}

QString angleText(double degrees, int digits, char positive, char negative) {
    const auto thousandths = std::llround(std::abs(degrees) * 60'000);
    return QStringLiteral("%1 %2° %3.%4'")
        .arg(QLatin1Char(degrees < 0 && thousandths > 0 ? negative : positive))
        .arg(thousandths / 60'000, digits, 10, QLatin1Char('0'))
        .arg(thousandths / 1000 % 60, 2, 10, QLatin1Char('0'))
        .arg(thousandths % 1000, 3, 10, QLatin1Char('0'));
}

}  // namespace

std::optional<Position> positionOf(const QString& text) {
    const auto angles = anglesOf(text);
    if (angles.size() != 2) {
        return std::nullopt;
    }
    const bool longitudeFirst = isEastWest(angles[0].side);
    if (!angles[0].side.isNull() && !angles[1].side.isNull() && longitudeFirst == isEastWest(angles[1].side)) {
        return std::nullopt;
    }
    const Position position{turned(angles[longitudeFirst ? 1 : 0]), turned(angles[longitudeFirst ? 0 : 1])};
    const bool onEarth = std::abs(position.latitude) <= 90 && std::abs(position.longitude) <= 180;
    const bool isNone = position.latitude == 0 && position.longitude == 0;
    return onEarth && !isNone ? std::optional(position) : std::nullopt;
}

QString positionText(const Position& position) {
    return angleText(position.latitude, 2, 'N', 'S') + QStringLiteral("  ") +
           angleText(position.longitude, 3, 'E', 'W');
}

}  // namespace tavrel
