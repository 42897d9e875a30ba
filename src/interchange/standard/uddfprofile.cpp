#include "interchange/standard/uddfprofile.h"

#include "interchange/standard/filevalues.h"
#include "interchange/standard/uddfdocument.h"
#include "interchange/standard/uddfwords.h"
#include "interchange/standard/unread.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>

namespace tavrel {

namespace {

constexpr double latestMoment = 1e9;  // seconds
constexpr double unknownMoment = -1;

template <class Item>
void sortByTime(std::vector<Item>& items, double (*timeOf)(const Item&)) {
    const auto earlier = [&](const Item& one, const Item& other) { return timeOf(one) < timeOf(other); };
    if (!std::is_sorted(items.begin(), items.end(), earlier)) {
        std::stable_sort(items.begin(), items.end(), earlier);
    }
}

double momentOf(const TimedValue& value) {
    return value.seconds;
}

double laterOf(double, double later) {
    return later;
}
double deeperOf(double one, double other) {
    return std::max(one, other);
}

/// One value at each moment, chosen of those that the file gives it in the order of the file.
void uniteMoments(std::vector<TimedValue>& values, double (*chosen)(double, double)) {
    sortByTime(values, momentOf);
    std::size_t kept = 0;
    for (const TimedValue& it : values) {
        if (kept > 0 && values[kept - 1].seconds == it.seconds) {
            values[kept - 1].value = chosen(values[kept - 1].value, it.value);
        } else {
            values[kept++] = it;
        }
    }
    values.resize(kept);
}

class WaypointReader {
public:
    WaypointReader(UddfProfile& profile, FoundDive& found) : profile_(profile), found_(found) {}

    void read(XmlElement waypoint, double moment) {
        moment_ = moment;
        profile_.lastMoment = std::max(profile_.lastMoment, moment_);
        if (waypoint.firstElement().isNull() && waypoint.hasAttributes()) {
            found_.lose(QStringLiteral("samples"));
        }
        for (XmlElement it = waypoint.firstElement(); !it.isNull(); it = it.nextElement()) {
            take(it, it.name());
        }
    }

