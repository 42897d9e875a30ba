#pragma once

#include "forms/control.h"

#include <Qt>

#include <array>
#include <string_view>

namespace tavrel {

/// A column of the logbook table: the dive field it shows, the preference that shows it, its title, its width in
/// digits at first, and whether it is on at first.
struct DiveColumn {
    const char* field;
    const char* visibilityKey;
    Title title;
    int width;
    Qt::AlignmentFlag alignment = Qt::AlignLeft;
    bool showsImage = false;
    bool shownAtFirst = true;
};

/// The columns in their order. The wreck column's key is spelled with an underscore.
inline constexpr std::array<DiveColumn, 15> diveColumns{{
    {"noPlongee", "column numero", {"Carnet", "Column number"}, 6, Qt::AlignRight},
    {"date", "column date", {"Carnet", "Column date"}, 12, Qt::AlignRight},
    {"lieu", "column lieu", {"Carnet", "Column place"}, 15},
    {"site", "column site", {"Carnet", "Column site"}, 20},
    {"heure", "column heure", {"Carnet", "Column time of day"}, 10, Qt::AlignRight},
    {"profondeur", "column profondeur", {"Carnet", "Column depth"}, 8, Qt::AlignRight},
    {"temps", "column temps", {"Carnet", "Column dive time"}, 8, Qt::AlignRight},
    {"tempEau", "column temp eau", {"Carnet", "Column water"}, 7, Qt::AlignRight},
    {"deco", "column deco", {"Carnet", "Column decompression"}, 14},
    {"coeff", "column coeff", {"Carnet", "Column tide"}, 10},
    {"visibilite", "column visibilite", {"Carnet", "Column visibility"}, 14},
    {"epaves", "column_epave", {"Carnet", "Column wreck"}, 6, Qt::AlignHCenter, true},
    {"inoubliable", "column inoubliable", {"Carnet", "Column rating"}, 6, Qt::AlignHCenter, true},
    {"gaz", "column gaz", {"Carnet", "Column gas"}, 12},
    {"rebreather", "column scaph", {"Carnet", "Column apparatus"}, 10, Qt::AlignLeft, false, false},
}};

/// The place of a column among diveColumns by the field it shows; -1 when there is none.
constexpr int diveColumnOf(std::string_view field) {
    for (std::size_t column = 0; column < diveColumns.size(); ++column) {
        if (diveColumns[column].field == field) {
            return static_cast<int>(column);
        }
    }
    return -1;
}

}  // namespace tavrel
