#pragma once

#include <cstdint>

namespace tavrel::streamtags {

// Heads of values from -128 to -111 are tags; these are the ones in use.
constexpr unsigned char shortInteger = 0x81;  ///< a 2-byte integer follows
constexpr unsigned char integer = 0x82;       ///< a 4-byte integer follows
constexpr unsigned char real = 0x83;          ///< a float or double follows
constexpr unsigned char literal = 0x84;       ///< a new string, object, class or C string follows
constexpr unsigned char nil = 0x85;
constexpr unsigned char end = 0x86;          ///< of an object
constexpr unsigned char longInteger = 0x87;  ///< an 8-byte integer follows

/// References count from here, and no smaller head is an integer.
constexpr std::int64_t firstReference = -110;

constexpr std::int64_t streamerVersion = 4;
constexpr char littleEndianSignature[] = "streamtyped";
constexpr char bigEndianSignature[] = "typedstream";

}  // namespace tavrel::streamtags
