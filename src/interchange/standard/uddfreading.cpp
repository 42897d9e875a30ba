#include "interchange/standard/uddfreading.h"

#include "dives/divelimits.h"
#include "interchange/standard/filetime.h"
#include "interchange/standard/filevalues.h"
#include "interchange/standard/uddfdocument.h"
#include "interchange/standard/uddfpieces.h"
#include "interchange/standard/uddfprofile.h"
#include "interchange/standard/uddfstart.h"
#include "interchange/standard/uddftanks.h"
#include "interchange/standard/uddfwords.h"
#include "interchange/standard/unread.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <map>

namespace tavrel {

namespace {

/// One dive, read part by part.
class DiveReader {
public:
    DiveReader(const UddfDocument& document, XmlElement dive, const std::function<bool()>& goesOn)
        : document_(document), dive_(dive), goesOn_(goesOn) {
        found_.dive = unknownDive();
        for (const char* name : {"informationbeforedive", "informationafterdive", "diveinformation"}) {
            for (const XmlElement part : dive.children(name)) {
                parts_.push_back(part);
            }
        }
        parts_.push_back(dive);
    }

    FoundDive read() {
        UddfProfile profile = readUddfProfile(dive_, secondsOf(element("diveduration")).value_or(0), found_, goesOn_);
        readStart();
        readNumbers(profile);
        readSurfaceInterval();
        readWords();
        readApparatus(profile);
        readLinks();
        const std::optional<Resampled> samples = readSamples(profile);
        if (!samples) {
            loseValue(found_, element("averagedepth"), QStringLiteral("averagedepth"));
        }
        giveUddfTanks(document_, parts_, profile, pieces_.equipment(), samples, found_);
        nameLost();
        return std::move(found_);
    }

private:
    /// The first element of the name in any part of the dive that has text, attributes or children.
    XmlElement element(const char* name) const {
        for (const XmlElement part : parts_) {
            for (const XmlElement it : part.children(name)) {
                if (!it.firstElement().isNull() || it.hasAttributes() || !wordsOf(it).isEmpty()) {
                    return it;
                }
            }
        }
        return {};
    }
    std::optional<double> number(const char* name) const { return numberOf(element(name)); }

    /// Names an element that was read but not understood.
    void loseUnless(bool understood, const char* name) {
        if (!understood) {
            loseValue(found_, element(name), QLatin1String(name));
        }
    }

    void readStart() {
        const auto start = uddfStart(parts_);
        if (start) {
            setStart(found_.dive, start->day, start->time);
            loseUnless(start->time.isValid(), "time");
        } else if (!wordsOf(element("datetime")).startsWith(QLatin1String("0001-01-01"))) {
            loseUnless(false, "datetime");
            loseUnless(false, "date");
        }
    }

    void readNumbers(const UddfProfile& profile) {
        Plongee& dive = found_.dive;
        dive.noPlongee = rounded(std::clamp(number("divenumber").value_or(0), 0.0, 1e9));
        loseUnless(dive.noPlongee > 0, "divenumber");
        const double depth = greatestDepth(profile);
        dive.profondeur = static_cast<float>(depth);
        loseUnless(depth == number("greatestdepth"), "greatestdepth");
        dive.temps = minutes(profile);
        const auto coldest = waterCelsius(number("lowesttemperature"));
        dive.tempEau = (coldest ? coldest : waterCelsius(profile.lowestTemperature)).value_or(temperatureNotGiven);
        loseUnless(coldest || isZeroFahrenheit(number("lowesttemperature")), "lowesttemperature");
        const auto air = celsius(number("airtemperature"));
        dive.tempAir = air.value_or(temperatureNotGiven);
        loseUnless(air.has_value(), "airtemperature");
        dive.altitude = altitude();
        loseUnless(dive.altitude > 0, "altitude");
        readWeight();
    }

    /// The first weight that makes sense, those of the dive itself before those among its equipment.
    void readWeight() {
        std::vector<XmlElement> leads;
        const auto add = [&](XmlElement holder) {
            for (const XmlElement lead : holder.children("leadquantity")) {
                leads.push_back(lead);
            }
        };
        std::for_each(parts_.begin(), parts_.end(), add);
        for (const XmlElement part : parts_) {
            for (const XmlElement used : part.children("equipmentused")) {
                add(used);
            }
        }
        const auto makesSense = [](XmlElement lead) {
            const double kilograms = numberOf(lead).value_or(0);
            return kilograms > 0 && kilograms < 1000;
        };
        const auto chosen = std::find_if(leads.begin(), leads.end(), makesSense);
        found_.dive.lestage = chosen == leads.end() ? 0.0F : static_cast<float>(*numberOf(*chosen));
        for (const XmlElement lead : leads) {
            if (chosen == leads.end() || wordsOf(lead) != wordsOf(*chosen)) {
                loseValue(found_, lead, QStringLiteral("leadquantity"));
            }
        }
    }

