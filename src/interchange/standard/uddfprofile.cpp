#include "interchange/standard/uddfprofile.h"

#include "interchange/standard/filevalues.h"
#include "interchange/standard/uddfdocument.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <set>

namespace tavrel {

namespace {

constexpr double latestMoment = 1e9;  // seconds
constexpr double unknownMoment = -1;
constexpr double latestStart = 86'400;  // seconds; a first waypoint behind it counts from another moment

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

/// One value at each moment, the last of those that the file gives it.
void uniteMoments(std::vector<TimedValue>& values) {
    sortByTime(values, momentOf);
    std::size_t kept = 0;
    for (std::size_t index = 0; index < values.size(); ++index) {
        if (kept > 0 && values[kept - 1].seconds == values[index].seconds) {
            values[kept - 1] = values[index];
        } else {
            values[kept++] = values[index];
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
        for (XmlElement it = waypoint.firstElement(); !it.isNull(); it = it.nextElement()) {
            take(it, it.name());
        }
    }

    /// Names what the waypoints held beyond the profile.
    void tellLost() {
        for (const std::string_view name : unknown_) {
            const QString words = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
            found_.lose(QStringLiteral("waypoint/") + words);
        }
    }

private:
    void take(XmlElement it, std::string_view name) {
        if (name == "divetime") {
            return;
        }
        if (name == "depth") {
            if (const auto depth = numberOf(it); depth && std::abs(*depth) <= deepestThinkable) {
                profile_.depths.push_back({moment_, *depth});
            }
        } else if (name == "temperature") {
            const auto kelvin = numberOf(it);
            if (waterCelsius(kelvin)) {
                profile_.lowestTemperature = std::min(profile_.lowestTemperature.value_or(*kelvin), *kelvin);
                unknown_.insert(name);
            }
        } else if (name == "tankpressure") {
            if (const auto bar = bars(numberOf(it))) {
                profile_.pressures[std::string(it.attribute("ref"))].push_back({moment_, *bar});
            }
        } else if (name == "switchmix") {
            profile_.switches.push_back({moment_, uddfReference(it)});
        } else if (name == "alarm") {
            takeAlarm(it);
        } else if (name == "setpo2") {
            if (const auto point = numberOf(it); point && *point > 0) {
                profile_.setPoints.push_back(*point > 10 ? *point / 100'000 : *point);
            }
        } else if (name == "divemode") {
            const std::string_view type = it.attribute("type");
            const std::string mode = type.empty() ? wordsOf(it).toStdString() : std::string(type);
            if (profile_.modes.empty() || profile_.modes.back() != mode) {
                profile_.modes.push_back(mode);
            }
        } else {
            unknown_.insert(name);
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
            found_.lose(QStringLiteral("alarm ") + kind.left(40));
        }
    }

    UddfProfile& profile_;
    FoundDive& found_;
    double moment_ = 0;
    std::set<std::string_view> unknown_;
};

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

/// Moves everything to the start of the dive where the waypoints count from another moment.
void moveToStart(UddfProfile& profile) {
    const double start = profile.depths.empty() ? 0 : profile.depths.front().seconds;
    if (start <= latestStart) {
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

UddfProfile readUddfProfile(XmlElement dive, FoundDive& found, const std::function<bool()>& goesOn) {
    constexpr std::size_t waypointsPerLook = 4096;
    std::vector<XmlElement> waypoints;
    std::vector<double> moments;
    for (const XmlElement samples : dive.children("samples")) {
        for (const XmlElement waypoint : samples.children("waypoint")) {
            const double moment = numberOf(waypoint.first("divetime")).value_or(-1);
            waypoints.push_back(waypoint);
            moments.push_back(moment >= 0 && moment <= latestMoment ? moment : unknownMoment);
        }
    }
    fillMoments(moments);
    UddfProfile profile;
    WaypointReader reader(profile, found);
    for (std::size_t index = 0; index < waypoints.size(); ++index) {
        if (index % waypointsPerLook == 0 && !goesOn()) {
            break;
        }
        reader.read(waypoints[index], moments[index]);
    }
    reader.tellLost();
    uniteMoments(profile.depths);
    for (auto& [tank, values] : profile.pressures) {
        uniteMoments(values);
    }
    sortByTime<UddfProfile::Switch>(profile.switches, [](const UddfProfile::Switch& it) { return it.seconds; });
    moveToStart(profile);
    return profile;
}

}  // namespace tavrel
