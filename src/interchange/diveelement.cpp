#include "interchange/diveelement.h"

#include "base/numbers.h"
#include "dives/divecodes.h"
#include "interchange/exportprogress.h"

#include <array>

namespace tavrel {

namespace {

/// Seconds between samples by sampling code. Code 6 (1 s) is written as 5 s; readers of these files know it so.
constexpr std::array<double, 8> deltas{10, 20, 30, 60, 120, 4, 5, 5};

struct Alarm {
    Series ProfileSeries::*flags;
    std::string_view text;
};

/// In the order in which the alarms of one sample follow its depth.
constexpr std::array<Alarm, 4> alarms{{
    {&ProfileSeries::ASC_Flag, "deco"},
    {&ProfileSeries::SLOW_Flag, "ascent"},
    {&ProfileSeries::SURF_Flag, "surface"},
    {&ProfileSeries::CEIL_Flag, "error"},
}};

QString padded(int number, int width) {
    return QStringLiteral("%1").arg(number, width, 10, QLatin1Char('0'));
}

QString mixName(const Plongee& dive) {
    switch (dive.gaz) {
        case Gas::air:
            return text("Carnet", "Air");
        case Gas::nitrox:
            return fillFormat(QStringLiteral("Nitrox %d"), {formatArgument(dive.o2Mix)});
        case Gas::trimix:
            return fillFormat(QStringLiteral("Trimix %d/%d"), {formatArgument(dive.o2Mix), formatArgument(dive.heMix)});
        default:
            return fillFormat(QStringLiteral("Heliox %d"), {formatArgument(dive.o2Mix)});
    }
}

class DiveWriter {
public:
    DiveWriter(XmlWriter& xml, const DiveDateNames& names) : xml_(xml), names_(names) {}

    void write(const Plongee& dive) {
        xml_.begin("DIVE");
        xml_.element("PLACE", dive.lieu + QStringLiteral(" - ") + dive.site);
        writeDate(dive);
        xml_.integer("MAXDEPTH", truncated(static_cast<double>(dive.profondeur)));
        xml_.integer("DIVETIME", dive.temps);
        xml_.element("SURFACEINTERVAL", std::string_view("infinity"));
        xml_.integer("TEMPERATURE", dive.tempEau);
        xml_.integer("ALTITUDE", dive.altitude);
        writeGases(dive);
        xml_.element("DELTAMODE", std::string_view());
        writeSamples(dive);
        xml_.end();
    }

private:
    void writeDate(const Plongee& dive) {
        const QDate date = dive.date.toDateTime().date();
        const QTime time = dive.heure.toDateTime().time();
        const auto part = [&](std::string_view name, bool known, int number, int width) {
            xml_.element(name, known ? padded(number, width) : QString());
        };
        xml_.begin(names_.date);
        part(names_.year, date.isValid(), date.year(), 4);
        part(names_.month, date.isValid(), date.month(), 2);
        part(names_.day, date.isValid(), date.day(), 2);
        xml_.end();
        xml_.begin(names_.time);
        part(names_.hour, time.isValid(), time.hour(), 2);
        part(names_.minute, time.isValid(), time.minute(), 2);
        xml_.end();
    }

    void writeGases(const Plongee& dive) {
        xml_.begin("GASES");
        xml_.begin("MIX");
        xml_.element("MIXNAME", mixName(dive));
        xml_.begin("TANK");
        xml_.integer("TANKVOLUME", dive.volumeBloc);
        xml_.integer("PSTART", dive.pressionDepart);
        xml_.integer("PEND", dive.pressionFin);
        xml_.end();
        const double nitrogen = 100.0 - dive.o2Mix - dive.heMix;
        xml_.decimal("O2", dive.o2Mix / 100.0, 2);
        xml_.decimal("N2", nitrogen / 100.0, 2);
        xml_.decimal("HE", dive.heMix / 100.0, 2);
        xml_.end();
        xml_.end();
    }

    void writeSamples(const Plongee& dive) {
        if (dive.samplingRate >= 0 && static_cast<std::size_t>(dive.samplingRate) < deltas.size()) {
            delta_ = deltas[static_cast<std::size_t>(dive.samplingRate)];
        }
        xml_.begin("SAMPLES");
        xml_.decimal("DELTA", delta_, 1);
        xml_.element("SWITCH", std::string_view("1"));
        xml_.element("D", std::string_view("0.0"));
        const std::size_t points = dive.profilProfondeur.size();
        for (std::size_t point = 0; point < points; ++point) {
            xml_.decimal("D", dive.profilProfondeur.real(point), 1);
            for (const Alarm& alarm : alarms) {
                // A series may be shorter than the depths; it raises nothing beyond its end.
                const Series& flags = dive.*alarm.flags;
                if (point < flags.size() && flags.integer(point) == 1) {
                    xml_.element("ALARM", alarm.text);
                }
            }
        }
        xml_.element("D", std::string_view("0.0"));
        xml_.end();
    }

    XmlWriter& xml_;
    const DiveDateNames& names_;
    double delta_ = deltas[0];
};

}  // namespace

void writeComments(XmlWriter& xml, std::string_view banner, const QDateTime& moment) {
    xml.comment(banner);
    xml.comment(" Visit the web site of Tavrel: https://www.example.org/tavrel ");
    const QString written = moment.toString(QStringLiteral("' 'dd-MM-yyyy - HH:mm:ss' '"));
    xml.comment(written.toStdString());
}

Expected<void> writeDives(XmlWriter& xml, Carnet& carnet, const DiveDateNames& names) {
    xml.begin("ADDINFO");
    xml.integer("TOTALDIVES", carnet.count());
    xml.end();
    xml.begin("REPGROUP");
    DiveWriter writer(xml, names);
    auto written = forEachDive(carnet, [&](const Plongee& dive) -> Expected<void> {
        writer.write(dive);
        return {};
    });
    if (!written) {
        return written;
    }
    xml.end();
    return {};
}

}  // namespace tavrel