    /// Computers that count in Fahrenheit have it for a temperature that they did not measure.
    static bool isZeroFahrenheit(std::optional<double> kelvin) { return kelvin && std::abs(*kelvin - 255.37) < 0.1; }

    /// What the dive says, unless it makes no sense or the waypoints show that it cannot be; then what these show.
    double greatestDepth(const UddfProfile& profile) const {
        constexpr double share = 0.95, apart = 0.5;  // of the depth, that the water's density makes; metres
        const double told = number("greatestdepth").value_or(0);
        const double shown = profile.deepest();
        if (!(told > 0 && told < deepestThinkable)) {
            return shown;
        }
        const bool areShown = shown > 0 && shown <= implausibleDepth && !document_.isOwn();
        return areShown && (told > implausibleDepth || told < share * shown - apart) ? shown : told;
    }

    /// Seconds as whole minutes; a duration that only makes sense as minutes is taken for them, and one beyond a day
    /// gives way to the last waypoint.
    qint32 minutes(const UddfProfile& profile) {
        constexpr double day = 86'400;
        const double last = profile.lastMoment;
        double seconds = secondsOf(element("diveduration")).value_or(0);
        if (!(seconds > 0)) {
            loseUnless(false, "diveduration");
            seconds = last;
        } else if (last > 20 * seconds && std::abs(seconds * 60 - last) < 300) {
            seconds *= 60;
        } else if (seconds > day && !document_.isOwn() && (last > 0 || seconds > double{mostSamples})) {
            loseUnless(std::abs(seconds - last) < 60, "diveduration");
            seconds = last;
        }
        return rounded(std::min(seconds, 1e9) / 60);
    }

    qint32 altitude() const {
        constexpr double seaLevel = 101'325;       // pascal
        constexpr double highestWeather = 95'000;  // pascal; below, it is the height that counts
        if (const auto metres = number("altitude")) {
            return *metres > 0 && *metres <= highestAltitude ? rounded(*metres) : 0;
        }
        const double pressure = number("surfacepressure").value_or(0);
        if (pressure < 60'000 || pressure >= highestWeather) {
            return 0;
        }
        // The international standard atmosphere, to ten metres.
        return 10 * rounded(4433 * (1 - std::pow(pressure / seaLevel, 0.1903)));
    }

    void readSurfaceInterval() {
        XmlElement interval = element("surfaceintervalbeforedive");
        interval = interval.isNull() ? element("surfaceinterval") : interval;
        const bool isPlain = interval.firstElement().isNull();
        const auto seconds = isPlain ? onlyNumberOf(interval) : numberOf(interval.first("passedtime"));
        if (seconds && *seconds > 0 && *seconds < 1e9) {
            found_.dive.surface = intervalText(rounded(*seconds / 60));
        } else {
            if (isPlain && wordsOf(interval) != QLatin1String("infinity")) {
                loseValue(found_, interval, QStringLiteral("surfaceinterval"));
            }
            loseValue(found_, interval.first("passedtime"), QStringLiteral("surfaceinterval/passedtime"));
        }
        if (!isPlain) {
            loseUnread(found_, interval, QStringLiteral("surfaceinterval/"), {"passedtime", "infinity"});
        }
    }

