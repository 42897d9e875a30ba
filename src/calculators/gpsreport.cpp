#include "calculators/gpsreport.h"

#include "base/texts.h"

namespace tavrel {

namespace {

class Report {
public:
    void title(const char* words) { add(words, ReportRole::Title); }

    void value(const char* label, double number) { value(label, "%.10f", number); }

    void value(const char* label, const char* format, double number) {
        add(label, ReportRole::Label);
        runs.push_back({fillFormat(QString::fromLatin1(format), {number}), ReportRole::Value});
    }

    void angle(const char* label, const SexagesimalAngle& angle) {
        add(label, ReportRole::Label);
        runs.push_back(
            {fillFormat(QStringLiteral("%.0f ° %.0f ' %.3f ''"), {angle.degrees, angle.minutes, angle.seconds}),
             ReportRole::Value});
    }

    void blank() { pendingBlank = true; }

    void point(const GeocentricPosition& position) {
        value("  x : ", position.x);
        value("  y : ", position.y);
        value("  z : ", position.z);
    }

    std::vector<ReportRun> runs;

private:
    void add(const char* words, ReportRole role) {
        runs.push_back(
            {(pendingBlank ? QStringLiteral("\r\r") : QStringLiteral("\r")) + QString::fromLatin1(words), role});
        pendingBlank = false;
    }

    bool pendingBlank = false;
};

}  // namespace

std::vector<ReportRun> gpsReport(const SexagesimalConversion& c) {
    Report report;
    report.title("----- ED50 -----");
    report.angle("  latitude : ", c.latitude);
    report.angle("  longitude : ", c.longitude);
    report.value("  altitude : ", "%.2f m", c.ed50.altitude);
    report.blank();
    report.value("  lat (deg.) : ", c.ed50.latitude);
    report.value("  lng (deg.) : ", c.ed50.longitude);
    report.blank();
    report.value("  lat (rad.) : ", c.latitudeRadians);
    report.value("  lng (rad.) : ", c.longitudeRadians);
    report.blank();
    report.value("  sin(lat) : ", c.sinLatitude);
    report.value("  cos(lat) : ", c.cosLatitude);
    report.value("  sin(lng) : ", c.sinLongitude);
    report.value("  cos(lng) : ", c.cosLongitude);
    report.blank();
    report.value("  n : ", c.radius);
    report.point(c.ed50Geocentric);
    report.blank();
    report.title("----- WGS84 -----");
    report.point(c.wgs84Geocentric);
    report.blank();
    report.value("  p : ", c.axisDistance);
    report.blank();
    report.value("  theta : ", c.theta);
    report.value("  phi : ", c.wgs84LatitudeRadians);
    report.value("  n : ", c.wgs84Radius);
    report.value("  lambda : ", c.wgs84LongitudeRadians);
    report.value("  altitude : ", "%.2f m", c.wgs84.altitude);
    report.blank();
    report.value("  lat (deg.) : ", c.wgs84.latitude);
    report.value("  lng (deg.) : ", c.wgs84.longitude);
    return report.runs;
}

QStringList reportLines(const std::vector<ReportRun>& report) {
    QString whole;
    for (const ReportRun& run : report) {
        whole += run.text;
    }
    return whole.mid(1).split(u'\r');
}

}  // namespace tavrel
