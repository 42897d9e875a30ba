#pragma once

#include <QString>

#include <array>

namespace tavrel {

/// Sampling interval of each code 0 to 7, seconds. The order is the stored one, not sorted by interval.
inline constexpr std::array<int, 8> samplingIntervals{10, 20, 30, 60, 120, 4, 1, 5};

/// The interval of a code, seconds; that of code 0 for a code outside 0 to 7.
constexpr int samplingInterval(qint32 code) {
    return samplingIntervals[code >= 0 && code < 8 ? static_cast<std::size_t>(code) : 0];
}

/// How many samples five minutes hold.
constexpr double samplesPerFiveMinutes(qint32 code) {
    return 300.0 / samplingInterval(code);
}

/// The interval in words: "10 s", "1 min".
QString samplingTitle(qint32 code);

}  // namespace tavrel