    void readWords() {
        Plongee& dive = found_.dive;
        QStringList notes;
        for (const XmlElement part : parts_) {
            for (const XmlElement it : part.children("notes")) {
                notes.append(notesOf(it));
            }
        }
        notes.removeAll(QString());
        notes.removeDuplicates();
        dive.notes = notes.isEmpty() ? QStringLiteral("") : notes.join(u'\n');
        if (const auto metres = number("visibility"); metres && *metres > 0) {
            dive.visibilite = visibilityRating(*metres);
        } else {
            loseUnless(false, "visibility");
        }
        const auto current = currentOf(wordsOf(element("current")));
        dive.courant = current.value_or(dive.courant);
        loseUnless(current.has_value(), "current");
        const QString purpose = wordsOf(element("purpose"));
        dive.typePlongee = purposeOf(purpose).value_or(dive.typePlongee);
        loseUnless(dive.typePlongee != DiveKind::other || purpose == QLatin1String("other"), "purpose");
        const QString plan = wordsOf(element("diveplan"));
        dive.deco = plan == QLatin1String("table") ? DecoMethod::airTables : DecoMethod::computer;
        loseUnless(dive.deco == DecoMethod::airTables || plan == QLatin1String("dive-computer") ||
                       plan == QLatin1String("none"),
                   "diveplan");
        const XmlElement rating = element("rating");
        dive.inoubliable = ratingOf(numberOf(rating.first("ratingvalue")).value_or(numberOf(rating).value_or(0)));
        loseUnless(dive.inoubliable != Rating::none, "rating");
        for (const XmlElement part : parts_) {
            if (!part.first("nosuit").isNull()) {
                dive.combinaison = Suit::none;
            }
        }
    }

    void readApparatus(const UddfProfile& profile) {
        Plongee& dive = found_.dive;
        const QString apparatus = wordsOf(element("apparatus"));
        const XmlElement modeElement = element("divemode");
        const QString mode = wordsOf(modeElement) + QString::fromStdString(std::string(modeElement.attribute("type")));
        const QString words = apparatus + u' ' + QString::fromStdString(profile.mode()) + u' ' + mode;
        const auto says = [&](const char* word) { return words.contains(QLatin1String(word), Qt::CaseInsensitive); };
        if (says("semiclosed")) {
            dive.rebreather = Apparatus::semiClosed;
        } else if (says("closedcircuit") || (says("rebreather") && profile.mode() != "opencircuit")) {
            dive.rebreather = Apparatus::electronicClosed;
        }
        loseUnless(isCircuit(apparatus), "apparatus");
        if (!mode.isEmpty() && !isCircuit(mode)) {
            found_.lose(QStringLiteral("divemode"), mode);
        }
        // Some computers write a set point of the gas in use for an open circuit, too.
        const bool isOpen = dive.rebreather == Apparatus::openCircuit && profile.mode() == "opencircuit";
        if (profile.setPoints.empty() || isOpen) {
            return;
        }
        const auto [low, high] = std::minmax_element(profile.setPoints.begin(), profile.setPoints.end());
        dive.ppO2 = setPointTag(*high);
        dive.lowSetpoint = *low < *high ? setPointTag(*low) : 0;
        const bool areAllHeld = std::all_of(profile.setPoints.begin(), profile.setPoints.end(), [&](double point) {
            const qint32 tag = setPointTag(point);
            return tag != 0 && (tag == dive.ppO2 || tag == dive.lowSetpoint);
        });
        if (!areAllHeld) {
            found_.lose(QStringLiteral("waypoint/setpo2"));
        }
        if (dive.rebreather == Apparatus::openCircuit) {
            dive.rebreather = Apparatus::electronicClosed;
        }
    }

    std::optional<Resampled> readSamples(const UddfProfile& profile) {
        std::optional<Resampled> samples = profile.depths.size() < 2 ? std::nullopt : resample(profile.depths);
        if (!samples) {
            if (!profile.depths.empty()) {
                found_.lose(QStringLiteral("samples"));
            }
            return samples;
        }
        Plongee& dive = found_.dive;
        dive.samplingRate = samples->code;
        dive.profilProfondeur = Series::ofReals(samples->depths);
        using Alarm = UddfProfile::Alarm;
        static constexpr std::array<std::pair<Alarm, Series ProfileSeries::*>, 4> flagsOf{{
            {Alarm::ascent, &ProfileSeries::ASC_Flag},
            {Alarm::slow, &ProfileSeries::SLOW_Flag},
            {Alarm::surface, &ProfileSeries::SURF_Flag},
            {Alarm::ceiling, &ProfileSeries::CEIL_Flag},
        }};
        for (const auto& [kind, series] : flagsOf) {
            std::vector<std::int8_t> flags(samples->depths.size(), 0);
            for (const auto& [moment, alarm] : profile.alarms) {
                if (alarm == kind) {
                    flags[samples->sampleAt(moment)] = 1;
                }
            }
            dive.*series = Series::empty();
            (dive.*series).append(std::span<const std::int8_t>(flags));
        }
        dive.GAZ_Flag = dive.ASC_Flag;
        return samples;
    }

