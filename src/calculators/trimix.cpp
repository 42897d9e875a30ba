#include "calculators/trimix.h"

#include "calculators/divingconstants.h"

namespace tavrel {

EquivalentDepths trimixEquivalentDepths(double oxygen, double helium, double depth) {
    const double ead = (depth + metresPerBar) * ((100 - oxygen - helium) / 100) / airNitrogenFraction - metresPerBar;
    const double end = (depth + metresPerBar) * (1 - helium / 100) - metresPerBar;
    return {ead < 0 ? 0 : ead, end};
}

std::optional<double> trimixMinimumDepth(double oxygen) {
    if (oxygen < leastHypoxicOxygen || oxygen > mostHypoxicOxygen) {
        return std::nullopt;
    }
    return depthOfPressure(lowestPpO2 * 100 / oxygen);
}

TrimixShares bestTrimix(double depth, double narcoticDepth, double ppO2) {
    const double pressure = absolutePressure(depth);
    const double oxygen = ppO2 / pressure * 100;
    return {oxygen, 100 - oxygen - airNitrogenPercent * absolutePressure(narcoticDepth) / pressure};
}

}  // namespace tavrel
