#include "interchange/standard/uddfwriting.h"

#include "base/numbers.h"
#include "base/texts.h"
#include "calculators/gps.h"
#include "calculators/position.h"
#include "interchange/standard/divetanks.h"
#include "interchange/standard/founddive.h"
#include "interchange/standard/gasmix.h"
#include "interchange/standard/uddfwords.h"
#include "interchange/xml/xmlwriter.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <tuple>

namespace tavrel {

namespace {

constexpr std::string_view uddfNamespace = "http://www.streit.cc/uddf/3.2/";
constexpr double zeroCelsius = 273.15;
constexpr int pascalPerBar = 100'000;

std::string numberText(double value) {
    return shortestText(value).toStdString();
}
std::string numberText(float value) {
    return shortestText(value).toStdString();
}

/// Ids for things that several dives share, given out in the order in which they are first met.
template <class Key>
class Shared {
public:
    explicit Shared(std::string prefix) : prefix_(std::move(prefix)) {}

    std::string idOf(const Key& key) {
        const auto [entry, isNew] = numbers_.try_emplace(key, keys_.size());
        if (isNew) {
            keys_.push_back(key);
        }
        return prefix_ + std::to_string(entry->second + 1);
    }
    /// With their ids, as they were met.
    template <class Visit>
    void each(Visit visit) const {
        for (std::size_t index = 0; index < keys_.size(); ++index) {
            visit(prefix_ + std::to_string(index + 1), keys_[index]);
        }
    }
    bool isEmpty() const { return keys_.empty(); }

private:
    std::string prefix_;
    std::map<Key, std::size_t> numbers_;
    std::vector<Key> keys_;
};

struct Site {
    QString name, location, country, wreck;
    std::optional<std::pair<double, double>> position;  ///< latitude and longitude
    int difficulty = 0;
    QString environment;

    auto key() const { return std::tie(name, location, country, wreck, position, difficulty, environment); }
    bool operator<(const Site& other) const { return key() < other.key(); }
    bool isEmpty() const {
        return name.isEmpty() && location.isEmpty() && country.isEmpty() && wreck.isEmpty() && !position &&
               difficulty == 0 && environment.isEmpty();
    }
};

/// One id for each use of a gas, so that a reader can tell a stop's gas from the same one in a tank.
struct Mix {
    std::string use;
    qint32 oxygen, helium, kind;
    auto key() const { return std::tie(use, oxygen, helium, kind); }
    bool operator<(const Mix& other) const { return key() < other.key(); }
};

struct TankPiece {
    std::string name;
    qint32 material, volume;
    auto key() const { return std::tie(name, material, volume); }
    bool operator<(const TankPiece& other) const { return key() < other.key(); }
};

struct Computer {
    QString maker, model, serial;
    auto key() const { return std::tie(maker, model, serial); }
    bool operator<(const Computer& other) const { return key() < other.key(); }
};

/// A tank as a dive uses it.
struct UsedTank {
    std::string piece;  ///< id
    std::string mix;    ///< id; may be empty
    qint32 volume, start, end;
};

/// What a dive refers to.
struct Links {
    std::vector<std::string> before;  ///< site, club, buddies
    std::vector<std::string> equipment;
    std::string boat;
    std::vector<UsedTank> tanks;
    std::array<std::string, 6> stops;
    std::string breathed;  ///< the gas that the dive begins with
};

std::optional<std::pair<double, double>> wgs84Of(const Plongee& dive) {
    const auto position = positionOf(dive.gps);
    if (!position) {
        return std::nullopt;
    }
    if (dive.gpsSystem != 0) {
        return std::pair(position->latitude, position->longitude);
    }
    const auto converted = convertSexagesimal({position->longitude, 0, 0}, {position->latitude, 0, 0}, 0).wgs84;
    return std::pair(converted.latitude, converted.longitude);
}

class Writer {
public:
    Writer(const RecordList& dives, const UddfHeader& header) : dives_(dives), header_(header) {
        links_.reserve(dives.size());
        for (const RecordPointer& dive : dives) {
            links_.push_back(linksOf(asDive(dive)));
        }
    }

