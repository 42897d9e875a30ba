#include "profile/profilesummary.h"

namespace tavrel {

namespace {

qint32 flagAt(const Series& series, std::size_t index) {
    return index < series.size() ? series.integer(index) : 0;
}

}  // namespace

ProfileSummary summaryOf(const ProfileSeries& profile) {
    ProfileSummary summary;
    const std::size_t count = profile.profilProfondeur.size();
    float sum = 0;
    for (std::size_t index = 0; index < count; ++index) {
        const auto depth = static_cast<float>(profile.profilProfondeur.real(index));
        sum += depth;
        if (depth > summary.maximum) {
            summary.maximum = depth;
        }
        summary.slow += flagAt(profile.SLOW_Flag, index);
        summary.ceiling += flagAt(profile.CEIL_Flag, index);
        summary.surface += flagAt(profile.SURF_Flag, index);
        if (flagAt(profile.GAZ_Flag, index) != 0) {
            ++summary.gasSwitches;
        }
    }
    summary.average = sum / static_cast<float>(count);
    summary.samples = profile.hasProfile() ? static_cast<int>(count) : 0;
    if (summary.surface > 0) {
        summary.endsAtSurface = profile.SURF_Flag.integer(profile.SURF_Flag.size() - 1) == 1;
    }
    return summary;
}

}  // namespace tavrel
