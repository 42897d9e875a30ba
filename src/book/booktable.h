#pragma once

#include "book/book.h"

#include <memory>
#include <vector>

namespace tavrel {

/// The table of a book without widgets: the cell of every row and column. The window's model, the command line's lister
/// and the printer all read it.
class BookTable {
public:
    /// A column in the table, its field found.
    struct Placed {
        const Column* column;
        Field field;
    };

    explicit BookTable(const BookBase& book);

    const std::vector<Placed>& columns() const { return columns_; }
    int rowCount() const { return book_.count(); }
    /// The place of a column by its field; -1 when there is none.
    int columnOf(std::string_view field) const;
    /// Whether the user's settings show the column.
    bool isShown(int column) const;
    /// Everything that a cell shows, worked out anew: ask once per paint.
    Cell cell(int row, int column) const { return cell(book_.records(), row, column); }
    /// The same of a row of other records, of whom one may take its colour from those above.
    Cell cell(const RecordList& records, int row, int column) const;
    /// Words of a column's cells as a window shows them: numbers with the decimal sign of the language, texts as they
    /// are.
    QString onScreen(int column, const QString& words) const;
    /// Reads the settings and the day again.
    void reload();
    const TableStyle& style() const { return *style_; }

private:
    /// The cell without what it takes from the one above.
    Cell ownCell(const Record& record, int column) const;

    const BookBase& book_;
    std::vector<Placed> columns_;
    std::unique_ptr<TableStyle> style_;
};

/// The rows of the records in the order of a field, equal ones as they stand. Texts, numbers and days; other fields
/// leave the order as it is.
std::vector<int> sortedOrder(const RecordList& records, const Field& field, bool ascending);

}  // namespace tavrel