    void readLinks() {
        for (const XmlElement part : parts_) {
            for (const XmlElement link : part.children("link")) {
                pieces_.follow(uddfReference(link));
            }
            for (const XmlElement used : part.children("equipmentused")) {
                for (const XmlElement link : used.children("link")) {
                    pieces_.follow(uddfReference(link));
                }
                loseUnread(found_, used, QStringLiteral("equipmentused/"), {"link", "leadquantity"});
            }
            pieces_.follow(uddfReference(part.first("tripmembership")));
        }
        pieces_.finish();
    }

    /// Names the elements of the dive's parts that nothing above has read, and what stands twice where one is read.
    void nameLost() {
        enum class Read { all, one };
        static const std::map<std::string_view, Read> read{
            {"informationbeforedive", Read::all},
            {"informationafterdive", Read::all},
            {"diveinformation", Read::all},
            {"samples", Read::all},
            {"tankdata", Read::all},
            {"link", Read::all},
            {"equipmentused", Read::all},
            {"notes", Read::all},
            {"nosuit", Read::all},
            {"divenumber", Read::one},
            {"datetime", Read::one},
            {"date", Read::one},
            {"time", Read::one},
            {"airtemperature", Read::one},
            {"surfaceintervalbeforedive", Read::one},
            {"surfaceinterval", Read::one},
            {"altitude", Read::one},
            {"apparatus", Read::one},
            {"purpose", Read::one},
            {"plannedprofile", Read::one},
            {"tripmembership", Read::one},
            {"lowesttemperature", Read::one},
            {"greatestdepth", Read::one},
            {"diveduration", Read::one},
            {"visibility", Read::one},
            {"current", Read::one},
            {"diveplan", Read::one},
            {"rating", Read::one},
            {"averagedepth", Read::one},
            {"divemode", Read::one},
            {"leadquantity", Read::all},
        };
        std::map<std::string_view, std::string> first;
        LostNames lost;
        for (const XmlElement part : parts_) {
            for (XmlElement it = part.firstElement(); !it.isNull(); it = it.nextElement()) {
                const std::string_view name = it.name();
                const auto how = read.find(name);
                if (how == read.end()) {
                    if (!wordsOf(it).isEmpty() || !it.firstElement().isNull() || it.hasAttributes()) {
                        lost.add(name, it);
                    }
                } else if (how->second == Read::one) {
                    const std::string its = uddfReference(it);
                    if (!its.empty() && first.emplace(name, its).first->second != its) {
                        found_.lose(nameOf(it), wordsOf(it).simplified());
                    }
                }
            }
        }
        lost.tell(found_, {});
    }

    const UddfDocument& document_;
    XmlElement dive_;
    const std::function<bool()>& goesOn_;
    std::vector<XmlElement> parts_;
    FoundDive found_;
    UddfPieces pieces_{document_, found_};
};

/// All dives in their order, whether they stand in the groups of the data, in these or wherever else in the root.
void collectDives(XmlElement holder, std::vector<XmlElement>& dives) {
    for (XmlElement part = holder.firstElement(); !part.isNull(); part = part.nextElement()) {
        if (part.name() == "dive") {
            dives.push_back(part);
        } else if (part.name() == "profiledata") {
            collectDives(part, dives);
        } else {
            for (const XmlElement dive : part.children("dive")) {
                dives.push_back(dive);
            }
        }
    }
}

}  // namespace

FoundDives readUddf(XmlElement root, const Progress& progress) {
    const UddfDocument document(root);
    std::vector<XmlElement> dives;
    collectDives(root, dives);
    FoundDives found;
    SharedTexts texts;  // of what many dives refer to
    if (dives.size() > mostDives) {
        found.tooMany = true;
        return found;
    }
    found.dives.reserve(dives.size());
    const std::function<bool()> goesOn = [&] { return !progress || progress(found.dives.size(), dives.size()); };
    for (const XmlElement dive : dives) {
        if (!goesOn()) {
            break;
        }
        texts.share(found.dives.emplace_back(DiveReader(document, dive, goesOn).read()));
        if (dive.parent().name() != "repetitiongroup") {
            found.dives.back().doubts.push_back(Doubt::groupSkipped);
        }
    }
    for (const char* name : {"mediadata", "business", "tablegeneration", "divecomputercontrol", "decomodel"}) {
        if (const XmlElement part = root.first(name); !part.firstElement().isNull()) {
            found.lostWithFile.append(QString::fromLatin1(name));
        }
    }
    return found;
}

}  // namespace tavrel
