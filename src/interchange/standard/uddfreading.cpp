#include "interchange/standard/uddfreading.h"

#include "calculators/position.h"
#include "dives/divelimits.h"
#include "dives/divetanks.h"
#include "interchange/standard/filetime.h"
#include "interchange/standard/filevalues.h"
#include "interchange/standard/uddfdocument.h"
#include "interchange/standard/uddfprofile.h"
#include "interchange/standard/uddfstart.h"
#include "interchange/standard/uddftanks.h"
#include "interchange/standard/uddfwords.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <set>

namespace tavrel {

namespace {

/// The texts of notes: paragraphs in newer files, texts in older ones, or the element's own.
QString notesOf(XmlElement notes) {
    QStringList paragraphs;
    bool inParts = false;
    for (XmlElement it = notes.firstElement(); !it.isNull(); it = it.nextElement()) {
        if (it.name() == "para" || it.name() == "text") {
            paragraphs.append(it.text());
            inParts = true;
        }
    }
    return inParts ? paragraphs.join(u'\n') : wordsOf(notes);
}

QString withoutRepeats(QStringList words) {
    words.removeAll(QString());
    words.removeDuplicates();
    // None are an empty text, as in a cleared form, and not the lack of one.
    return words.isEmpty() ? QStringLiteral("") : words.join(QStringLiteral(", "));
}

QString personName(XmlElement person) {
    const XmlElement personal = person.first("personal");
    const XmlElement holder = personal.isNull() ? person : personal;
    QStringList parts;
    for (const char* part : {"firstname", "middlename", "lastname"}) {
        if (const QString words = wordsOf(holder.first(part)); !words.isEmpty()) {
            parts.append(words);
        }
    }
    return parts.isEmpty() ? wordsOf(person.first("name")) : parts.join(u' ');
}

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
        const UddfProfile profile = readUddfProfile(dive_, found_, goesOn_);
        readStart();
        readNumbers(profile);
        readSurfaceInterval();
        readWords();
        readApparatus(profile);
        for (const XmlElement part : parts_) {
            for (const XmlElement link : part.children("link")) {
                follow(uddfReference(link));
            }
            for (const XmlElement used : part.children("equipmentused")) {
                for (const XmlElement link : used.children("link")) {
                    follow(uddfReference(link));
                }
            }
            follow(part.first("tripmembership"));
        }
        finishWords();
        std::optional<Resampled> samples = readSamples(profile);
        giveUddfTanks(document_, parts_, profile, namedMix_, samples, found_);
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

    void readStart() {
        if (const auto start = uddfStart(parts_)) {
            setStart(found_.dive, start->day, start->time);
        }
    }

    void readNumbers(const UddfProfile& profile) {
        Plongee& dive = found_.dive;
        dive.noPlongee = rounded(std::clamp(number("divenumber").value_or(0), 0.0, 1e9));
        const double depth = greatestDepth();
        dive.profondeur = static_cast<float>(depth > 0 ? depth : profile.deepest());
        dive.temps = minutes(profile);
        const auto coldest = waterCelsius(number("lowesttemperature"));
        dive.tempEau = (coldest ? coldest : waterCelsius(profile.lowestTemperature)).value_or(temperatureNotGiven);
        dive.tempAir = celsius(number("airtemperature")).value_or(temperatureNotGiven);
        dive.altitude = altitude();
        const double lead =
            number("leadquantity").value_or(numberOf(element("equipmentused").first("leadquantity")).value_or(0));
        dive.lestage = static_cast<float>(lead > 0 && lead < 1000 ? lead : 0);
    }

    /// A depth of no sense is none.
    double greatestDepth() const {
        const double depth = number("greatestdepth").value_or(0);
        return depth < deepestThinkable ? depth : 0;
    }

