#include "dives/oxygenclock.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace tavrel {

namespace {

// Two bands, up to 0.72 and up to 1.14, are twice as wide as their neighbours.
constexpr OxygenBand bands[] = {
    {0.62, 0.14}, {0.64, 0.15}, {0.66, 0.16}, {0.68, 0.17},
    {0.72, 0.18}, {0.74, 0.19}, {0.76, 0.20}, {0.78, 0.21},
    {0.80, 0.22}, {0.82, 0.23}, {0.84, 0.24}, {0.86, 0.25},
    {0.88, 0.26}, {0.90, 0.28}, {0.92, 0.29}, {0.94, 0.30},
    {0.96, 0.31}, {0.98, 0.32}, {1.00, 0.33}, {1.02, 0.35},
    {1.04, 0.36}, {1.06, 0.38}, {1.08, 0.40}, {1.10, 0.42},
    {1.14, 0.43}, {1.16, 0.44}, {1.18, 0.46}, {1.20, 0.47},
    {1.22, 0.48}, {1.24, 0.51}, {1.26, 0.52}, {1.28, 0.54},
    {1.30, 0.56}, {1.32, 0.57}, {1.34, 0.60}, {1.36, 0.62},
    {1.38, 0.63}, {1.40, 0.65}, {1.42, 0.68}, {1.44, 0.71},
    {1.46, 0.74}, {1.48, 0.78}, {1.50, 0.83}, {1.52, 0.93},
    {1.54, 1.04}, {1.56, 1.19}, {1.58, 1.47}, {std::numeric_limits<double>::infinity(), 2.22},
};
static_assert(std::size(bands) == 48);

}  // namespace

std::span<const OxygenBand> oxygenBands() {
    return bands;
}

double sncRate(double ppO2) {
    const auto* band =
        std::find_if(std::begin(bands), std::end(bands), [ppO2](const OxygenBand& each) { return ppO2 <= each.upper; });
    // What compares with nothing (not a number) lies in the last band, as everything above the others does.
    return band == std::end(bands) ? std::rbegin(bands)->rate : band->rate;
}

double calculSncClock(double ppO2, double time) {
    return time * sncRate(ppO2);
}

}  // namespace tavrel
