#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tavrel {

// A float kept in a double and back, bit for bit: a plain conversion would turn a signalling not-a-number into a quiet
// one.

inline double widened(float value) {
    if (!std::isnan(value)) {
        return static_cast<double>(value);
    }
    const auto bits = std::uint64_t{std::bit_cast<std::uint32_t>(value)};
    return std::bit_cast<double>((bits & 0x80000000U) << 32 | 0x7ff0000000000000U | (bits & 0x7fffffU) << 29);
}

/// A not-a-number whose payload lies in bits that a float lacks stays one.
inline float narrowed(double value) {
    if (!std::isnan(value)) {
        return static_cast<float>(value);
    }
    const auto bits = std::bit_cast<std::uint64_t>(value);
    auto payload = static_cast<std::uint32_t>(bits >> 29 & 0x7fffffU);
    payload = payload == 0 ? 0x400000U : payload;
    return std::bit_cast<float>(static_cast<std::uint32_t>(bits >> 32 & 0x80000000U) | 0x7f800000U | payload);
}

/// Whether a 32-bit integer gives back the same bits: integral, small enough, and not the negative zero.
inline bool isIntegral(double value) {
    return value >= std::numeric_limits<std::int32_t>::min() && value <= std::numeric_limits<std::int32_t>::max() &&
           std::bit_cast<std::uint64_t>(static_cast<double>(static_cast<std::int32_t>(value))) ==
               std::bit_cast<std::uint64_t>(value);
}

}  // namespace tavrel