    Expected<QByteArray> write(const Progress& progress) {
        constexpr std::size_t divesPerProgress = 32;
        xml_.begin("uddf", {{"xmlns", uddfNamespace}, {"version", "3.2.3"}});
        writeGenerator();
        writeDiver();
        writeSites();
        writeBoats();
        writeMixes();
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
    Links linksOf(const Plongee& dive) {
        Links links;
        Site site{dive.site,
                  dive.lieu,
                  dive.pays,
                  dive.epaves,
                  wgs84Of(dive),
                  difficultyValue(dive.difficulte),
                  environmentWord(dive.typePlongee)};
        if (!site.isEmpty()) {
            links.before.push_back(sites_.idOf(site));
        }
        if (!dive.structure.isEmpty()) {
            links.before.push_back(clubs_.idOf(dive.structure));
        }
        for (const QString& name : namesOf(dive.partenaires)) {
            links.before.push_back(buddies_.idOf(name));
        }
        if (!dive.bateau.isEmpty()) {
            links.boat = boats_.idOf(dive.bateau);
        }
        const Computer computer{dive.fabricant, dive.ordinateur, dive.serie};
        if (!computer.maker.isEmpty() || !computer.model.isEmpty() || !computer.serial.isEmpty()) {
            links.equipment.push_back(computers_.idOf(computer));
        }
        if (const QString apparatus = apparatusName(dive.rebreather); !apparatus.isEmpty()) {
            links.equipment.push_back(rebreathers_.idOf(apparatus));
        }
        if (!suitName(dive.combinaison).isEmpty()) {
            links.equipment.push_back(suits_.idOf(dive.combinaison));
        }
        for (const auto field : equipmentFields) {
            if (!(dive.*field).isEmpty()) {
                links.equipment.push_back(pieces_.idOf(dive.*field));
            }
        }
        linkTanks(dive, links);
        return links;
    }

    /// The names of buddies, where taking them apart can be undone; else the whole text as one.
    static QStringList namesOf(const QString& text) {
        const QStringList names = text.split(QStringLiteral(", "));
        const bool plain = std::all_of(names.begin(), names.end(), [](const QString& name) {
            return !name.isEmpty() && name == name.simplified();
        });
        return text.isEmpty() ? QStringList() : plain ? names : QStringList(text);
    }

    void linkTanks(const Plongee& dive, Links& links) {
        const auto mixOf = [&](const char* use, qint32 oxygen, qint32 helium, qint32 kind) {
            return mixes_.idOf({use, oxygen, helium, kind});
        };
        const auto add = [&](const std::string& name, std::string mix, qint32 material, qint32 volume, qint32 start,
                             qint32 end) {
            links.tanks.push_back({pieces(name, material, volume), std::move(mix), volume, start, end});
        };
        const bool closed = Apparatus::isClosed(dive.rebreather);
        for (std::size_t tank = 0; tank < mainTankFields.size(); ++tank) {
            const MainTankFields& its = mainTankFields[tank];
            const bool isUsed = dive.*its.volume != 0 || dive.*its.start != 0 || dive.*its.end != 0 ||
                                dive.*its.material != 0 || dive.*its.gas != 0 || dive.*its.helium != 0 ||
                                (dive.*its.oxygen != 21 && dive.*its.oxygen != 0);
            if (tank > 0 && !isUsed && !closed) {
                continue;
            }
            const std::string mix =
                mixOf(tank == 0 ? "bottom" : "second", dive.*its.oxygen, dive.*its.helium, dive.*its.gas);
            add("Tank " + std::to_string(tank + 1), mix, dive.*its.material, dive.*its.volume, dive.*its.start,
                dive.*its.end);
            if ((tank == 1) == closed) {
                links.breathed = mix;
            }
        }
        for (std::size_t stage = 0; stage < stageFields.size(); ++stage) {
            const BottleFields& its = stageFields[stage];
            if (dive.*its.volume != 0 || dive.*its.start != 0 || dive.*its.end != 0) {
                add("Stage " + std::to_string(stage + 1), {}, 0, dive.*its.volume, dive.*its.start, dive.*its.end);
            }
        }
        for (std::size_t bottle = 0; bottle < bailoutFields.size(); ++bottle) {
            const BottleFields& its = bailoutFields[bottle];
            const qint32 oxygen = dive.*bailoutGasFields[bottle].first;
            const qint32 helium = dive.*bailoutGasFields[bottle].second;
            if (dive.*its.volume != 0 || dive.*its.start != 0 || dive.*its.end != 0 || oxygen != 0) {
                add("Bail-out " + std::to_string(bottle + 1),
                    oxygen > 0 ? mixOf("bail-out", oxygen, helium, gasMix(oxygen / 100.0, helium / 100.0).kind) : "", 0,
                    dive.*its.volume, dive.*its.start, dive.*its.end);
            }
        }
        for (std::size_t level = 0; level < stopFields.size(); ++level) {
            const qint32 oxygen = dive.*stopFields[level].gas.first;
            const qint32 helium = dive.*stopFields[level].gas.second;
            if (oxygen > 0) {
                const std::string use = "stop " + std::to_string(level + 1);
                links.stops[level] = mixOf(use.c_str(), oxygen, helium, gasMix(oxygen / 100.0, helium / 100.0).kind);
            }
        }
    }

    std::string pieces(const std::string& name, qint32 material, qint32 volume) {
        return tanks_.idOf({name, material, volume});
    }

    void writeGenerator() {
        xml_.begin("generator");
        xml_.element("name", std::string_view("Tavrel"));
        xml_.element("type", std::string_view("logbook"));
        xml_.element("datetime", header_.moment.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")));
        xml_.end();
    }

    void writePersonal(const QString& name) {
        const qsizetype blank = name.indexOf(u' ');
        xml_.begin("personal");
        xml_.element("firstname", blank < 0 ? name : name.left(blank));
        xml_.element("lastname", blank < 0 ? QString() : name.mid(blank + 1));
        xml_.end();
    }

    template <class Write>
    void piece(std::string_view element, const std::string& id, const QString& name, Write write) {
        xml_.begin(element, "id", id);
        xml_.element("name", name);
        write();
        xml_.end();
    }

    void writeDiver() {
        xml_.begin("diver");
        xml_.begin("owner", "id", "owner");
        writePersonal(header_.owner);
        xml_.begin("equipment");
        computers_.each([&](const std::string& id, const Computer& computer) {
            piece("divecomputer", id, computer.model, [&] {
                if (!computer.maker.isEmpty()) {
                    xml_.begin("manufacturer");
                    xml_.element("name", computer.maker);
                    xml_.end();
                }
                xml_.element("model", computer.model);
                xml_.element("serialnumber", computer.serial);
            });
        });
        rebreathers_.each([&](const std::string& id, const QString& name) { piece("rebreather", id, name, [] {}); });
        suits_.each([&](const std::string& id, qint32 suit) {
            piece("suit", id, suitName(suit), [&] { xml_.element("suittype", suitKind(suit)); });
        });
        tanks_.each([&](const std::string& id, const TankPiece& tank) {
            piece("tank", id, QString::fromStdString(tank.name), [&] {
                static constexpr std::array<std::string_view, 3> materials{"aluminium", "carbon", "steel"};
                const auto material = static_cast<std::size_t>(tank.material);
                if (material < materials.size()) {
                    xml_.element("tankmaterial", materials[material]);
                }
                xml_.element("tankvolume", numberText(tank.volume / 1000.0));
            });
        });
        pieces_.each([&](const std::string& id, const QString& name) { piece("variouspieces", id, name, [] {}); });
        xml_.end();
        xml_.end();
        buddies_.each([&](const std::string& id, const QString& name) {
            xml_.begin("buddy", "id", id);
            writePersonal(name);
            xml_.end();
        });
        xml_.end();
    }

    void writeSites() {
        if (clubs_.isEmpty() && sites_.isEmpty()) {
            return;
        }
        xml_.begin("divesite");
        clubs_.each([&](const std::string& id, const QString& name) { piece("divebase", id, name, [] {}); });
        sites_.each(
            [&](const std::string& id, const Site& site) { piece("site", id, site.name, [&] { writeSite(site); }); });
        xml_.end();
    }

    void writeSite(const Site& site) {
        if (!site.environment.isEmpty()) {
            xml_.element("environment", site.environment);
        }
        if (!site.location.isEmpty() || !site.country.isEmpty() || site.position) {
            xml_.begin("geography");
            xml_.element("location", site.location);
            if (!site.country.isEmpty()) {
                xml_.begin("address");
                xml_.element("country", site.country);
                xml_.end();
            }
            if (site.position) {
                xml_.decimal("latitude", site.position->first, 7);
                xml_.decimal("longitude", site.position->second, 7);
            }
            xml_.end();
        }
        if (site.difficulty > 0 || !site.wreck.isEmpty()) {
            xml_.begin("sitedata");
            if (site.difficulty > 0) {
                xml_.integer("difficulty", site.difficulty);
            }
            if (!site.wreck.isEmpty()) {
                xml_.begin("wreck");
                xml_.element("name", site.wreck);
                xml_.end();
            }
            xml_.end();
        }
    }

    /// A boat is the vessel of a trip, which an operator must run.
    void writeBoats() {
        if (boats_.isEmpty()) {
            return;
        }
        xml_.begin("divetrip");
        boats_.each([&](const std::string& id, const QString& name) {
            piece("trip", id, name, [&] {
                xml_.begin("trippart");
                xml_.element("name", name);
                xml_.begin("operator");
                xml_.element("name", std::string_view());
                xml_.end();
                piece("vessel", "vessel-" + id, name, [] {});
                xml_.end();
            });
        });
        xml_.end();
    }

    void writeMixes() {
        if (mixes_.isEmpty()) {
            return;
        }
        xml_.begin("gasdefinitions");
        mixes_.each([&](const std::string& id, const Mix& mix) {
            piece("mix", id, gasName({mix.oxygen, mix.helium, mix.kind}), [&] {
                xml_.decimal("o2", mix.oxygen / 100.0, 2);
                xml_.decimal("n2", (100 - mix.oxygen - mix.helium) / 100.0, 2);
                xml_.decimal("he", mix.helium / 100.0, 2);
            });
        });
        xml_.end();
    }

    void link(const std::string& id) { xml_.element("link", {{"ref", id}}); }

    void writeDive(const Plongee& dive, const Links& links, const std::string& id) {
        xml_.begin("dive", "id", id);
        writeBefore(dive, links);
        for (const UsedTank& tank : links.tanks) {
            xml_.begin("tankdata");
            if (!tank.mix.empty()) {
                link(tank.mix);
            }
            link(tank.piece);
            xml_.element("tankvolume", numberText(tank.volume / 1000.0));
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

    void writeBefore(const Plongee& dive, const Links& links) {
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
            xml_.element("leadquantity", numberText(dive.lestage));
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
    void writeStops(const Plongee& dive, const Links& links) {
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
                                      {"decodepth", std::isfinite(depth) ? numberText(depth) : "0"},
                                      {"duration", numberText(dive.*stop.minutes * 60.0)}});
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

    void writeSamples(const Plongee& dive, const Links& links) {
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
                xml_.element("depth", numberText(depth));
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

    static std::string switchAt(const Plongee& dive, const Links& links, std::size_t sample) {
        const qint32 flag = sample < dive.GAZ_Flag.size() ? dive.GAZ_Flag.integer(sample) : 0;
        if (flag >= 2 && static_cast<std::size_t>(flag - 2) < links.stops.size()) {
            return links.stops[static_cast<std::size_t>(flag - 2)];
        }
        return flag == 1 || sample == 0 ? links.breathed : std::string();
    }

    void writePressure(const Plongee& dive, const Links& links, std::size_t sample) {
        if (dive.PRESS_Data.size() < 2 || sample >= dive.PRESS_Data.size()) {
            return;
        }
        const double bar = dive.PRESS_Data.real(sample);
        if (std::isfinite(bar) && bar >= 0) {
            // To a tenth of a pascal.
            xml_.element("tankpressure", {{"ref", links.tanks.front().piece}},
                         numberText(std::round(bar * pascalPerBar * 10) / 10));
        }
    }

    void writeAfter(const Plongee& dive) {
        xml_.begin("informationafterdive");
        kelvin("lowesttemperature", dive.tempEau);
        xml_.element("greatestdepth", std::isfinite(dive.profondeur) ? numberText(dive.profondeur) : "0");
        if (const double metres = visibilityMetres(dive.visibilite); metres > 0) {
            xml_.element("visibility", numberText(metres));
        }
        if (const QString current = currentWord(dive.courant); !current.isEmpty()) {
            xml_.element("current", current);
        }
        const std::string_view plan = dive.deco == 0 ? "dive-computer" : dive.deco <= 2 ? "table" : "none";
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
    std::vector<Links> links_;
    Shared<Site> sites_{"site"};
    Shared<QString> clubs_{"club"};
    Shared<QString> buddies_{"buddy"};
    Shared<QString> boats_{"boat"};
    Shared<Computer> computers_{"computer"};
    Shared<QString> rebreathers_{"rebreather"};
    Shared<qint32> suits_{"suit"};
    Shared<QString> pieces_{"piece"};
    Shared<TankPiece> tanks_{"tank"};
    Shared<Mix> mixes_{"mix"};
};

}  // namespace

Expected<QByteArray> writeUddf(const RecordList& dives, const UddfHeader& header, const Progress& progress) {
    return Writer(dives, header).write(progress);
}

}  // namespace tavrel
