#pragma once

#include "book/booktable.h"
#include "documents/ui/shownrecords.h"

#include <QAbstractTableModel>
#include <QFont>

#include <vector>

namespace tavrel {

/// The records of a book that its filter shows as rows, every column of its description as a column. A cell is worked
/// out once while a view asks for its text, colours and font one after the other; nothing is kept per row.
class BookTableModel : public QAbstractTableModel, public ShownRecords {
    Q_OBJECT

public:
    explicit BookTableModel(BookBase& book, QObject* parent = nullptr);

    const BookTable& table() const { return table_; }

    int recordOf(int row) const override;
    int rowOf(int record) const override;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    /// Text, image, font and colours; a text that does not fit is in the tool tip. Colours are those of the data: where
    /// a cell has none, or is written in black on the table's own ground, there is no value.
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Reads the settings and the day again and shows everything anew.
    void reload();

private:
    /// Which rows differ from what is shown now: so many of them went and so many came.
    ListChange changeOfRows() const;
    void followList();
    void followFilter();
    void showRows();
    /// Takes rows in or out, as many as the change makes more or fewer, and shows the others of the change anew.
    void show(const ListChange& change);
    const Cell& cellAt(const QModelIndex& index) const;

    BookBase& book_;
    BookTable table_;
    ListDocument::SharedList records_;
    bool isFiltered_ = false;
    std::vector<int> rows_;  ///< the places of the records that the filter shows, while it is active
    QFont bold_;
    mutable Cell cell_;
    mutable int row_ = -1;  ///< of cell_; -1 when there is none
    mutable int column_ = -1;
};

}  // namespace tavrel
