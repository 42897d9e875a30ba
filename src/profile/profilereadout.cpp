#include "profile/profilereadout.h"

#include "base/texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tavrel {

int readOutTimeScale(qint32 samplingRate) {
    static constexpr std::array<int, 8> scales{3900, 1950, 1300, 650, 0, 9750, 39000, 7800};
    return scales[samplingRate >= 0 && samplingRate < 8 ? static_cast<std::size_t>(samplingRate) : 0];
}

QString ProfileReadOut::words() const {
    return depth ? textWith("Profil", "Depth time", *depth, minutes) : textWith("Profil", "Depth no value", minutes);
}

ProfileReadOut profileReadOut(const QPointF& point, const ProfileScale& scale, qint32 samplingRate) {
    constexpr double timeAxisReach = 145;  // two points above the axis
    ProfileReadOut readOut;
    const double minutes = (point.x() - ProfileSpace::left) * (scale.samples - 1) / readOutTimeScale(samplingRate);
    readOut.minutes = minutes > 0 ? minutes : 0;
    if (point.y() <= timeAxisReach) {
        return readOut;
    }
    const double depth = (ProfileSpace::surface - point.y()) * scale.deepest / (ProfileSpace::height - 30);
    readOut.depth = depth < 0 || scale.samples <= 1 ? 0 : depth;
    return readOut;
}

int sampleNear(const QPointF& point, const ProfileScale& scale) {
    const double sample = (point.x() - ProfileSpace::left) / scale.step();
    return static_cast<int>(std::lround(std::clamp(sample, 0.0, scale.samples - 1.0)));
}

}  // namespace tavrel
