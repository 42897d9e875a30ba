#pragma once

#include "profile/profilegeometry.h"

#include <optional>

namespace tavrel {

/// The scale of the read-out's time for a sampling code: 650 x 60 / interval; 0 for code 4, so that its time is
/// infinite, and that of code 0 for any other.
int readOutTimeScale(qint32 samplingRate);

/// What a pointer on the picture reads.
struct ProfileReadOut {
    double minutes = 0;
    std::optional<double> depth;  ///< metres; nothing on the time axis and below

    /// In words.
    QString words() const;
};

/// Of a point in the picture's space.
ProfileReadOut profileReadOut(const QPointF& point, const ProfileScale& scale, qint32 samplingRate);

/// The sample whose place is nearest to a point; within 0 to samples - 1.
int sampleNear(const QPointF& point, const ProfileScale& scale);

}  // namespace tavrel
