#pragma once

namespace tavrel {

/// How the numbers of series are written.
enum class SeriesNumbers {
    shared,   ///< a number that stood before as a reference to it
    literal,  ///< every number as an object of its own, as other writers may do
};

/// The way that the numbers of series take, in and out. Records and bytes are the same on both, except that the fast
/// one shares only the first million or so of numbers that differ.
enum class SeriesPath {
    fast,   ///< many at once
    plain,  ///< one by one, as every other object
};

}  // namespace tavrel
