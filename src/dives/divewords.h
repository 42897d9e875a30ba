#pragma once

#include "dives/divechoices.h"

#include <array>

// Words by code, in the order of the codes (dives/divecodes.h), for cards and text files. An empty one stands where the
// code says that nothing was given, or means nothing.
namespace tavrel::words {

/// The titles of a menu of the form by tag, from 0 to its size less one; the menu's item for nothing given stays empty.
template <std::size_t size, std::size_t count>
consteval std::array<Title, size> byTag(const Choice (&menu)[count], int notGiven = -1) {
    std::array<Title, size> titles{};
    for (const Choice& choice : menu) {
        if (choice.tag != notGiven) {
            titles[static_cast<std::size_t>(choice.tag)] = choice.title;
        }
    }
    return titles;
}

inline constexpr auto weather = byTag<8>(choices::weather, Weather::notGiven);
/// The same in every language, unlike the form's.
inline constexpr auto windSector = [] {
    auto titles = byTag<9>(choices::windSector, WindSector::notGiven);
    for (Title& title : titles) {
        title = literal(title.key);
    }
    return titles;
}();
inline constexpr auto current = byTag<7>(choices::current, Current::notGiven);
inline constexpr auto diveKind = byTag<15>(choices::diveKind);
inline constexpr auto tankMaterial = byTag<3>(choices::tankMaterial);

/// Other words than the form's.
inline constexpr std::array<Title, 9> visibility{Title("Carnet", "Excellent"),  Title("Carnet", "Very good"),
                                                 Title("Carnet", "Good"),       Title("Carnet", "Medium"),
                                                 Title("Carnet", "Bad"),        Title("Carnet", "Very bad"),
                                                 Title("Carnet", "Execrable"),  Title(),
                                                 Title("Carnet", "Exceptional")};

}  // namespace tavrel::words
