#pragma once

#include "interchange/standard/founddive.h"
#include "interchange/standard/resampling.h"
#include "interchange/xml/xmltree.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tavrel {

/// What the waypoints of a dive hold, in the order of their times.
struct UddfProfile {
    enum class Alarm { ascent, slow, surface, ceiling };
    struct Switch {
        double seconds;
        std::string mix;
        std::string tank;  ///< whose gas it is, where the file names that instead
    };

    std::vector<TimedValue> depths;
    std::map<std::string, std::vector<TimedValue>> pressures;  ///< bar, by the tank that they refer to
    std::vector<Switch> switches;
    std::vector<std::pair<double, Alarm>> alarms;
    std::vector<double> setPoints;            ///< bar
    std::optional<double> lowestTemperature;  ///< kelvin, or what the file has for it
    double lastMoment = 0;                    ///< seconds
    std::vector<std::string> modes;           ///< the dive modes that the file names, one after the other

    double deepest() const;
    /// The gas in use at a moment: that of the last switch before it; empty before the first.
    std::string mixAt(double seconds) const;
    /// The dive mode that tells what the diver carried: a closed one before an open one, which a bail-out may be.
    std::string mode() const;
    /// When the diver was deepest.
    double deepestMoment() const;
    /// Gives the switches to tanks the gases of these. One that leads to no gas is left out, and false comes back.
    bool findGases(const std::map<std::string, std::string>& mixOfTank);
};

/// Reads the waypoints of one or more samples elements, naming in the dive what they hold beyond a profile. Waypoints
/// without a time lie evenly between those beside them that have one, and go on in the last step; depths that share one
/// lie evenly up to the next. Where the first lies behind the end of a dive of `duration` seconds, 0 for not known, the
/// times count from another moment and are taken from it on. Ends early once `goesOn`, asked now and then, is false.
UddfProfile readUddfProfile(XmlElement dive, double duration, FoundDive& found, const std::function<bool()>& goesOn);

}  // namespace tavrel
