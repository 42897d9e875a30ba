#pragma once

#include "book/booktable.h"

#include <QList>
#include <QString>

#include <iosfwd>
#include <vector>

namespace tavrel {

/// A column of a listing: one of the document's table, or any other field of its records under its own name.
struct ListColumn {
    QString heading;
    Field field;
    int tableColumn = -1;
};

/// The columns of the document's table, shown in its window or not.
std::vector<ListColumn> allColumns(const BookTable& table);
/// The column of that field; a null field in it when the records have none.
ListColumn columnOf(const BookTable& table, const RecordLayout& layout, const QString& field);

/// Prints the records at the rows as a table of aligned columns under their headings, the row's number first.
void printRecords(const BookBase& book, const BookTable& table, const std::vector<ListColumn>& columns,
                  const QList<int>& rows, std::ostream& out);

}  // namespace tavrel
