#include "interchange/standard/udcfreading.h"

#include "dives/divechoices.h"
#include "dives/divecodes.h"
#include "dives/divelimits.h"
#include "dives/divetanks.h"
#include "interchange/standard/filetime.h"
#include "interchange/standard/filevalues.h"
#include "interchange/standard/gasmix.h"
#include "interchange/standard/resampling.h"
#include "interchange/standard/udcfunits.h"
#include "interchange/standard/unread.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <span>
#include <tuple>
#include <utility>

namespace tavrel {

namespace {

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

/// What else a file says of all its dives.
struct File {
    UdcfUnits units;
    bool own;  ///< an export of this program
    QString maker, computer;
};

/// A moment of the samples, seconds, with what an element says there.
using Told = std::pair<double, QString>;

class DiveReader {
public:
    DiveReader(XmlElement dive, const File& file) : dive_(dive), file_(file) {
        found_.dive = unknownDive();
        found_.dive.fabricant = file.maker;
        found_.dive.ordinateur = file.computer;
    }

    FoundDive read() {
        readPlace();
        readStart();
        readNumbers();
        readGases();
        readSamples();
        loseUnread(found_, dive_, {},
                   {"PLACE",
                    "SITE",
                    "DATE",
                    "TIME",
                    "DIVENUMBER",
                    "MAXDEPTH",
                    "DIVETIME",
                    "TEMPERATURE",
                    "WATERTEMPERATURE",
                    "AIRTEMPERATURE",
                    "AIRRTEMPERATURE",
                    "ALTITUDE",
                    "SURFACEINTERVAL",
                    "NOTES",
                    "WEATHER",
                    "CURRENT",
                    "VISIBILITY",
                    "DIVETYPE",
                    "GASES",
                    "DELTAMODE",
                    "SAMPLES"});
        loseRepeated();
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
        bool isDated = false;
        const auto year = part(date, "YEAR");
        if (year) {
            if (const auto day = fileDay(*year, part(date, "MONTH").value_or(0), part(date, "DAY").value_or(0))) {
                setStart(found_.dive, *day, time);
                isDated = true;
            }
        } else if (auto moment = fileTime(wordsOf(date))) {
            moment->settleTime(time);
            setStart(found_.dive, moment->day, moment->time);
            isDated = true;
        }
        if (!isDated) {
            losePart(date);
        }
        if (!isDated || !time.isValid()) {
            losePart(clock);
        }
    }

    /// Names a date or a time that makes no sense; zeros alone stand for none.
    void losePart(XmlElement element) {
        QStringList words;
        for (const TextPiece& piece : textPieces(element)) {
            words.append(piece.text);
        }
        const QString all = words.join(u' ').simplified();
        if (std::any_of(all.begin(), all.end(),
                        [](QChar letter) { return letter.isLetterOrNumber() && letter != u'0'; })) {
            found_.lose(nameOf(element), all);
        }
    }

    /// Names what stands again where one of a name is read, and says something else.
    void loseRepeated() {
        static const std::map<QString, QString> same{
            {QStringLiteral("WATERTEMPERATURE"), QStringLiteral("TEMPERATURE")},
            {QStringLiteral("AIRRTEMPERATURE"), QStringLiteral("AIRTEMPERATURE")}};
        std::map<QString, QString> first;
        for (XmlElement it = dive_.firstElement(); !it.isNull() && !file_.own; it = it.nextElement()) {
            const QString name = nameOf(it).toUpper();
            const auto its = same.find(name);
            const QString words = wordsOf(it);
            if (words.isEmpty() || name == QLatin1String("NOTES") ||
                first.try_emplace(its == same.end() ? name : its->second, words).first->second == words) {
                continue;
            }
            if (it.firstElement().isNull()) {
                loseValue(found_, it, nameOf(it));
            } else {
                found_.lose(nameOf(it), spokenWords(it));
            }
        }
    }

