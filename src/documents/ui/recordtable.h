#pragma once

#include "base/foldedtext.h"
#include "base/progress.h"
#include "documents/listdocument.h"
#include "documents/ui/shownrecords.h"

#include <QTableView>

#include <functional>

class QLabel;

namespace tavrel {

class CellDelegate;
class RowSelectionModel;

/// Selects rows on behalf of the user; answers whether that came about.
using RowChooser = std::function<bool(const QList<int>& rows)>;

/// The parts of a cell's text that are to stand out.
using CellMarks = std::function<QList<TextRange>(const QModelIndex& cell, const QString& text)>;

/// The table of a list document: whole rows of one height, the selection that of the document, columns that the user
/// moves, and cells that can be read on light and dark palettes. Painting costs what the visible rows cost.
class RecordTable : public QTableView {
    Q_OBJECT

public:
    /// The model's rows show those of the document's records, and it follows their list.
    RecordTable(QAbstractItemModel* model, ListDocument& document, const ShownRecords& shown, QWidget* parent);

    /// Asked whenever the user selects, in place of the document, which selects anything.
    void setChooser(RowChooser choose);
    /// What stands in the table while it has no rows.
    void setPlaceholder(const QString& text);
    void selectAll() override;
    void setMarks(CellMarks marks);
    /// Scrolls to the row of a record, whatever columns are hidden.
    void reveal(int record);
    /// The words of the selected rows' cells: visible columns in the order shown, a tab between two, a line per row.
    /// Null when it was cancelled.
    QString selectionAsText(const Progress& progress = {}) const;

Q_SIGNALS:
    /// A selected row was double-clicked, or Return was pressed.
    void opened();

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void fitRows();
    void updatePlaceholder();

    ListDocument& document_;
    const ShownRecords& shown_;
    RowSelectionModel* selection_ = nullptr;
    CellDelegate* cells_ = nullptr;
    bool rowsGo_ = false;  ///< rows are being taken out
    QLabel* placeholder_;
};

}  // namespace tavrel
