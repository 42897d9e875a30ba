#pragma once

#include "base/failure.h"
#include "base/progress.h"
#include "dives/plongee.h"

#include <QByteArray>
#include <QStringList>

#include <array>
#include <string_view>

namespace tavrel {

/// A column of the dive list that older text exports write: its heading, and the field of a dive.
struct ListColumnName {
    std::string_view heading;
    std::string_view field;
};
inline constexpr std::array<ListColumnName, 20> listColumns{{
    {"Dive #", "noPlongee"},
    {"Date", "date"},
    {"Location", "lieu"},
    {"Site", "site"},
    {"Country", "pays"},
    {"Tide coeff", "coeff"},
    {"Surface time", "surface"},
    {"Start time", "heure"},
    {"Depth", "profondeur"},
    {"Dive time", "temps"},
    {"Pressure in", "pressionDepart"},
    {"Pressure out", "pressionFin"},
    {"O2 mix", "o2Mix"},
    {"He mix", "heMix"},
    {"Weather", "meteo"},
    {"Current", "courant"},
    {"Visibility", "visibilite"},
    {"Water temp.", "tempEau"},
    {"Air temp.", "tempAir"},
    {"Buddies", "partenaires"},
}};

/// The fields that a table of dives may have columns for, in archive order.
QStringList csvFields();
/// The item of such a field; null for a name that is none.
const Item* csvItem(const QString& field);

/// The dives as a table in UTF-8: a heading of field names, a line for each dive, quoted as RFC 4180 says, days and
/// times as ISO 8601 writes them, numbers with a point, series as numbers with blanks between. All fields without a
/// choice of columns. Fails for a column that dives do not have, and when the progress cancels.
Expected<QByteArray> writeCsv(const RecordList& dives, const QStringList& columns = {}, const Progress& progress = {});

}  // namespace tavrel
