#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

namespace tavrel {

struct ProfileSeries;

/// A bottle as the dive form reads it: litres and bar, 0 where nothing is typed.
struct BottleReading {
    qint32 volume = 0;
    qint32 start = 0;
    qint32 end = 0;

    bool operator==(const BottleReading&) const = default;
};

/// A decompression level as the dive form reads it.
struct LevelReading {
    bool on = false;
    double oxygen = 0;  ///< percent
    qint32 depth = 0;   ///< whole metres
};

/// What the gas figures are worked out from: the entries of the dive form, which shows a stored dive in its own way
/// (the usual depths of stops without one, pure oxygen in the main tank of a rebreather), and the dive's profile.
struct GasReadings {
    static constexpr std::size_t levelCount = 6;
    static constexpr std::size_t auxiliaryCount = 5;

    /// Reads the depths of a profile: averageDepth, deepest, largestSample, samples.
    void readProfile(const ProfileSeries& profile);
    bool hasProfile() const { return samples >= 2; }

    std::array<BottleReading, 2> tanks;
    std::array<BottleReading, auxiliaryCount> auxiliaries;  ///< stage bottles 1 to 3, bail-outs 1 and 2
    std::array<LevelReading, levelCount> levels;
    qint32 time = 0;          ///< whole minutes
    double minutes = 0;       ///< the same, as typed
    double depth = 0;         ///< maximum as typed, metres
    double oxygen = 0;        ///< of the main tank, percent
    std::size_t samples = 0;  ///< depths in the profile
    float averageDepth = 0;   ///< of all samples, metres; not a number without any
    float deepest = 0;        ///< of all samples and the surface, metres
    float largestSample = 0;  ///< metres; 0 without any, and negative when all are above the surface
};

}  // namespace tavrel
