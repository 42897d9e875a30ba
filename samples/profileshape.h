#pragma once

#include "profile/profileseries.h"

#include <vector>

namespace tavrel {

/// The course of a dive from which its profile is drawn: where the diver is at which minute, and what the computer
/// noted.
struct ProfileShape {
    struct Point {
        double minute;
        double depth;  ///< metres
    };
    struct Switch {
        double minute;
        int gas;  ///< as GAZ_Flag counts them
    };
    struct Span {
        double from, to;  ///< minutes
    };

    std::vector<Point> points;  ///< in order of time, from the surface
    std::vector<Switch> switches;
    std::vector<Span> ceilingViolations;
    double startPressure = 0, endPressure = 0;  ///< bar; both 0 without a pressure series

    double maximumDepth() const;
    double minutes() const { return points.back().minute; }
};

/// The seven series of the dive, a sample every so many seconds: straight legs between the points, small movements
/// where the diver stays at a depth, ascent flags from the speed, pressure falling with the depth. The same shape
/// always gives the same numbers, on every machine.
ProfileSeries drawProfile(const ProfileShape& shape, int interval);

}  // namespace tavrel
