#pragma once

#include "profile/profileseries.h"

#include <array>
#include <optional>

namespace tavrel {

/// What the profile's picture and figures need of a dive: its series, none of them empty, and its gases.
struct ProfileDive {
    ProfileSeries series;
    qint32 samplingRate = 0;
    qint32 fracO2 = 21;           ///< oxygen of the bottom gas, percent
    qint32 ppO2 = 0;              ///< code of the limit of oxygen's partial pressure
    std::array<qint32, 6> ean{};  ///< oxygen of the gases of stop levels 1 to 6, percent
    qint32 pressDepart = 0;       ///< main tank, bar
    qint32 pressFin = 0;
    /// What a closed rebreather holds oxygen's partial pressure at, bar; nothing when the gas itself is breathed.
    std::optional<double> setPoint;

    int samples() const { return static_cast<int>(series.profilProfondeur.size()); }
};

/// The limit of oxygen's partial pressure by its code, bar: 0.0, then 1.2 to 1.5 for codes 1 to 4, 1.6 for any other.
float ppO2Limit(qint32 code);

}  // namespace tavrel
