#pragma once

#include "profile/profiledive.h"
#include "profile/profilestyle.h"

#include <vector>

namespace tavrel {

/// A dive with these depths, no flags and no recorded pressures.
inline ProfileDive diveOf(const std::vector<double>& depths, qint32 samplingRate = 0) {
    ProfileDive dive;
    const std::vector<qint32> none(depths.size());
    dive.series.profilProfondeur = Series::ofReals(depths);
    for (auto series : {&ProfileSeries::ASC_Flag, &ProfileSeries::SLOW_Flag, &ProfileSeries::SURF_Flag,
                        &ProfileSeries::CEIL_Flag, &ProfileSeries::GAZ_Flag}) {
        dive.series.*series = Series::ofIntegers(none);
    }
    dive.series.profilArraysDefaultContent();
    dive.samplingRate = samplingRate;
    return dive;
}

/// Nothing but what no setting turns off.
inline ProfileStyle plainStyle() {
    ProfileStyle style;
    style.fillPlot = false;
    style.xMinorTicks = false;
    style.yMinorTicks = false;
    return style;
}

}  // namespace tavrel
