#include "interchange/standard/udcfreading.h"

#include "dives/divecodes.h"
#include "dives/divelimits.h"
#include "interchange/standard/filetime.h"
#include "interchange/standard/filevalues.h"
#include "interchange/standard/gasmix.h"
#include "interchange/standard/resampling.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <tuple>

namespace tavrel {

namespace {

constexpr double feet = 0.3048;
constexpr double bar = 0.0689476;  // of a pound per square inch

/// How the alarms of these files are called, in the order of the export's own.
constexpr std::array<std::pair<const char*, Series ProfileSeries::*>, 4> alarms{{
    {"deco", &ProfileSeries::ASC_Flag},
    {"ascent", &ProfileSeries::SLOW_Flag},
    {"surface", &ProfileSeries::SURF_Flag},
    {"error", &ProfileSeries::CEIL_Flag},
}};

std::vector<XmlElement> childrenOf(XmlElement parent, std::string_view name) {
    std::vector<XmlElement> children;
    for (XmlElement it = parent.firstElement(); !it.isNull(); it = it.nextElement()) {
        if (isNamed(it, name)) {
            children.push_back(it);
        }
    }
    return children;
}

class DiveReader {
public:
    DiveReader(XmlElement dive, bool imperial, bool own) : dive_(dive), imperial_(imperial), own_(own) {
        found_.dive = unknownDive();
    }

    FoundDive read() {
        readPlace();
        readStart();
        readNumbers();
        readGases();
        readSamples();
        return std::move(found_);
    }

private:
    XmlElement child(std::initializer_list<std::string_view> names) const { return childOf(dive_, names); }

    void readPlace() {
        const QString place = wordsOf(child({"PLACE"}));
        const QString site = wordsOf(child({"SITE"}));
        // The export writes both as one text.
        const qsizetype dash = site.isEmpty() ? place.indexOf(QLatin1String(" - ")) : -1;
        found_.dive.lieu = dash < 0 ? place : place.left(dash);
        found_.dive.site = dash < 0 ? site : place.mid(dash + 3);
        if (dash < 0 && place.startsWith(QLatin1String("- ")) && site.isEmpty()) {
            found_.dive.lieu = QString();
            found_.dive.site = place.mid(2);
        }
        if (place.endsWith(QLatin1String(" -")) && dash < 0) {
            found_.dive.lieu = place.chopped(2);
        } else if (place == QLatin1String("-")) {
            found_.dive.lieu = QString();
        }
    }

    static std::optional<int> part(XmlElement element, std::string_view name) {
        const auto value = numberOf(childOf(element, {name}));
        return value && *value >= 0 && *value < 10'000 ? std::optional(static_cast<int>(*value)) : std::nullopt;
    }

    void readStart() {
        const XmlElement date = child({"DATE"});
        const XmlElement clock = child({"TIME"});
        QTime time = fileClock(wordsOf(clock));
        if (const auto hour = part(clock, "HOUR")) {
            time = QTime(*hour, part(clock, "MINUTE").value_or(0), part(clock, "SECOND").value_or(0));
        }
        const auto year = part(date, "YEAR");
        if (year) {
            if (const auto day = fileDay(*year, part(date, "MONTH").value_or(0), part(date, "DAY").value_or(0))) {
                setStart(found_.dive, *day, time);
            }
        } else if (const auto moment = fileTime(wordsOf(date))) {
            setStart(found_.dive, moment->day, moment->time.isValid() ? moment->time : time);
        }
    }

    /// A depth of no sense is none.
    double metres(double depth) const {
        return std::abs(depth) > deepestThinkable ? 0 : imperial_ ? depth * feet : depth;
    }
    static std::optional<qint32> temperature(XmlElement element) { return thinkableCelsius(numberOf(element)); }

