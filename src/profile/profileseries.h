#pragma once

#include "profile/sampling.h"
#include "records/field.h"
#include "records/record.h"
#include "records/series.h"

#include <array>

namespace tavrel {

/// The seven parallel series of a dive's profile; element i of each is the same moment, i sampling intervals from the
/// start.
struct ProfileSeries : Record {
    Series profilProfondeur;  ///< depth, metres
    Series ASC_Flag;          ///< 1: ascent alarm
    Series SLOW_Flag;         ///< 1: slow down
    Series SURF_Flag;         ///< 1: at the surface
    Series CEIL_Flag;         ///< 1: ceiling violated
    Series GAZ_Flag;          ///< 0 none, 1 bottom gas, 2 to 7 gas of stop level 1 to 6
    Series PRESS_Data;        ///< tank pressure, bar

    /// Gives every series without elements its single zero: 0.0 for depth and pressure, the integer 0 for the flags.
    void profilArraysDefaultContent();
    /// Empties all seven and gives each its single zero.
    void reset();
    bool hasProfile() const { return profilProfondeur.size() >= 2; }
};

/// A series by its member, and whether it holds reals (depth, pressure) or integers (flags).
struct ProfileSeriesKind {
    Series ProfileSeries::*series;
    Field field;
    bool real;
};

/// The seven series in archive order.
inline constexpr std::array<ProfileSeriesKind, 7> profileSeriesKinds{{
    {&ProfileSeries::profilProfondeur, member<&ProfileSeries::profilProfondeur>, true},
    {&ProfileSeries::ASC_Flag, member<&ProfileSeries::ASC_Flag>, false},
    {&ProfileSeries::SLOW_Flag, member<&ProfileSeries::SLOW_Flag>, false},
    {&ProfileSeries::SURF_Flag, member<&ProfileSeries::SURF_Flag>, false},
    {&ProfileSeries::CEIL_Flag, member<&ProfileSeries::CEIL_Flag>, false},
    {&ProfileSeries::GAZ_Flag, member<&ProfileSeries::GAZ_Flag>, false},
    {&ProfileSeries::PRESS_Data, member<&ProfileSeries::PRESS_Data>, true},
}};

}  // namespace tavrel
