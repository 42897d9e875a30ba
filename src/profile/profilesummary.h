#pragma once

#include "profile/profileseries.h"

namespace tavrel {

/// What a profile amounts to. A flag series that is shorter than the depths counts as zeros behind its end.
struct ProfileSummary {
    float maximum = 0;  ///< metres; 0 when no sample is deeper
    float average = 0;  ///< metres, of all samples in single precision; not-a-number without any sample
    int samples = 0;    ///< recorded points: at least two, or 0 when there is no profile
    qint64 slow = 0;
    qint64 ceiling = 0;
    qint64 surface = 0;
    int gasSwitches = 0;
    bool endsAtSurface = false;
};

ProfileSummary summaryOf(const ProfileSeries& profile);

}  // namespace tavrel
