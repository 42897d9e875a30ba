#include "calculators/gps.h"

#include "base/numbers.h"
#include "base/texts.h"

#include <cmath>

namespace tavrel {

namespace {

constexpr double radiansPerDegree = 0.017453292519943295;
constexpr double degreesPerRadian = 57.29577951308232;

// International 1924 (Hayford): semi-major axis in metres, flattening 1/297. WGS84: flattening 1/298.257223563. The
// decimal converter works with the squared eccentricities to eight decimals.
namespace international1924 {
constexpr double a = 6378388.0;
constexpr double e2 = 0.006722670022333177;
constexpr double oneLessE2 = 0.9932773299776668;
constexpr double roundedE2 = 0.00672267;
}  // namespace international1924

namespace wgs84 {
constexpr double a = 6378137.0;
constexpr double e2 = 0.00669437999014133;
constexpr double axisRatio = 0.9966471893352525;
constexpr double aE2 = 42697.672707180056;
constexpr double roundedE2 = 0.00669438;
}  // namespace wgs84

// ED50 to WGS84, seven parameters for the North Sea: translations in metres, rotations in radians (about x -0.333'',
// about y 0.077'', about z 0.894''), scale 1.994 ppm.
namespace sevenParameters {
constexpr double tx = -90.365;
constexpr double ty = -101.13;
constexpr double tz = -123.384;
constexpr double rx = -1.614e-6;
constexpr double ry = 3.73e-7;
constexpr double rz = 4.334e-6;
constexpr double scale = 1.000001994;
}  // namespace sevenParameters

// ED50 to WGS84 as a translation: the mean for western Europe, in metres.
constexpr GeocentricPosition meanShift{-87, -98, -121};

// The radius of curvature in the prime vertical of International 1924 at 50.8° north, taken for every latitude.
constexpr double fixedRadius = 6391302.701250945;
constexpr int latitudeRounds = 5;

double primeVerticalRadius(double a, double e2, double sinLatitude) {
    return a / std::sqrt(1 - e2 * sinLatitude * sinLatitude);
}

double cube(double value) {
    return value * value * value;
}

GeocentricPosition toWgs84(const GeocentricPosition& p) {
    using namespace sevenParameters;
    return {(p.x - rz * p.y + ry * p.z) * scale + tx, (rz * p.x + p.y - rx * p.z) * scale + ty,
            (-ry * p.x + rx * p.y + p.z) * scale + tz};
}

QString line(const char* format, double value) {
    return fillFormat(QString::fromLatin1(format), {value});
}

}  // namespace

SplitAngle splitAngle(double degrees) {
    SplitAngle split;
    split.degrees = static_cast<float>(std::floor(degrees));
    const double minutes = (degrees - static_cast<double>(split.degrees)) * 60;
    split.minutes = static_cast<float>(std::floor(minutes));
    split.seconds = static_cast<float>((minutes - static_cast<double>(split.minutes)) * 60);
    return split;
}

SexagesimalConversion convertSexagesimal(const SexagesimalAngle& longitude, const SexagesimalAngle& latitude,
                                         double altitude) {
    SexagesimalConversion c;
    c.longitude = longitude;
    c.latitude = latitude;
    c.ed50 = {longitude.decimal(), latitude.decimal(), altitude};
    c.longitudeRadians = c.ed50.longitude * radiansPerDegree;
    c.latitudeRadians = c.ed50.latitude * radiansPerDegree;
    c.sinLatitude = std::sin(c.latitudeRadians);
    c.cosLatitude = std::cos(c.latitudeRadians);
    c.sinLongitude = std::sin(c.longitudeRadians);
    c.cosLongitude = std::cos(c.longitudeRadians);
    c.radius = primeVerticalRadius(international1924::a, international1924::e2, c.sinLatitude);
    c.ed50Geocentric = {(c.radius + altitude) * c.cosLatitude * c.cosLongitude,
                        (c.radius + altitude) * c.cosLatitude * c.sinLongitude,
                        (international1924::oneLessE2 * c.radius + altitude) * c.sinLatitude};

    const GeocentricPosition shifted = toWgs84(c.ed50Geocentric);
    c.wgs84Geocentric = shifted;
    c.axisDistance = std::sqrt(shifted.x * shifted.x + shifted.y * shifted.y);
    c.theta = std::atan2(shifted.z, c.axisDistance * wgs84::axisRatio);
    c.wgs84LatitudeRadians = std::atan2(shifted.z + wgs84::aE2 * cube(std::sin(c.theta)) / wgs84::axisRatio,
                                        c.axisDistance - wgs84::aE2 * cube(std::cos(c.theta)));
    c.wgs84LongitudeRadians = std::atan2(shifted.y, shifted.x);
    c.wgs84Radius = primeVerticalRadius(wgs84::a, wgs84::e2, std::sin(c.wgs84LatitudeRadians));
    c.wgs84 = {c.wgs84LongitudeRadians * degreesPerRadian, c.wgs84LatitudeRadians * degreesPerRadian,
               c.axisDistance / std::cos(c.wgs84LatitudeRadians) - c.wgs84Radius};
    return c;
}

QString sexagesimalText(double degrees) {
    const SplitAngle split = splitAngle(degrees);
    return fillFormat(
        QStringLiteral("WGS84 %.0f° %.0f' %.3f''"),
        {static_cast<double>(split.degrees), static_cast<double>(split.minutes), static_cast<double>(split.seconds)});
}

DecimalConversion convertDecimal(DatumDirection direction, const GeographicPosition& position) {
    const bool toEd50 = direction == DatumDirection::Wgs84ToEd50;
    const double sign = toEd50 ? -1 : 1;
    const double inputE2 = toEd50 ? wgs84::roundedE2 : international1924::roundedE2;
    const double outputE2 = toEd50 ? international1924::roundedE2 : wgs84::roundedE2;
    const double outputA = toEd50 ? international1924::a : wgs84::a;

    DecimalConversion result;
    QStringList& log = result.log;
    log << line("d2r = %.15f", radiansPerDegree) << line("r2d = %.15f", degreesPerRadian);
    log << line(toEd50 ? "lng WGS -> ED = %f" : "lng ED -> WGS = %f", position.longitude)
        << line(toEd50 ? "lat WGS -> ED = %f" : "lat ED -> WGS = %f", position.latitude)
        << line(toEd50 ? "alt WGS -> ED = %f" : "alt ED -> WGS = %f", position.altitude);

    const double longitude = position.longitude * radiansPerDegree;
    const double latitude = position.latitude * radiansPerDegree;
    log << line("lng = %.15f", longitude) << line("lat = %.15f", latitude) << line("nin = %f", fixedRadius);

    const double xe = (fixedRadius + position.altitude) * std::cos(latitude) * std::cos(longitude);
    const double ye = (fixedRadius + position.altitude) * std::cos(latitude) * std::sin(longitude);
    const double ze = ((1 - inputE2) * fixedRadius + position.altitude) * std::sin(latitude);
    const double x = xe + sign * meanShift.x;
    const double y = ye + sign * meanShift.y;
    const double z = ze + sign * meanShift.z;
    log << line("xe = %f", xe) << line("ye = %f", ye);
    log << line("xs = %f", x) << line("ys = %f", y) << line("zs = %f\r\r", z);

    const double axisDistance = std::sqrt(x * x + y * y);
    // Half-angle form of atan2; its division by zero on the polar axis is shown as it comes out.
    const double shiftedLongitude = 2 * std::atan(y / (x + axisDistance));
    double shiftedLatitude = 0;
    double radius = 0;
    for (int round = 0; round < latitudeRounds; ++round) {
        radius = primeVerticalRadius(outputA, outputE2, std::sin(shiftedLatitude));
        shiftedLatitude = std::atan((z + outputE2 * radius * std::sin(shiftedLatitude)) / axisDistance);
        log << line("nout = %f", radius);
    }
    result.position = {
        shiftedLongitude * degreesPerRadian, shiftedLatitude * degreesPerRadian,
        axisDistance * std::cos(shiftedLatitude) + z * std::sin(shiftedLatitude) - outputA * outputA / radius};
    return result;
}

GpsOutput outputOf(const SexagesimalConversion& conversion) {
    return {sexagesimalText(conversion.wgs84.longitude), sexagesimalText(conversion.wgs84.latitude),
            fillFormat(QStringLiteral("%.1f m"), {conversion.wgs84.altitude})};
}

GpsOutput outputOf(const DecimalConversion& conversion) {
    return {fillFormat(QStringLiteral("%.6f"), {conversion.position.longitude}),
            fillFormat(QStringLiteral("%.6f"), {conversion.position.latitude}),
            fillFormat(QStringLiteral("Altitude : %.2f m"), {conversion.position.altitude})};
}

QString sexagesimalFormula() {
    using namespace sevenParameters;
    return QStringLiteral("X′ = s · R · X + T,  s = %1\nT = (%2; %3; %4) m\nR = (%5; %6; %7) rad")
        .arg(shortestText(scale), shortestText(tx), shortestText(ty), shortestText(tz), shortestText(rx),
             shortestText(ry), shortestText(rz));
}

QString decimalFormula() {
    return QStringLiteral("X′ = X ± (%1; %2; %3) m\ntan φ = (Z′ + e² · N · sin φ) / p")
        .arg(shortestText(meanShift.x), shortestText(meanShift.y), shortestText(meanShift.z));
}

}  // namespace tavrel