    void readNumbers() {
        Plongee& dive = found_.dive;
        dive.noPlongee = rounded(std::clamp(numberOf(child({"DIVENUMBER"})).value_or(0), 0.0, 1e9));
        dive.profondeur = static_cast<float>(metres(std::max(0.0, numberOf(child({"MAXDEPTH"})).value_or(0))));
        dive.temps = rounded(std::clamp(numberOf(child({"DIVETIME"})).value_or(0), 0.0, 1e6));
        dive.tempEau = ofWater(temperature(child({"TEMPERATURE", "WATERTEMPERATURE"}))).value_or(temperatureNotGiven);
        dive.tempAir = temperature(child({"AIRTEMPERATURE", "AIRRTEMPERATURE"})).value_or(temperatureNotGiven);
        const double altitude = metres(numberOf(child({"ALTITUDE"})).value_or(0));
        dive.altitude = altitude > 0 && altitude <= highestAltitude ? rounded(altitude) : 0;
        const QString interval = wordsOf(child({"SURFACEINTERVAL"}));
        if (!interval.isEmpty() && interval.compare(QLatin1String("infinity"), Qt::CaseInsensitive) != 0) {
            dive.surface = interval;
        }
        if (const QString notes = wordsOf(child({"NOTES"})); !notes.isEmpty()) {
            dive.notes = notes;
        }
        // The handheld's menus count positions, the best sight first.
        const auto position = [&](const char* name, qint32& tag, qint32 last) {
            const auto value = numberOf(child({name}));
            if (value && *value >= 0 && *value <= last) {
                tag = rounded(*value);
            }
        };
        position("WEATHER", dive.meteo, 7);
        position("CURRENT", dive.courant, 6);
        qint32 sight = -1;
        position("VISIBILITY", sight, 8);
        dive.visibilite = sight < 0 ? dive.visibilite : sight == 0 ? 8 : sight - 1;
    }

    void readGases() {
        Plongee& dive = found_.dive;
        std::size_t tanks = 0;
        for (const XmlElement mix : childrenOf(child({"GASES"}), "MIX")) {
            const QString name = wordsOf(childOf(mix, {"MIXNAME"}));
            const auto oxygen = numberOf(childOf(mix, {"O2"}));
            const GasMix gas = oxygen && *oxygen > 0 ? gasMix(*oxygen, numberOf(childOf(mix, {"HE"})).value_or(0), name)
                                                     : gasMixNamed(name);
            auto its = childrenOf(mix, "TANK");
            if (its.empty()) {
                its.emplace_back();
            }
            for (const XmlElement tank : its) {
                const qint32 volume = rounded(numberOf(childOf(tank, {"TANKVOLUME"})).value_or(0));
                const qint32 start = rounded(pressure(childOf(tank, {"PSTART"})));
                const qint32 end = rounded(pressure(childOf(tank, {"PEND"})));
                if (tanks == 0) {
                    std::tie(dive.volumeBloc, dive.pressionDepart, dive.pressionFin) = std::tie(volume, start, end);
                    std::tie(dive.gaz, dive.o2Mix, dive.heMix) = std::tie(gas.kind, gas.oxygen, gas.helium);
                } else if (tanks == 1) {
                    std::tie(dive.volumeBloc_2, dive.pressionDepart_2, dive.pressionFin_2) =
                        std::tie(volume, start, end);
                    std::tie(dive.gaz_2, dive.o2Mix_2, dive.heMix_2) = std::tie(gas.kind, gas.oxygen, gas.helium);
                } else {
                    found_.lose(QStringLiteral("TANK"));
                }
                ++tanks;
            }
        }
    }

    double pressure(XmlElement element) const {
        const double value = std::clamp(numberOf(element).value_or(0), 0.0, 1e6);
        return imperial_ ? value * bar : value;
    }