    /// Names what the waypoints held beyond the profile.
    void tellLost() {
        unknown_.tell(found_, QStringLiteral("waypoint/"));
        unknownAlarms_.tell(found_, QStringLiteral("alarm "));
    }

private:
    void take(XmlElement it, std::string_view name) {
        if (name == "divetime") {
            addUnless(secondsOf(it).has_value(), name, it);
            return;
        }
        if (name == "depth") {
            if (const auto depth = numberOf(it); depth && std::abs(*depth) <= deepestThinkable) {
                profile_.depths.push_back({moment_, *depth});
            } else {
                addUnless(false, name, it);
            }
        } else if (name == "temperature") {
            const auto kelvin = numberOf(it);
            addUnless(kelvin.has_value(), name, it);
            if (waterCelsius(kelvin)) {
                profile_.lowestTemperature = std::min(profile_.lowestTemperature.value_or(*kelvin), *kelvin);
                unknown_.add(name);
            }
        } else if (name == "tankpressure") {
            const auto pascal = numberOf(it);
            addUnless(pascal.has_value(), name, it);
            if (const auto bar = bars(pascal)) {
                profile_.pressures[uddfReference(it.attribute("ref"))].push_back({moment_, *bar});
            }
        } else if (name == "switchmix") {
            profile_.switches.push_back({moment_, uddfReference(it), {}});
        } else if (name == "switchtank") {
            profile_.switches.push_back({moment_, {}, uddfReference(it)});
        } else if (name == "alarm") {
            takeAlarm(it);
        } else if (name == "setpo2") {
            const auto point = numberOf(it);
            addUnless(point.has_value(), name, it);
            if (point && *point > 0) {
                profile_.setPoints.push_back(*point > 10 ? *point / 100'000 : *point);
            }
        } else if (name == "divemode") {
            const std::string_view type = it.attribute("type");
            const std::string mode = type.empty() ? wordsOf(it).toStdString() : std::string(type);
            if (profile_.modes.empty() || profile_.modes.back() != mode) {
                profile_.modes.push_back(mode);
            }
            if (!mode.empty() && !isCircuit(QString::fromStdString(mode))) {
                unknown_.add("divemode " + mode);
            }
        } else {
            unknown_.add(name, it);
        }
    }

    void addUnless(bool understood, std::string_view name, XmlElement it) {
        if (!understood && !wordsOf(it).isEmpty()) {
            unknown_.add(name, it);
        }
    }

    void takeAlarm(XmlElement it) {
        const QString kind = wordsOf(it).toLower();
        const auto level = numberOf(it.attribute("level"));
        if (kind == QLatin1String("ascent")) {
            // Below its full level the alarm only asks to slow down.
            const bool full = level.value_or(1) >= 1;
            profile_.alarms.emplace_back(moment_, full ? UddfProfile::Alarm::ascent : UddfProfile::Alarm::slow);
        } else if (kind == QLatin1String("deco")) {
            profile_.alarms.emplace_back(moment_, UddfProfile::Alarm::ceiling);
        } else if (kind == QLatin1String("surface")) {
            profile_.alarms.emplace_back(moment_, UddfProfile::Alarm::surface);
        } else if (!kind.isEmpty()) {
            unknownAlarms_.add(kind.left(40).toStdString());
        }
    }

    UddfProfile& profile_;
    FoundDive& found_;
    double moment_ = 0;
    LostNames unknown_;
    LostNames unknownAlarms_;
};

/// Names the words that stand directly in the samples or their waypoints, which nearly none have.
void loseTextBesideValues(FoundDive& found, XmlElement samples) {
    std::string buffer;
    std::size_t values = 0;
    for (const XmlElement waypoint : samples.children("waypoint")) {
        for (XmlElement it = waypoint.firstElement(); !it.isNull(); it = it.nextElement()) {
            values += it.text(buffer).size();
        }
    }
    if (samples.text(buffer).size() == values) {
        return;
    }
    const auto lose = [&](const char* name, const QString& words) {
        if (!words.isEmpty()) {
            found.lose(QLatin1String(name), words);
        }
    };
    lose("samples", ownWords(samples));
    for (const XmlElement waypoint : samples.children("waypoint")) {
        lose("waypoint", ownWords(waypoint));
    }
}

/// Gives each waypoint a moment: what lies between two known ones is spread evenly, what comes after goes on in the
/// last step.
void fillMoments(std::vector<double>& moments) {
    constexpr double stepWithoutTimes = 10;  // seconds
    double step = stepWithoutTimes;
    double before = 0;
    auto at = moments.begin();
    while (at != moments.end()) {
        if (*at != unknownMoment) {
            step = at != moments.begin() && *at > before ? *at - before : step;
            before = *at++;
            continue;
        }
        const auto next = std::find_if(at, moments.end(), [](double moment) { return moment != unknownMoment; });
        const bool atStart = at == moments.begin();
        double between = step;
        if (next != moments.end()) {
            const auto steps = static_cast<double>(next - at) + (atStart ? 0 : 1);
            between = std::max(0.0, *next - before) / steps;
        }
        double moment = atStart ? 0 : before + between;
        for (; at != next; ++at, moment += between) {
            *at = before = moment;
        }
    }
}

/// Spreads waypoints of one moment and different depths evenly up to the next where times are that coarse throughout:
/// in whole minutes, say. One that repeats the depth before it tells something else of the same moment, which it keeps;
/// so does one that shares a moment now and then.
void spreadMoments(const std::vector<XmlElement>& waypoints, std::vector<double>& moments) {
    auto distinct = moments;
    distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
    if (moments.size() < 2 * distinct.size()) {
        return;
    }
    constexpr double widest = 60;  // seconds
    double step = widest;
    for (std::size_t first = 0; first < moments.size();) {
        const double moment = moments[first];
        std::size_t behind = first + 1;
        while (behind < moments.size() && moments[behind] == moment) {
            ++behind;
        }
        const double next = behind < moments.size() && moments[behind] > moment ? moments[behind] - moment : step;
        if (behind - first > 1) {
            std::vector<std::size_t> places;  // how many depths lie before each waypoint of the moment
            std::optional<double> before;
            std::size_t depths = 0;
            for (std::size_t index = first; index < behind; ++index) {
                const auto depth = numberOf(waypoints[index].first("depth"));
                depths += depth && before && *depth != *before ? 1 : 0;
                before = depth ? depth : before;
                places.push_back(depths);
            }
            for (std::size_t index = first; index < behind; ++index) {
                moments[index] = moment + std::min(step, next) * static_cast<double>(places[index - first]) /
                                              static_cast<double>(depths + 1);
            }
        }
        step = std::min(next, widest);
        first = behind;
    }
}

/// Whether times that begin there, seconds, count from another moment than the dive's start: a clock's, say.
bool beginElsewhere(double start, double length, double duration) {
    constexpr double tenMinutes = 600;
    constexpr double hour = 3600;
    constexpr double day = 24 * hour;
    return start > day || (duration > 0 ? start > tenMinutes && start >= duration : start > hour && start > 2 * length);
}

/// Moves everything to the start of the dive where the waypoints count from another moment.
void moveToStart(UddfProfile& profile, double duration) {
    if (profile.depths.empty()) {
        return;
    }
    const double start = profile.depths.front().seconds;
    if (!beginElsewhere(start, profile.depths.back().seconds - start, duration)) {
        return;
    }
    const auto moved = [start](double& moment) { moment = std::max(0.0, moment - start); };
    for (TimedValue& it : profile.depths) {
        moved(it.seconds);
    }
    for (auto& [tank, values] : profile.pressures) {
        for (TimedValue& it : values) {
            moved(it.seconds);
        }
    }
    for (UddfProfile::Switch& it : profile.switches) {
        moved(it.seconds);
    }
    for (auto& [moment, alarm] : profile.alarms) {
        moved(moment);
    }
    moved(profile.lastMoment);
}

}  // namespace

double UddfProfile::deepest() const {
    double deepest = 0;
    for (const TimedValue& it : depths) {
        deepest = std::max(deepest, it.value);
    }
    return deepest;
}

double UddfProfile::deepestMoment() const {
    const auto most =
        std::max_element(depths.begin(), depths.end(),
                         [](const TimedValue& one, const TimedValue& other) { return one.value < other.value; });
    return most == depths.end() ? std::numeric_limits<double>::max() : most->seconds;
}

std::string UddfProfile::mixAt(double seconds) const {
    std::string mix;
    for (const Switch& it : switches) {
        if (it.seconds <= seconds) {
            mix = it.mix;
        }
    }
    return mix;
}

std::string UddfProfile::mode() const {
    const auto closed = std::find_if(modes.begin(), modes.end(), [](const std::string& mode) {
        return mode.find("closed") != std::string::npos || mode.find("rebreather") != std::string::npos;
    });
    return closed != modes.end() ? *closed : modes.empty() ? std::string() : modes.front();
}

bool UddfProfile::findGases(const std::map<std::string, std::string>& mixOfTank) {
    for (Switch& it : switches) {
        if (const auto its = mixOfTank.find(it.tank); its != mixOfTank.end() && !it.tank.empty()) {
            it.mix = its->second;
        }
    }
    return std::erase_if(switches, [](const Switch& it) { return !it.tank.empty() && it.mix.empty(); }) == 0;
}

UddfProfile readUddfProfile(XmlElement dive, double duration, FoundDive& found, const std::function<bool()>& goesOn) {
    constexpr std::size_t waypointsPerLook = 4096;
    std::vector<XmlElement> waypoints;
    std::vector<double> moments;
    for (const XmlElement samples : dive.children("samples")) {
        loseUnreadChildren(found, samples, QStringLiteral("samples/"), {"waypoint"});
        loseTextBesideValues(found, samples);
        for (const XmlElement waypoint : samples.children("waypoint")) {
            const double moment = secondsOf(waypoint.first("divetime")).value_or(-1);
            waypoints.push_back(waypoint);
            moments.push_back(moment >= 0 && moment <= latestMoment ? moment : unknownMoment);
        }
    }
    fillMoments(moments);
    spreadMoments(waypoints, moments);
    UddfProfile profile;
    WaypointReader reader(profile, found);
    for (std::size_t index = 0; index < waypoints.size(); ++index) {
        if (index % waypointsPerLook == 0 && !goesOn()) {
            break;
        }
        reader.read(waypoints[index], moments[index]);
    }
    reader.tellLost();
    uniteMoments(profile.depths, deeperOf);
    for (auto& [tank, values] : profile.pressures) {
        uniteMoments(values, laterOf);
    }
    sortByTime<UddfProfile::Switch>(profile.switches, [](const UddfProfile::Switch& it) { return it.seconds; });
    moveToStart(profile, duration);
    return profile;
}

}  // namespace tavrel
