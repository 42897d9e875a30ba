#include "logbook/divecolumns.h"

#include "logbook/divecells.h"
#include "logbook/logbooksettings.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tavrel {

namespace {

/// The name of a field as a template argument.
struct FieldName {
    template <std::size_t size>
    consteval FieldName(const char (&name)[size]) {  // NOLINT(google-explicit-constructor): read as a plain text
        std::copy_n(name, size, text.begin());
    }

    std::array<char, 16> text{};
};

template <FieldName field>
void cellOf(const Plongee& dive, const DiveTableStyle& style, Cell& cell) {
    describeDiveCell(dive, field.text.data(), style, cell);
}

template <FieldName field>
constexpr Column column(const Setting<bool>& shown, Title title, int width, Qt::AlignmentFlag alignment = Qt::AlignLeft,
                        bool shownAtFirst = true) {
    return {.field = field.text.data(),
            .title = title,
            .width = width,
            .alignment = alignment,
            .cell = cellHook<cellOf<field>>,
            .shown = &shown,
            .shownAtFirst = shownAtFirst};
}

constexpr std::array columns{
    column<"noPlongee">(settings::columnNumero, {"Carnet", "Column number"}, 6, Qt::AlignRight),
    column<"date">(settings::columnDate, {"Carnet", "Column date"}, widthOfDays, Qt::AlignRight),
    column<"lieu">(settings::columnLieu, {"Carnet", "Column place"}, 15),
    column<"site">(settings::columnSite, {"Carnet", "Column site"}, 20),
    column<"heure">(settings::columnHeure, {"Carnet", "Column time of day"}, 10, Qt::AlignRight),
    column<"profondeur">(settings::columnProfondeur, {"Carnet", "Column depth"}, 8, Qt::AlignRight),
    column<"temps">(settings::columnTemps, {"Carnet", "Column dive time"}, 8, Qt::AlignRight),
    column<"tempEau">(settings::columnTempEau, {"Carnet", "Column water"}, 7, Qt::AlignRight),
    column<"deco">(settings::columnDeco, {"Carnet", "Column decompression"}, 14),
    column<"coeff">(settings::columnCoeff, {"Carnet", "Column tide"}, 10),
    column<"visibilite">(settings::columnVisibilite, {"Carnet", "Column visibility"}, 14),
    column<"epaves">(settings::columnEpave, {"Carnet", "Column wreck"}, 6, Qt::AlignHCenter),
    column<"inoubliable">(settings::columnInoubliable, {"Carnet", "Column rating"}, 6, Qt::AlignHCenter),
    column<"gaz">(settings::columnGaz, {"Carnet", "Column gas"}, 12),
    column<"rebreather">(settings::columnScaph, {"Carnet", "Column apparatus"}, 10, Qt::AlignLeft, false),
};

}  // namespace

std::span<const Column> diveColumns() {
    return columns;
}

}  // namespace tavrel
