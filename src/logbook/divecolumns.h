#pragma once

#include "forms/control.h"

#include <array>

namespace tavrel {

/// A column of the logbook table: the dive field it shows, the preference that shows it, and whether it is on at first.
struct DiveColumn {
    const char* field;
    const char* visibilityKey;
    Title title;
    bool shownAtFirst = true;
};

/// The columns in their order. The wreck column's key is spelled with an underscore.
inline constexpr std::array<DiveColumn, 15> diveColumns{{
    {"noPlongee", "column numero", {"Carnet", "Column number"}},
    {"date", "column date", {"Carnet", "Column date"}},
    {"lieu", "column lieu", {"Carnet", "Column place"}},
    {"site", "column site", {"Carnet", "Column site"}},
    {"heure", "column heure", {"Carnet", "Column time of day"}},
    {"profondeur", "column profondeur", {"Carnet", "Column depth"}},
    {"temps", "column temps", {"Carnet", "Column dive time"}},
    {"tempEau", "column temp eau", {"Carnet", "Column water"}},
    {"deco", "column deco", {"Carnet", "Column decompression"}},
    {"coeff", "column coeff", {"Carnet", "Column tide"}},
    {"visibilite", "column visibilite", {"Carnet", "Column visibility"}},
    {"epaves", "column_epave", {"Carnet", "Column wreck"}},
    {"inoubliable", "column inoubliable", {"Carnet", "Column rating"}},
    {"gaz", "column gaz", {"Carnet", "Column gas"}},
    {"rebreather", "column scaph", {"Carnet", "Column apparatus"}, false},
}};

}  // namespace tavrel