    void readSamples() {
        const XmlElement samples = child({"SAMPLES"});
        const double delta = numberOf(childOf(samples, {"DELTA"})).value_or(0);
        std::vector<TimedValue> depths;
        std::vector<std::pair<double, QString>> raised;
        double moment = 0;
        std::optional<double> told;
        for (XmlElement it = samples.firstElement(); !it.isNull(); it = it.nextElement()) {
            if (isNamed(it, "T")) {
                told = numberOf(it);
            } else if (isNamed(it, "D")) {
                if (!depths.empty() && !told) {
                    moment += delta > 0 ? delta : 10;
                }
                moment = told && *told >= moment && *told < 1e9 ? *told : moment;
                told.reset();
                depths.push_back({moment, metres(numberOf(it).value_or(0))});
            } else if (isNamed(it, "ALARM")) {
                raised.emplace_back(moment, wordsOf(it).toLower());
            } else if (isNamed(it, "TEMPERATURE")) {
                found_.lose(QStringLiteral("SAMPLES/TEMPERATURE"));
            }
        }
        if (own_ && depths.size() >= 2) {
            withoutSurface(depths, raised, delta);
        }
        take(depths, raised);
    }

    /// Drops the points at the surface that the export puts before and behind a profile.
    static void withoutSurface(std::vector<TimedValue>& depths, std::vector<std::pair<double, QString>>& raised,
                               double delta) {
        depths.pop_back();
        depths.erase(depths.begin());
        for (TimedValue& it : depths) {
            it.seconds -= delta;
        }
        for (auto& [moment, kind] : raised) {
            moment -= delta;
        }
    }

    void take(const std::vector<TimedValue>& depths, const std::vector<std::pair<double, QString>>& raised) {
        Plongee& dive = found_.dive;
        double deepest = 0;
        for (const TimedValue& it : depths) {
            deepest = std::max(deepest, it.value);
        }
        if (!(dive.profondeur > 0)) {
            dive.profondeur = static_cast<float>(deepest);
        }
        const auto sampled = depths.size() < 2 ? std::nullopt : resample(depths);
        if (!sampled) {
            return;
        }
        if (dive.temps == 0) {
            dive.temps = rounded(depths.back().seconds / 60);
        }
        dive.samplingRate = sampled->code;
        dive.profilProfondeur = Series::ofReals(sampled->depths);
        const std::vector<std::int8_t> none(sampled->depths.size(), 0);
        dive.GAZ_Flag = Series::empty();
        dive.GAZ_Flag.append(std::span<const std::int8_t>(none));
        for (const auto& [name, series] : alarms) {
            std::vector<std::int8_t> flags = none;
            for (const auto& [moment, kind] : raised) {
                if (kind == QLatin1String(name)) {
                    flags[sampled->sampleAt(moment)] = 1;
                }
            }
            dive.*series = Series::empty();
            (dive.*series).append(std::span<const std::int8_t>(flags));
        }
    }

    XmlElement dive_;
    bool imperial_;
    bool own_;  ///< an export of this program
    FoundDive found_;
};

}  // namespace

bool isUdcf(XmlElement root) {
    return !childOf(root, {"REPGROUP"}).isNull() || root.name() == "PROFILE";
}

FoundDives readUdcf(XmlElement root, const Progress& progress) {
    std::vector<XmlElement> dives;
    for (const XmlElement group : childrenOf(root, "REPGROUP")) {
        const auto its = childrenOf(group, "DIVE");
        dives.insert(dives.end(), its.begin(), its.end());
    }
    const bool imperial =
        wordsOf(childOf(root, {"UNITS"})).compare(QLatin1String("IMPERIAL"), Qt::CaseInsensitive) == 0;
    // This program's exports name it as the maker, in either vocabulary.
    const bool own = wordsOf(childOf(childOf(root, {"DEVICE"}), {"VENDOR"})).startsWith(QLatin1String("Tavrel")) ||
                     wordsOf(childOf(childOf(root, {"generator"}), {"name"})).startsWith(QLatin1String("Tavrel"));
    FoundDives found;
    if (dives.size() > mostDives) {
        found.tooMany = true;
        return found;
    }
    for (const XmlElement dive : dives) {
        if (progress && !progress(found.dives.size(), dives.size())) {
            break;
        }
        found.dives.push_back(DiveReader(dive, imperial, own).read());
    }
    return found;
}

}  // namespace tavrel
