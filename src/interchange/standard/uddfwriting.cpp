#include "interchange/standard/uddfwriting.h"

#include "base/texts.h"
#include "dives/divecodes.h"
#include "dives/divetanks.h"
#include "interchange/standard/founddive.h"
#include "interchange/standard/uddfparts.h"
#include "interchange/standard/uddfwords.h"
#include "interchange/xml/xmlwriter.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace tavrel {

namespace {

constexpr std::string_view uddfNamespace = "http://www.streit.cc/uddf/3.2/";
constexpr double zeroCelsius = 273.15;
constexpr int pascalPerBar = 100'000;

class Writer {
public:
    Writer(const RecordList& dives, const UddfHeader& header) : dives_(dives), header_(header) {
        links_.reserve(dives.size());
        for (const RecordPointer& dive : dives) {
            links_.push_back(parts_.linksOf(asDive(dive)));
        }
    }

    Expected<QByteArray> write(const Progress& progress) {
        constexpr std::size_t divesPerProgress = 32;
        xml_.begin("uddf", {{"xmlns", uddfNamespace}, {"version", "3.2.3"}});
        writeGenerator();
        parts_.write(xml_, header_.owner);
        if (!dives_.empty()) {
            xml_.begin("profiledata");
            xml_.begin("repetitiongroup", "id", "group1");
            for (std::size_t index = 0; index < dives_.size(); ++index) {
                if (index % divesPerProgress == 0 && progress && !progress(index, dives_.size())) {
                    return failure(text("Main", "Cancelled"));
                }
                writeDive(asDive(dives_[index]), links_[index], "dive" + std::to_string(index + 1));
            }
        }
        return xml_.finish();
    }

private:
    void writeGenerator() {
        xml_.begin("generator");
        xml_.element("name", std::string_view("Tavrel"));
        xml_.element("type", std::string_view("logbook"));
        xml_.element("datetime", header_.moment.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")));
        xml_.end();
    }

    void link(const std::string& id) { xml_.element("link", {{"ref", id}}); }

    void writeDive(const Plongee& dive, const UddfLinks& links, const std::string& id) {
        xml_.begin("dive", "id", id);
        writeBefore(dive, links);
        for (const UddfLinks::Tank& tank : links.tanks) {
            xml_.begin("tankdata");
            if (!tank.mix.empty()) {
                link(tank.mix);
            }
            link(tank.piece);
            xml_.element("tankvolume", uddfNumber(tank.volume / 1000.0));
            xml_.integer("tankpressurebegin", qint64(tank.start) * pascalPerBar);
            xml_.integer("tankpressureend", qint64(tank.end) * pascalPerBar);
            xml_.end();
        }
        if (dive.hasProfile()) {
            writeSamples(dive, links);
        }
        writeAfter(dive);
        xml_.end();
    }

    static QString startText(const Plongee& dive) {
        const QDateTime start = startOf(dive);
        return start.isValid() ? start.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"))
                               : QStringLiteral("0001-01-01T00:00:00");
    }

    void kelvin(std::string_view name, qint32 celsius) {
        if (celsius > temperatureNotGiven) {
            xml_.decimal(name, celsius + zeroCelsius, 2);
        }
    }

    void writeBefore(const Plongee& dive, const UddfLinks& links) {
        xml_.begin("informationbeforedive");
        for (const std::string& id : links.before) {
            link(id);
        }
        if (dive.noPlongee > 0) {
            xml_.integer("divenumber", dive.noPlongee);
        }
        xml_.element("datetime", startText(dive));
        kelvin("airtemperature", dive.tempAir);
        writeInterval(dive.surface);
        if (dive.altitude != 0) {
            xml_.integer("altitude", dive.altitude);
        }
        xml_.begin("equipmentused");
        if (dive.lestage > 0 && std::isfinite(dive.lestage)) {
            xml_.element("leadquantity", uddfNumber(dive.lestage));
        }
        for (const std::string& id : links.equipment) {
            link(id);
        }
        xml_.end();
        xml_.element("apparatus",
                     std::string_view(dive.rebreather == Apparatus::openCircuit ? "open-scuba" : "rebreather"));
        if (const QString purpose = purposeWord(dive.typePlongee); !purpose.isEmpty()) {
            xml_.element("purpose", purpose);
        }
        if (!links.boat.empty()) {
            xml_.element("tripmembership", {{"ref", links.boat}});
        }
        if (dive.combinaison == Suit::none) {
            xml_.element("nosuit", std::string_view());
        }
        writeStops(dive, links);
        xml_.end();
    }

    void writeInterval(const QString& interval) {
        static const QRegularExpression hoursAndMinutes(QStringLiteral(R"(^(\d{1,5}):(\d\d)$)"));
        const auto match = hoursAndMinutes.match(interval);
        if (match.hasMatch()) {
            xml_.begin("surfaceintervalbeforedive");
            xml_.integer("passedtime", match.captured(1).toLongLong() * 3600 + match.captured(2).toLongLong() * 60);
            xml_.end();
        }
    }

    /// The stops as the plan of the dive, each a point with its gas; those that were not made count as a safety's.
    void writeStops(const Plongee& dive, const UddfLinks& links) {
        const auto isGiven = [&](const StopFields& stop) {
            return dive.*stop.made != 0 || dive.*stop.minutes != 0 || dive.*stop.gas.first != 0 ||
                   dive.*stop.depth != 0.0F;
        };
        const auto last = std::find_if(stopFields.rbegin(), stopFields.rend(), isGiven);
        const auto count = static_cast<std::size_t>(stopFields.rend() - last);
        if (count == 0) {
            return;
        }
        xml_.begin("plannedprofile");
        for (std::size_t level = 0; level < count; ++level) {
            const StopFields& stop = stopFields[level];
            xml_.begin("waypoint");
            const float depth = dive.*stop.depth;
            xml_.element("decostop", {{"kind", dive.*stop.made != 0 ? "mandatory" : "safety"},
                                      {"decodepth", std::isfinite(depth) ? uddfNumber(depth) : "0"},
                                      {"duration", uddfNumber(dive.*stop.minutes * 60.0)}});
            if (!links.stops[level].empty()) {
                xml_.element("switchmix", {{"ref", links.stops[level]}});
            }
            xml_.end();
        }
        xml_.end();
    }

    struct Alarm {
        Series ProfileSeries::*flags;
        std::string_view text;
        std::string_view level;
    };

    void writeSamples(const Plongee& dive, const UddfLinks& links) {
        static constexpr std::array<Alarm, 4> alarms{{
            {&ProfileSeries::ASC_Flag, "ascent", "1"},
            {&ProfileSeries::SLOW_Flag, "ascent", "0.5"},
            {&ProfileSeries::SURF_Flag, "surface", {}},
            {&ProfileSeries::CEIL_Flag, "deco", {}},
        }};
        const bool knownCode =
            dive.samplingRate >= 0 && static_cast<std::size_t>(dive.samplingRate) < samplingIntervals.size();
        const int seconds = samplingIntervals[knownCode ? static_cast<std::size_t>(dive.samplingRate) : 0];
        const bool closed = Apparatus::isClosed(dive.rebreather);
        xml_.begin("samples");
        for (std::size_t sample = 0; sample < dive.profilProfondeur.size(); ++sample) {
            xml_.begin("waypoint");
            for (const Alarm& alarm : alarms) {
                const Series& flags = dive.*alarm.flags;
                if (sample >= flags.size() || flags.integer(sample) != 1) {
                    continue;
                }
                alarm.level.empty() ? xml_.element("alarm", alarm.text)
                                    : xml_.element("alarm", {{"level", alarm.level}}, alarm.text);
            }
            if (const double depth = dive.profilProfondeur.real(sample); std::isfinite(depth)) {
                xml_.element("depth", uddfNumber(depth));
            }
            xml_.integer("divetime", static_cast<qint64>(sample) * seconds);
            if (closed) {
                writeSetPoint(dive, sample);
            }
            if (const std::string mix = switchAt(dive, links, sample); !mix.empty()) {
                xml_.element("switchmix", {{"ref", mix}});
            }
            writePressure(dive, links, sample);
            if (sample == 0) {
                const std::string_view mode = closed                                     ? "closedcircuit"
                                              : dive.rebreather == Apparatus::semiClosed ? "semiclosedcircuit"
                                                                                         : "opencircuit";
                xml_.element("divemode", {{"type", mode}});
            }
            xml_.end();
        }
        xml_.end();
    }

    /// The low set point where the dive begins, the high one from the next sample on.
    void writeSetPoint(const Plongee& dive, std::size_t sample) {
        const double low = setPointBar(dive.lowSetpoint);
        const double high = setPointBar(dive.ppO2);
        const double point = sample == 0 ? (low > 0 ? low : high) : sample == 1 && low > 0 ? high : 0;
        if (point > 0) {
            xml_.element("setpo2", {{"setby", "user"}}, std::to_string(std::lround(point * pascalPerBar)));
        }
    }

    static std::string switchAt(const Plongee& dive, const UddfLinks& links, std::size_t sample) {
        const qint32 flag = sample < dive.GAZ_Flag.size() ? dive.GAZ_Flag.integer(sample) : 0;
        if (flag >= 2 && static_cast<std::size_t>(flag - 2) < links.stops.size()) {
            return links.stops[static_cast<std::size_t>(flag - 2)];
        }
        return flag == 1 || sample == 0 ? links.breathed : std::string();
    }

    void writePressure(const Plongee& dive, const UddfLinks& links, std::size_t sample) {
        if (dive.PRESS_Data.size() < 2 || sample >= dive.PRESS_Data.size()) {
            return;
        }
        const double bar = dive.PRESS_Data.real(sample);
        if (std::isfinite(bar) && bar >= 0) {
            // To a tenth of a pascal.
            xml_.element("tankpressure", {{"ref", links.tanks.front().piece}},
                         uddfNumber(std::round(bar * pascalPerBar * 10) / 10));
        }
    }

    void writeAfter(const Plongee& dive) {
        xml_.begin("informationafterdive");
        kelvin("lowesttemperature", dive.tempEau);
        xml_.element("greatestdepth", std::isfinite(dive.profondeur) ? uddfNumber(dive.profondeur) : "0");
        if (const double metres = visibilityMetres(dive.visibilite); metres > 0) {
            xml_.element("visibility", uddfNumber(metres));
        }
        if (const QString current = currentWord(dive.courant); !current.isEmpty()) {
            xml_.element("current", current);
        }
        const std::string_view plan = dive.deco == DecoMethod::computer       ? "dive-computer"
                                      : dive.deco <= DecoMethod::nitroxTables ? "table"
                                                                              : "none";
        xml_.element("diveplan", plan);
        if (!dive.notes.isEmpty()) {
            xml_.begin("notes");
            for (const QString& line : dive.notes.split(u'\n')) {
                xml_.element("para", line);
            }
            xml_.end();
        }
        if (const int rating = ratingValue(dive.inoubliable); rating > 0) {
            xml_.begin("rating");
            xml_.integer("ratingvalue", rating);
            xml_.end();
        }
        xml_.integer("diveduration", qint64(dive.temps) * 60);
        xml_.end();
    }

    const RecordList& dives_;
    const UddfHeader& header_;
    XmlWriter xml_;
    std::vector<UddfLinks> links_;
    UddfParts parts_;
};

}  // namespace

Expected<QByteArray> writeUddf(const RecordList& dives, const UddfHeader& header, const Progress& progress) {
    return Writer(dives, header).write(progress);
}

}  // namespace tavrel
