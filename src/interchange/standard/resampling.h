#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace tavrel {

/// A value at a moment of a dive, seconds from its start.
struct TimedValue {
    double seconds;
    double value;
};

/// Depths at the fixed interval of a sampling code.
struct Resampled {
    int code = 0;
    int seconds = 10;  ///< the interval of the code
    std::vector<double> depths;

    /// The sample nearest to a moment.
    std::size_t sampleAt(double moment) const;
};

/// Most samples that a dive may come to; a million seconds are eleven days.
inline constexpr std::size_t mostSamples = 1'000'000;
/// How far a resampled profile may lie off the file's own, metres.
inline constexpr double resamplingTolerance = 0.25;

/// The depths at one of the intervals that a logbook knows: the finest that is no shorter than the file's own most
/// frequent one, or a finer one where that would lie more than the tolerance off the file's depths. Linear between the
/// points, constant before the first and behind the last; a depth that stands out between two samples is kept by the
/// nearest. The points are in the order of their times, which are not negative. Nothing with no point or a dive that
/// would not end within the most samples.
std::optional<Resampled> resample(const std::vector<TimedValue>& points);

/// The values of the points at the moments of the samples, the same way.
std::vector<double> valuesAt(const std::vector<TimedValue>& points, int seconds, std::size_t samples);

}  // namespace tavrel