    /// Seconds as whole minutes; a duration that only makes sense as minutes is taken for them.
    qint32 minutes(const UddfProfile& profile) const {
        double seconds = secondsOf(element("diveduration")).value_or(0);
        if (!(seconds > 0)) {
            seconds = profile.lastMoment;
        } else if (profile.lastMoment > 20 * seconds && std::abs(seconds * 60 - profile.lastMoment) < 300) {
            seconds *= 60;
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
        const auto seconds = numberOf(interval.first("passedtime"));
        if (seconds && *seconds > 0 && *seconds < 1e9) {
            found_.dive.surface = intervalText(rounded(*seconds / 60));
        }
    }

    void readWords() {
        Plongee& dive = found_.dive;
        dive.notes = notesOf(element("notes"));
        if (const auto metres = number("visibility"); metres && *metres > 0) {
            dive.visibilite = visibilityRating(*metres);
        }
        dive.courant = currentOf(wordsOf(element("current"))).value_or(dive.courant);
        dive.typePlongee = purposeOf(wordsOf(element("purpose"))).value_or(dive.typePlongee);
        dive.deco =
            wordsOf(element("diveplan")) == QLatin1String("table") ? DecoMethod::airTables : DecoMethod::computer;
        const XmlElement rating = element("rating");
        dive.inoubliable = ratingOf(numberOf(rating.first("ratingvalue")).value_or(numberOf(rating).value_or(0)));
        for (const XmlElement part : parts_) {
            if (!part.first("nosuit").isNull()) {
                dive.combinaison = Suit::none;
            }
        }
    }

    void readApparatus(const UddfProfile& profile) {
        Plongee& dive = found_.dive;
        const QString words = wordsOf(element("apparatus")) + u' ' + QString::fromStdString(profile.mode()) + u' ' +
                              wordsOf(element("divemode")) + u' ' +
                              QString::fromStdString(std::string(element("divemode").attribute("type")));
        const auto says = [&](const char* word) { return words.contains(QLatin1String(word), Qt::CaseInsensitive); };
        if (says("semiclosed")) {
            dive.rebreather = Apparatus::semiClosed;
        } else if (says("closedcircuit") || (says("rebreather") && profile.mode() != "opencircuit")) {
            dive.rebreather = Apparatus::electronicClosed;
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

    void follow(XmlElement link) {
        if (!link.isNull()) {
            follow(uddfReference(link));
        }
    }

    void follow(const std::string& id) {
        if (id.empty()) {
            return;
        }
        if (document_.isMix(id)) {
            namedMix_ = namedMix_.empty() ? id : namedMix_;
        }
        for (const XmlElement target : document_.withId(id)) {
            take(target, target.name());
        }
    }

    void take(XmlElement target, std::string_view name) {
        Plongee& dive = found_.dive;
        const QString title = wordsOf(target.first("name"));
        if (name == "site") {
            takeSite(target);
        } else if (name == "divebase") {
            dive.structure = dive.structure.isEmpty() ? title : dive.structure;
        } else if (name == "buddy") {
            buddies_.append(personName(target));
        } else if (name == "divecomputer") {
            takeComputer(target);
        } else if (name == "trip") {
            const XmlElement vessel = target.first("trippart").first("vessel");
            dive.bateau = dive.bateau.isEmpty() ? wordsOf(vessel.first("name")) : dive.bateau;
        } else if (name == "vessel") {
            dive.bateau = title;
        } else if (name == "suit") {
            dive.combinaison = suitOf(title, wordsOf(target.first("suittype"))).value_or(dive.combinaison);
        } else if (name == "rebreather") {
            dive.rebreather = apparatusOf(title).value_or(
                dive.rebreather == Apparatus::openCircuit ? qint32(Apparatus::electronicClosed) : dive.rebreather);
        } else if (name == "equipmentconfiguration") {
            for (const XmlElement link : target.children("link")) {
                if (linkedOnce_.insert(uddfReference(link)).second) {
                    follow(link);
                }
            }
        } else if (name != "mix" && name != "tank" && name != "owner" && name != "dive") {
            equipment_.append(title.isEmpty() ? wordsOf(target.first("model")) : title);
        }
    }

    void takeSite(XmlElement site) {
        Plongee& dive = found_.dive;
        if (!dive.site.isEmpty() || !dive.lieu.isEmpty()) {
            return;
        }
        dive.site = wordsOf(site.first("name"));
        const XmlElement geography = site.first("geography");
        dive.lieu = wordsOf(geography.first("location"));
        dive.pays = wordsOf(childOf(geography.first("address"), {"country"}));
        if (dive.pays.isEmpty()) {
            dive.pays = wordsOf(geography.first("country"));
        }
        const auto latitude = numberOf(geography.first("latitude"));
        const auto longitude = numberOf(geography.first("longitude"));
        if (latitude && longitude && std::abs(*latitude) <= 90 && std::abs(*longitude) <= 180 &&
            (*latitude != 0 || *longitude != 0)) {
            dive.gps = positionText({*latitude, *longitude});
        }
        if (const auto metres = numberOf(geography.first("altitude"));
            metres && dive.altitude == 0 && *metres > 0 && *metres <= highestAltitude) {
            dive.altitude = rounded(*metres);
        }
        QStringList wrecks;
        for (const XmlElement wreck : site.first("sitedata").children("wreck")) {
            wrecks.append(wordsOf(wreck.first("name")));
        }
        dive.epaves = withoutRepeats(wrecks);
        dive.difficulte = difficultyOf(numberOf(site.first("sitedata").first("difficulty")).value_or(0));
        const QString environment = wordsOf(site.first("environment"));
        if (dive.typePlongee == DiveKind::other) {
            dive.typePlongee = environmentKind(environment).value_or(qint32(DiveKind::other));
        }
        if (const QString notes = notesOf(site.first("notes")); !notes.trimmed().isEmpty()) {
            found_.lose(QStringLiteral("site/notes"), notes);
        }
    }

    void takeComputer(XmlElement computer) {
        Plongee& dive = found_.dive;
        if (!dive.ordinateur.isEmpty()) {
            return;
        }
        dive.fabricant = wordsOf(computer.first("manufacturer").first("name"));
        dive.ordinateur = wordsOf(computer.first("model"));
        if (dive.ordinateur.isEmpty()) {
            dive.ordinateur = wordsOf(computer.first("name"));
        }
        dive.serie = wordsOf(computer.first("serialnumber"));
    }

    void finishWords() {
        Plongee& dive = found_.dive;
        dive.partenaires = withoutRepeats(buddies_);
        if (dive.ordinateur.isEmpty()) {
            // A dive that names no computer was logged by the only one of the owner.
            if (const XmlElement only = document_.onlyPiece("divecomputer"); !only.isNull()) {
                takeComputer(only);
            }
        }
        equipment_.removeAll(QString());
        for (qsizetype piece = 0; piece < equipment_.size(); ++piece) {
            if (static_cast<std::size_t>(piece) < equipmentFields.size()) {
                dive.*equipmentFields[static_cast<std::size_t>(piece)] = equipment_[piece];
            } else {
                found_.lose(QStringLiteral("equipmentused"), equipment_[piece]);
            }
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

    /// Names the elements of the dive's parts that nothing above has read.
    void nameLost() {
        static const std::set<std::string_view> read{
            "informationbeforedive",
            "informationafterdive",
            "diveinformation",
            "samples",
            "tankdata",
            "link",
            "divenumber",
            "datetime",
            "date",
            "time",
            "airtemperature",
            "surfaceintervalbeforedive",
            "surfaceinterval",
            "altitude",
            "equipmentused",
            "apparatus",
            "purpose",
            "nosuit",
            "plannedprofile",
            "tripmembership",
            "lowesttemperature",
            "greatestdepth",
            "diveduration",
            "visibility",
            "current",
            "diveplan",
            "notes",
            "rating",
            "averagedepth",
            "divemode",
            "leadquantity",
        };
        for (const XmlElement part : parts_) {
            for (XmlElement it = part.firstElement(); !it.isNull(); it = it.nextElement()) {
                if (read.count(it.name()) > 0) {
                    continue;
                }
                const QString words = wordsOf(it);
                const bool isNumber = numberOf(it).has_value();
                if (!words.isEmpty() || !it.firstElement().isNull() || it.hasAttributes()) {
                    const std::string_view name = it.name();
                    found_.lose(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())),
                                isNumber ? QString() : words.simplified());
                }
            }
        }
    }

    const UddfDocument& document_;
    XmlElement dive_;
    const std::function<bool()>& goesOn_;
    std::vector<XmlElement> parts_;
    FoundDive found_;
    std::string namedMix_;
    QStringList buddies_;
    QStringList equipment_;
    std::set<std::string> linkedOnce_;
};

}  // namespace

FoundDives readUddf(XmlElement root, const Progress& progress) {
    const UddfDocument document(root);
    std::vector<XmlElement> dives;
    std::vector<XmlElement> holders;
    for (const XmlElement data : root.children("profiledata")) {
        holders.push_back(data);
    }
    if (holders.empty()) {
        holders.push_back(root);
    }
    for (const XmlElement data : holders) {
        for (XmlElement group = data.firstElement(); !group.isNull(); group = group.nextElement()) {
            if (group.name() == "dive") {
                dives.push_back(group);
                continue;
            }
            for (const XmlElement dive : group.children("dive")) {
                dives.push_back(dive);
            }
        }
    }
    FoundDives found;
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
        found.dives.push_back(DiveReader(document, dive, goesOn).read());
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
