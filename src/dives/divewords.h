#pragma once

#include "base/texts.h"

#include <array>

// Words by code, in the order of the codes (dives/divecodes.h), for cards and text files. An empty one stands where the
// code says that nothing was given, or means nothing.
namespace tavrel::words {

inline constexpr std::array<Title, 8> weather{
    Title("Carnet", "Clear"), Title("Carnet", "Cloudy"), Title("Carnet", "Foggy"),    Title("Carnet", "Rainy"),
    Title("Carnet", "Hail"),  Title("Carnet", "Snowy"),  Title("Carnet", "Thundery"), Title()};

/// The same in every language.
inline constexpr std::array<Title, 9> windSector{Title(),        literal("N"),   literal("N-E"),
                                                 literal("E"),   literal("S-E"), literal("S"),
                                                 literal("S-W"), literal("W"),   literal("N-W")};

inline constexpr std::array<Title, 7> current{Title("Carnet", "None"),
                                              Title("Carnet", "Weak"),
                                              Title("Carnet", "Moderate"),
                                              Title("Carnet", "Strong"),
                                              Title("Carnet", "Very strong"),
                                              Title("Carnet", "Violent"),
                                              Title()};

inline constexpr std::array<Title, 9> visibility{Title("Carnet", "Excellent"),  Title("Carnet", "Very good"),
                                                 Title("Carnet", "Good"),       Title("Carnet", "Medium"),
                                                 Title("Carnet", "Bad"),        Title("Carnet", "Very bad"),
                                                 Title("Carnet", "Execrable"),  Title(),
                                                 Title("Carnet", "Exceptional")};

inline constexpr std::array<Title, 15> diveKind{
    Title("Carnet", "Wreck"),      Title("Carnet", "Recreational"), Title(),
    Title("Carnet", "Photo dive"), Title("Carnet", "Tek"),          Title("Carnet", "Cave"),
    Title("Carnet", "Movies"),     Title("Carnet", "Work"),         Title("Carnet", "Other"),
    Title("Carnet", "Drift"),      Title("Carnet", "Under ice"),    Title("Carnet", "Training"),
    Title("Carnet", "Biology"),    Title("Carnet", "Quarry"),       Title("Carnet", "Recuperation")};

}  // namespace tavrel::words
