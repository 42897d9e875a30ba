#include "profile/profileseries.h"

namespace tavrel {

void ProfileSeries::profilArraysDefaultContent() {
    for (const auto& kind : profileSeriesKinds) {
        Series& series = this->*kind.series;
        if (series.size() > 0) {
            continue;
        }
        if (kind.real) {
            series.appendReal(0.0);
        } else {
            series.appendInteger(0);
        }
    }
}

void ProfileSeries::reset() {
    *this = {};
    profilArraysDefaultContent();
}

}  // namespace tavrel
