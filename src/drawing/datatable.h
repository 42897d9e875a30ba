#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace tavrel {

/// What a drawing shows, as a table of words: the drawing's alternative for those who cannot see it, and what is copied
/// of it. Cells are made when they are asked for.
struct DataTable {
    QStringList columns;
    int rows = 0;
    std::function<QString(int row, int column)> cell;

    bool isEmpty() const { return rows == 0; }
    /// Headings and all rows: cells parted by tabs, every line ended by "\n".
    QString text() const;
};

}  // namespace tavrel