    double metres(double length) const { return file_.units.metres(length); }
    /// Metres; a depth of no sense is none.
    std::optional<double> depthOf(XmlElement element) const {
        const auto depth = numberOf(element);
        return depth && std::abs(metres(*depth)) <= deepestThinkable ? std::optional(metres(*depth)) : std::nullopt;
    }
    std::optional<qint32> temperature(XmlElement element) const {
        const auto degrees = numberOf(element);
        return degrees ? thinkableCelsius(file_.units.celsius(*degrees)) : std::nullopt;
    }
    /// Names an element that was read but not understood.
    void loseUnless(bool understood, XmlElement element) {
        if (!understood && !file_.own) {
            loseValue(found_, element, nameOf(element));
        }
    }

    void readNumbers() {
        Plongee& dive = found_.dive;
        dive.noPlongee = rounded(std::clamp(numberOf(child({"DIVENUMBER"})).value_or(0), 0.0, 1e9));
        loseUnless(dive.noPlongee > 0, child({"DIVENUMBER"}));
        dive.profondeur = static_cast<float>(std::max(0.0, depthOf(child({"MAXDEPTH"})).value_or(0)));
        loseUnless(dive.profondeur > 0, child({"MAXDEPTH"}));
        told_ = file_.units.seconds(std::clamp(numberOf(child({"DIVETIME"})).value_or(0), 0.0, 1e6));
        dive.temps = rounded(told_ / 60);
        loseUnless(told_ > 0, child({"DIVETIME"}));
        const XmlElement waterElement = child({"TEMPERATURE", "WATERTEMPERATURE"});
        const auto water = ofWater(temperature(waterElement));
        dive.tempEau = water.value_or(temperatureNotGiven);
        loseUnless(water.has_value(), waterElement);
        const XmlElement airElement = child({"AIRTEMPERATURE", "AIRRTEMPERATURE"});
        const auto air = temperature(airElement);
        dive.tempAir = air.value_or(temperatureNotGiven);
        loseUnless(air.has_value(), airElement);
        const double altitude = metres(numberOf(child({"ALTITUDE"})).value_or(0));
        dive.altitude = altitude > 0 && altitude <= highestAltitude ? rounded(altitude) : 0;
        loseUnless(dive.altitude > 0, child({"ALTITUDE"}));
        readSurfaceInterval(wordsOf(child({"SURFACEINTERVAL"})));
        QStringList notes;
        for (const XmlElement it : childrenOf(dive_, "NOTES")) {
            notes.append(wordsOf(it));
        }
        notes.removeAll(QString());
        notes.removeDuplicates();
        dive.notes = notes.isEmpty() ? dive.notes : notes.join(u'\n');
        // The handheld tells positions in the form's menus.
        const auto choose = [&](const char* name, std::span<const Choice> menu, qint32& tag) {
            const auto position = numberOf(child({name}));
            const bool isOne = position && *position >= 0 && *position < static_cast<double>(menu.size());
            tag = isOne ? menu[static_cast<std::size_t>(*position)].tag : tag;
            loseUnless(isOne, child({name}));
        };
        choose("WEATHER", choices::weather, dive.meteo);
        choose("CURRENT", choices::current, dive.courant);
        choose("VISIBILITY", choices::visibility, dive.visibilite);
        choose("DIVETYPE", choices::diveKind, dive.typePlongee);
    }

    /// "infinity" for the first dive of a series, minutes, or hours and minutes.
    void readSurfaceInterval(const QString& words) {
        constexpr double shortest = 600;  // seconds; surfacing for less is within one dive
        bool isNumber = false;
        const double told = words.toDouble(&isNumber);
        if (isNumber && told > 0 && told < 1e8) {
            const bool inSeconds = file_.units.inSeconds() && told >= shortest;
            found_.dive.surface = intervalText(rounded(inSeconds ? told / 60 : told));
        } else if (words.contains(u':')) {
            found_.dive.surface = words;
        } else if (!isNumber && !words.isEmpty() && words.compare(u"infinity", Qt::CaseInsensitive) != 0) {
            found_.lose(QStringLiteral("SURFACEINTERVAL"), words);
        }
    }

