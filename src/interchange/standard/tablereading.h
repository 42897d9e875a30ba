#pragma once

#include "base/progress.h"
#include "interchange/standard/founddive.h"

#include <QByteArrayView>
#include <QString>

#include <map>
#include <optional>
#include <vector>

namespace tavrel {

/// A column of a table of dives.
struct TableColumn {
    QString heading;
    QString field;    ///< the dive's field that it is taken for; empty for none
    QString example;  ///< its first cell that says something
};

/// The fields of columns by their headings, as the user chose them; an empty field leaves the column out.
using TableColumns = std::map<QString, QString>;

struct Table {
    std::vector<TableColumn> columns;
    FoundDives found;
};

/// Whether one of the columns holds the day of a dive, without which no dive is read.
bool holdsDay(const std::vector<TableColumn>& columns);

/// The dives of a text of cells with commas, semicolons or tabs between, below a line of headings. A heading means what
/// was chosen for it, or else names a field, or is one of the older text exports'; cells of other columns, and those
/// that are no value of their field, are named as lost. Numbers are in the logbook's units, US or metric, unless a cell
/// names another. Nothing for a text that is no such table: with fewer than two
/// headings, or neither a day nor lines of as many cells.
std::optional<Table> readTable(QByteArrayView bytes, const TableColumns& chosen = {}, const Progress& progress = {},
                               bool usUnits = false);

}  // namespace tavrel
