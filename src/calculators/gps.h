#pragma once

#include <QString>
#include <QStringList>

namespace tavrel {

// Positions between the datums ED50 (International 1924 ellipsoid) and WGS84. Longitudes positive to the east,
// latitudes to the north, in degrees unless a name says radians; altitudes are heights above the ellipsoid in metres.

struct GeographicPosition {
    double longitude = 0;
    double latitude = 0;
    double altitude = 0;
};

struct GeocentricPosition {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// An angle typed in three parts. They are added as they stand, so -1° 30' is -0.5°.
struct SexagesimalAngle {
    double degrees = 0;
    double minutes = 0;
    double seconds = 0;

    double decimal() const { return degrees + minutes / 60 + seconds / 3600; }
};

/// An angle split for display, in single precision. Degrees are the floor: -1.5° is -2° 30' 0''.
struct SplitAngle {
    float degrees = 0;
    float minutes = 0;
    float seconds = 0;
};
SplitAngle splitAngle(double degrees);

/// Every step of the sexagesimal conversion, for its report.
struct SexagesimalConversion {
    SexagesimalAngle longitude, latitude;  ///< as typed, ED50
    GeographicPosition ed50;
    double longitudeRadians = 0, latitudeRadians = 0;
    double sinLatitude = 0, cosLatitude = 0, sinLongitude = 0, cosLongitude = 0;
    double radius = 0;  ///< of curvature in the prime vertical, m
    GeocentricPosition ed50Geocentric;

    GeocentricPosition wgs84Geocentric;
    double axisDistance = 0;  ///< from the polar axis, m
    double theta = 0;         ///< auxiliary angle of the closed form, radians
    double wgs84LatitudeRadians = 0, wgs84Radius = 0, wgs84LongitudeRadians = 0;
    GeographicPosition wgs84;
};

/// ED50 to WGS84 by seven parameters (rotations, scale, translations), and back to angles by Bowring's closed form.
SexagesimalConversion convertSexagesimal(const SexagesimalAngle& longitude, const SexagesimalAngle& latitude,
                                         double altitude);

/// What the sexagesimal converter shows.
QString sexagesimalText(double degrees);

/// The tags of the direction menu; any other counts as ED50 to WGS84.
enum class DatumDirection { Ed50ToWgs84 = 0, Wgs84ToEd50 = 1 };

struct DecimalConversion {
    GeographicPosition position;
    QStringList log;  ///< the diagnostic lines, one per step
};

/// Either direction by three parameters (a translation) and five rounds of a fixed-point iteration. The way into
/// geocentric coordinates takes one radius for every latitude, so the way there and back does not close, and far
/// from 50.8° the altitude is off by kilometres.
DecimalConversion convertDecimal(DatumDirection direction, const GeographicPosition& position);

/// The three output fields of a conversion, as shown.
struct GpsOutput {
    QString longitude;
    QString latitude;
    QString altitude;
};
GpsOutput outputOf(const SexagesimalConversion& conversion);
GpsOutput outputOf(const DecimalConversion& conversion);

/// The converters' rules with their constants, for the line under each.
QString sexagesimalFormula();
QString decimalFormula();

}  // namespace tavrel
