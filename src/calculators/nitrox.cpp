#include "calculators/nitrox.h"

#include "calculators/divingconstants.h"

namespace tavrel {

double ppO2OfMenuIndex(int index) {
    const auto position = static_cast<unsigned>(index);
    return ppO2Menu[position < ppO2Menu.size() ? position : defaultPpO2Index];
}

double maximumOperatingDepth(double oxygen, double ppO2) {
    return depthOfPressure(ppO2 / (oxygen / 100));
}

double bestMix(double depth, double ppO2) {
    return ppO2 / absolutePressure(depth) * 100;
}

double equivalentAirDepth(double oxygen, double depth) {
    return (depth + metresPerBar) * (1 - oxygen / 100) / airNitrogenFraction - metresPerBar;
}

OxygenWindow oxygenWindow(double oxygen, double minimumPpO2) {
    const double fraction = oxygen / 100;
    const double deepest = depthOfPressure(highestPpO2 / fraction);
    const double nitrogen = depthOfPressure(airNitrogenFraction / (1 - fraction));
    // Written so that the nitrogen depth wins when either is not a number.
    return {deepest, depthOfPressure(minimumPpO2 / fraction), deepest < nitrogen ? deepest : nitrogen};
}

Blend blend(double startPressure, double startOxygen, double endPressure, double endOxygen) {
    const double rise = endPressure - startPressure;
    // The nitrogen that the final mix needs beyond what is in the tank comes from air, the rest of the rise is oxygen.
    const double nitrogen = (100 - endOxygen) * endPressure - (100 - startOxygen) * startPressure;
    return {rise - nitrogen / airNitrogenPercent, (endPressure * endOxygen - startPressure * startOxygen) / rise};
}

}  // namespace tavrel
