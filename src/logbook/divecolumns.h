#pragma once

#include "forms/control.h"
#include "logbook/logbooksettings.h"

#include <Qt>

#include <array>
#include <string_view>

namespace tavrel {

/// A column of the logbook table: the dive field it shows, the setting that shows it, its title, its width in
/// digits at first, and whether it is on at first.
struct DiveColumn {
    const char* field;
    const Setting<bool>& shown;
    Title title;
    int width;
    Qt::AlignmentFlag alignment = Qt::AlignLeft;
    bool showsImage = false;
    bool shownAtFirst = true;
};

/// The columns in their order.
inline constexpr std::array<DiveColumn, 15> diveColumns{{
    {"noPlongee", settings::columnNumero, {"Carnet", "Column number"}, 6, Qt::AlignRight},
    {"date", settings::columnDate, {"Carnet", "Column date"}, 12, Qt::AlignRight},
    {"lieu", settings::columnLieu, {"Carnet", "Column place"}, 15},
    {"site", settings::columnSite, {"Carnet", "Column site"}, 20},
    {"heure", settings::columnHeure, {"Carnet", "Column time of day"}, 10, Qt::AlignRight},
    {"profondeur", settings::columnProfondeur, {"Carnet", "Column depth"}, 8, Qt::AlignRight},
    {"temps", settings::columnTemps, {"Carnet", "Column dive time"}, 8, Qt::AlignRight},
    {"tempEau", settings::columnTempEau, {"Carnet", "Column water"}, 7, Qt::AlignRight},
    {"deco", settings::columnDeco, {"Carnet", "Column decompression"}, 14},
    {"coeff", settings::columnCoeff, {"Carnet", "Column tide"}, 10},
    {"visibilite", settings::columnVisibilite, {"Carnet", "Column visibility"}, 14},
    {"epaves", settings::columnEpave, {"Carnet", "Column wreck"}, 6, Qt::AlignHCenter, true},
    {"inoubliable", settings::columnInoubliable, {"Carnet", "Column rating"}, 6, Qt::AlignHCenter, true},
    {"gaz", settings::columnGaz, {"Carnet", "Column gas"}, 12},
    {"rebreather", settings::columnScaph, {"Carnet", "Column apparatus"}, 10, Qt::AlignLeft, false, false},
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
