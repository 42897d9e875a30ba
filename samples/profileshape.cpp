#include "profileshape.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tavrel {

namespace {

// Depths are counted in centimetres, so that no rounding differs between machines.
constexpr int surfaceDepth = 30;     ///< above it the diver is at the surface
constexpr int stayingSpeed = 150;    ///< per minute; slower means that the diver stays about where he is
constexpr int movingDepth = 700;     ///< from here on a staying diver moves up and down
constexpr int movement = 130;        ///< the most he rises
constexpr int movementSeconds = 50;  ///< from one such move to the next
constexpr int slowDownSpeed = 1050;  ///< per minute
constexpr int ascentAlarmSpeed = 1700;

int centimetres(double metres) {
    return static_cast<int>(std::lround(metres * 100));
}

/// Numbers from 0 up to a limit that look drawn by lot, the same in every run.
int drawn(std::uint32_t position, int limit) {
    std::uint32_t bits = (position + 1) * 2654435761U;
    bits ^= bits >> 15;
    bits *= 2246822519U;
    bits ^= bits >> 13;
    return static_cast<int>(bits % static_cast<std::uint32_t>(limit));
}

struct Moment {
    int depth;  ///< cm
    int speed;  ///< cm per minute, positive upward
};

Moment momentAt(const ProfileShape& shape, int second) {
    for (std::size_t next = 1; next < shape.points.size(); ++next) {
        const auto& from = shape.points[next - 1];
        const auto& to = shape.points[next];
        const int start = static_cast<int>(std::lround(from.minute * 60));
        const int length = std::max(1, static_cast<int>(std::lround(to.minute * 60)) - start);
        if (second <= start + length) {
            const int sunk = centimetres(to.depth) - centimetres(from.depth);
            return {centimetres(from.depth) + sunk * (second - start) / length, -sunk * 60 / length};
        }
    }
    return {centimetres(shape.points.back().depth), 0};
}

/// Tells dives apart, so that no two move alike.
std::uint32_t seedOf(const ProfileShape& shape) {
    std::uint32_t seed = 0;
    for (const auto& point : shape.points) {
        seed = seed * 31 + static_cast<std::uint32_t>(centimetres(point.depth) + centimetres(point.minute));
    }
    return seed;
}

int movedUp(std::uint32_t seed, int second) {
    const auto move = seed + static_cast<std::uint32_t>(second / movementSeconds);
    const int passed = second % movementSeconds;
    return (drawn(move, movement) * (movementSeconds - passed) + drawn(move + 1, movement) * passed) / movementSeconds;
}

}  // namespace

double ProfileShape::maximumDepth() const {
    return std::max_element(points.begin(), points.end(),
                            [](auto& left, auto& right) { return left.depth < right.depth; })
        ->depth;
}

ProfileSeries drawProfile(const ProfileShape& shape, int interval) {
    std::vector<double> depths;
    std::vector<qint32> ascents, slowDowns, surfaces, ceilings;
    std::vector<std::int64_t> breathed;  ///< from the start on, as the sum of the absolute pressures
    const std::uint32_t seed = seedOf(shape);
    const int deepest = centimetres(shape.maximumDepth());
    const int seconds = static_cast<int>(std::lround(shape.minutes() * 60));
    for (int second = 0; second <= seconds; second += interval) {
        Moment now = momentAt(shape, second);
        if (std::abs(now.speed) < stayingSpeed && now.depth >= movingDepth && now.depth < deepest) {
            now.depth -= movedUp(seed, second);
        }
        const int decimetres = (now.depth + 5) / 10;
        depths.push_back(decimetres / 10.0);
        ascents.push_back(now.speed >= ascentAlarmSpeed);
        slowDowns.push_back(now.speed >= slowDownSpeed);
        surfaces.push_back(now.depth < surfaceDepth);
        const double minute = second / 60.0;
        ceilings.push_back(std::any_of(shape.ceilingViolations.begin(), shape.ceilingViolations.end(),
                                       [&](auto& span) { return minute >= span.from && minute <= span.to; }));
        breathed.push_back((breathed.empty() ? 0 : breathed.back()) + 1000 + now.depth);
    }
    std::vector<qint32> gases(depths.size(), 0);
    for (const auto& change : shape.switches) {
        const auto sample =
            static_cast<std::size_t>(std::lround(change.minute * 60)) / static_cast<std::size_t>(interval);
        gases[std::min(sample, gases.size() - 1)] = change.gas;
    }
    std::vector<double> pressures;
    const auto used = static_cast<std::int64_t>(std::lround((shape.startPressure - shape.endPressure) * 10));
    for (const auto until : breathed) {
        if (used != 0) {
            const auto tenths =
                static_cast<std::int64_t>(std::lround(shape.startPressure * 10)) - used * until / breathed.back();
            pressures.push_back(static_cast<double>(tenths) / 10.0);
        }
    }

    ProfileSeries series;
    series.profilProfondeur = Series::ofReals(depths);
    series.ASC_Flag = Series::ofIntegers(ascents);
    series.SLOW_Flag = Series::ofIntegers(slowDowns);
    series.SURF_Flag = Series::ofIntegers(surfaces);
    series.CEIL_Flag = Series::ofIntegers(ceilings);
    series.GAZ_Flag = Series::ofIntegers(gases);
    series.PRESS_Data = Series::ofReals(pressures);
    return series;
}

}  // namespace tavrel
