#include "calculators/gps.h"

#include "calculators/gpsreport.h"
#include "calculators/position.h"
#include "support/printing.h"

#include <cmath>
#include <numbers>

namespace tavrel {

namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double metresPerDegree = 111'320;

double horizontalMetres(const GeographicPosition& a, const GeographicPosition& b) {
    return std::hypot((a.longitude - b.longitude) * std::cos(a.latitude * degree), a.latitude - b.latitude) *
           metresPerDegree;
}

TEST(Gps, shiftsByThePublishedParameters) {
    // ED50, and WGS84 by the standard Molodensky formulas with the published mean shift (-87, -98, -121) and the
    // differences of the ellipsoids: another way to the same place, good to a metre.
    const std::pair<GeographicPosition, GeographicPosition> places[] = {
        {{-4.49, 48.38, 30}, {-4.4914108, 48.3789925, 87.05}}, {{2.35, 48.85, 35}, {2.3487145, 48.8490853, 83.31}},
        {{4.3, 50.8, 0}, {4.2987064, 50.7991630, 42.96}},      {{7.3, 43.7, 0}, {7.2989313, 43.6990053, 52.48}},
        {{-6.2, 36.5, 12}, {-6.2011923, 36.4987437, 97.75}},
    };
    for (const auto& [ed50, expected] : places) {
        const auto wgs84 = convertSexagesimal({ed50.longitude, 0, 0}, {ed50.latitude, 0, 0}, ed50.altitude).wgs84;
        // The seven parameters are not the mean's: they leave it by a sixth of the whole shift.
        EXPECT_LT(horizontalMetres(wgs84, expected), 26) << ed50.latitude;
        EXPECT_NEAR(wgs84.altitude, expected.altitude, 40) << ed50.latitude;
        const auto decimal = convertDecimal(DatumDirection::Ed50ToWgs84, ed50).position;
        // One radius for all latitudes costs up to two metres sideways for every degree.
        EXPECT_LT(horizontalMetres(decimal, expected), 1 + std::abs(ed50.latitude - 50.8) * 2) << ed50.latitude;
    }
    // Where the radius holds.
    EXPECT_NEAR(convertDecimal(DatumDirection::Ed50ToWgs84, {4.3, 50.80024, 0}).position.altitude, 42.96, 1);
}

TEST(Gps, closedFormAgreesWithAnIteration) {
    // The same seven parameters, taken back to angles by an iteration until it stood still.
    const auto nice = convertSexagesimal({7.3, 0, 0}, {43.7, 0, 0}, 0).wgs84;
    EXPECT_NEAR(nice.longitude, 7.29923088515193, 1e-11);
    EXPECT_NEAR(nice.latitude, 43.69897968948247, 1e-11);
    EXPECT_NEAR(nice.altitude, 60.816405612, 1e-6);
}

TEST(Gps, typedPartsAreAddedAndNegativeResultsAreFloored) {
    EXPECT_EQ((SexagesimalAngle{-1, 30, 0}.decimal()), -0.5);
    EXPECT_EQ(sexagesimalText(-1.5), u"WGS84 -2° 30' 0.000''");
    EXPECT_EQ(sexagesimalText(48.8361111), u"WGS84 48° 50' 10.000''");
    EXPECT_EQ(sexagesimalText(std::nan("")), u"WGS84 nan° nan' nan''");
}

TEST(Gps, aPlaceOnTheEquatorOrTheMeridianIsOne) {
    EXPECT_TRUE(positionOf(QStringLiteral("0 5")) && positionOf(QStringLiteral("5 0")));
    EXPECT_FALSE(positionOf(QStringLiteral("0 0"))) << "what devices write for none";
}

TEST(Gps, reportSaysEveryStepInThreeRoles) {
    const auto report = gpsReport(convertSexagesimal({-1, 30, 0}, {48, 50, 12.5}, 30));
    const QStringList lines = reportLines(report);
    ASSERT_EQ(lines.size(), 36);
    EXPECT_EQ(lines[0], u"----- ED50 -----");
    EXPECT_EQ(lines.mid(2, 4).join(u'|'),
              u"  longitude : -1 ° 30 ' 0.000 ''|  altitude : 30.00 m||  lat (deg.) : 48.8368055556");
    EXPECT_EQ(std::tuple(report[0].role, report[1].role, report[2].role),
              std::tuple(ReportRole::Title, ReportRole::Label, ReportRole::Value));
    EXPECT_TRUE(report.front().text.startsWith(u'\r'));
}

TEST(Gps, decimalLogHasALinePerStep) {
    const auto result = convertDecimal(DatumDirection::Wgs84ToEd50, {2.5, 48, 10});
    ASSERT_EQ(result.log.size(), 18);
    EXPECT_EQ(result.log[0], u"d2r = 0.017453292519943");
    EXPECT_EQ(result.log[2], u"lng WGS -> ED = 2.500000");
    EXPECT_EQ(result.log[7], u"nin = 6391302.701251");
    EXPECT_TRUE(result.log[12].startsWith(u"zs = ") && result.log[12].endsWith(u"\r\r"));
    EXPECT_EQ(result.log[13], u"nout = 6378388.000000");
    EXPECT_EQ(convertDecimal(DatumDirection::Ed50ToWgs84, {}).log[4], u"alt ED -> WGS = 0.000000");
    EXPECT_TRUE(outputOf(result).altitude.startsWith(u"Altitude : "));
}

}  // namespace

}  // namespace tavrel