    void readGases() {
        Plongee& dive = found_.dive;
        std::size_t tanks = 0;
        loseUnread(found_, child({"GASES"}), QStringLiteral("GASES/"), {"MIX"});
        for (const XmlElement mix : childrenOf(child({"GASES"}), "MIX")) {
            const QString name = wordsOf(childOf(mix, {"MIXNAME"}));
            const auto oxygen = numberOf(childOf(mix, {"O2"}));
            const GasMix gas = oxygen && *oxygen > 0 ? gasMix(*oxygen, numberOf(childOf(mix, {"HE"})).value_or(0), name)
                                                     : gasMixNamed(name);
            mixes_.emplace_back(name, gas);
            loseUnread(found_, mix, QStringLiteral("MIX/"), {"MIXNAME", "TANK", "O2", "N2", "HE"});
            auto its = childrenOf(mix, "TANK");
            if (its.empty()) {
                its.emplace_back();
            }
            for (const XmlElement tank : its) {
                const double size = numberOf(childOf(tank, {"TANKVOLUME"})).value_or(0);
                const qint32 volume = rounded(file_.units.litres(size));
                loseUnread(found_, tank, QStringLiteral("TANK/"), {"TANKVOLUME", "PSTART", "PEND"});
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

    double pressure(XmlElement element) {
        loseUnless(numberOf(element).value_or(0) > 0, element);
        return file_.units.bars(std::clamp(numberOf(element).value_or(0), 0.0, 1e9));
    }

    void readSamples() {
        const XmlElement samples = child({"SAMPLES"});
        const double delta = numberOf(childOf(samples, {"DELTA"})).value_or(0);
        std::vector<TimedValue> depths;
        std::vector<Told> raised;
        std::vector<Told> switches;
        double moment = 0;
        bool isFirst = true;
        std::optional<double> told;
        for (XmlElement it = samples.firstElement(); !it.isNull(); it = it.nextElement()) {
            if (isNamed(it, "T")) {
                told = numberOf(it);
            } else if (isNamed(it, "D")) {
                if (!std::exchange(isFirst, false) && !told) {
                    moment += delta > 0 ? delta : 10;
                }
                const double at = told.value_or(moment);
                moment = at >= moment && at < 1e9 ? at : moment;
                told.reset();
                if (const auto depth = depthOf(it)) {
                    depths.push_back({moment, *depth});
                }
            } else if (isNamed(it, "ALARM")) {
                raised.emplace_back(moment, wordsOf(it).toLower());
            } else if (isNamed(it, "SWITCH")) {
                switches.emplace_back(moment, wordsOf(it));
            }
        }
        loseUnread(found_, samples, QStringLiteral("SAMPLES/"), {"DELTA", "T", "D", "ALARM", "SWITCH"});
        if (file_.own && depths.size() >= 2) {
            withoutSurface(depths, raised, delta);
        }
        if (const auto sampled = take(depths)) {
            markAlarms(*sampled, raised);
            markSwitches(*sampled, switches);
        }
    }

    /// Drops the points at the surface that the export puts before and behind a profile.
    static void withoutSurface(std::vector<TimedValue>& depths, std::vector<Told>& raised, double delta) {
        depths.pop_back();
        depths.erase(depths.begin());
        for (TimedValue& it : depths) {
            it.seconds = std::max(0.0, it.seconds - delta);
        }
        for (auto& [moment, kind] : raised) {
            moment -= delta;
        }
    }

    std::optional<Resampled> take(const std::vector<TimedValue>& depths) {
        Plongee& dive = found_.dive;
        double deepest = 0;
        for (const TimedValue& it : depths) {
            deepest = std::max(deepest, it.value);
        }
        if (!(dive.profondeur > 0)) {
            dive.profondeur = static_cast<float>(deepest);
        }
        auto sampled = depths.size() < 2 ? std::nullopt : resample(depths);
        if (!sampled) {
            return sampled;
        }
        // Minutes where seconds were said show by the samples.
        const double last = depths.back().seconds;
        const bool inMinutes = file_.units.inSeconds() && last > 20 * told_ && std::abs(60 * told_ - last) < 300;
        if (dive.temps == 0 || inMinutes) {
            dive.temps = rounded(last / 60);
        }
        dive.samplingRate = sampled->code;
        dive.profilProfondeur = Series::ofReals(sampled->depths);
        return sampled;
    }

    void setFlags(Series ProfileSeries::*series, const std::vector<std::int8_t>& flags) {
        found_.dive.*series = Series::empty();
        (found_.dive.*series).append(std::span<const std::int8_t>(flags));
    }

    void markAlarms(const Resampled& sampled, const std::vector<Told>& raised) {
        for (const auto& [name, series] : alarms) {
            std::vector<std::int8_t> flags(sampled.depths.size(), 0);
            for (const auto& [moment, kind] : raised) {
                if (kind == QLatin1String(name)) {
                    flags[sampled.sampleAt(moment)] = 1;
                }
            }
            setFlags(series, flags);
        }
        for (const auto& [moment, kind] : raised) {
            const bool isKnown = std::any_of(alarms.begin(), alarms.end(), [&, words = kind](const auto& it) {
                return words == QLatin1String(it.first);
            });
            if (!isKnown && !kind.isEmpty()) {
                found_.lose(QStringLiteral("ALARM ") + kind.left(40));
            }
        }
    }

    /// A gas by its name or its number, counted from 1.
    std::optional<std::size_t> mixMeantBy(const QString& words) const {
        const auto named = std::find_if(mixes_.begin(), mixes_.end(), [&](const auto& it) {
            return it.first.compare(words, Qt::CaseInsensitive) == 0;
        });
        const std::size_t place =
            named != mixes_.end() ? static_cast<std::size_t>(named - mixes_.begin()) : words.toULongLong() - 1;
        return place < mixes_.size() ? std::optional(place) : std::nullopt;
    }

    /// 1 where the dive goes back to its first gas, from 2 on to those of the stops, which take the others in the order
    /// of their use.
    void markSwitches(const Resampled& sampled, const std::vector<Told>& switches) {
        std::vector<std::int8_t> flags(sampled.depths.size(), 0);
        std::vector<std::size_t> levels;
        for (const auto& [moment, words] : switches) {
            const auto mix = mixMeantBy(words);
            const std::size_t sample = sampled.sampleAt(moment);
            if (mix == 0U) {
                // The gas that the dive begins with is no switch.
                flags[sample] = sample == 0 ? 0 : 1;
                continue;
            }
            if (mix && std::find(levels.begin(), levels.end(), *mix) == levels.end() &&
                levels.size() < stopFields.size()) {
                const auto& [oxygen, helium] = stopFields[levels.size()].gas;
                found_.dive.*oxygen = mixes_[*mix].second.oxygen;
                found_.dive.*helium = mixes_[*mix].second.helium;
                levels.push_back(*mix);
            }
            const auto level = mix ? std::find(levels.begin(), levels.end(), *mix) : levels.end();
            if (level != levels.end()) {
                flags[sample] = static_cast<std::int8_t>(level - levels.begin() + 2);
            } else if (!mixes_.empty()) {
                found_.lose(QStringLiteral("SAMPLES/SWITCH"));
            }
        }
        setFlags(&ProfileSeries::GAZ_Flag, flags);
    }

    XmlElement dive_;
    const File& file_;
    FoundDive found_;
    double told_ = 0;  // how long the file says that the dive was, seconds
    std::vector<std::pair<QString, GasMix>> mixes_;
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
    // This program's exports name it as the maker, in either vocabulary.
    const bool own = wordsOf(childOf(childOf(root, {"DEVICE"}), {"VENDOR"})).startsWith(QLatin1String("Tavrel")) ||
                     wordsOf(childOf(childOf(root, {"generator"}), {"name"})).startsWith(QLatin1String("Tavrel"));
    const XmlElement device = childOf(root, {"DEVICE"});
    const File file{UdcfUnits(wordsOf(childOf(root, {"UNITS"})), own), own,
                    own ? QString() : wordsOf(childOf(device, {"VENDOR"})),
                    own ? QString() : wordsOf(childOf(device, {"MODEL"}))};
    FoundDives found;
    found.asStored = own;
    if (dives.size() > mostDives) {
        found.tooMany = true;
        return found;
    }
    for (const XmlElement dive : dives) {
        if (progress && !progress(found.dives.size(), dives.size())) {
            break;
        }
        found.dives.push_back(DiveReader(dive, file).read());
    }
    return found;
}

}  // namespace tavrel
