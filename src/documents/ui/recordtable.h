#pragma once

#include "base/progress.h"
#include "documents/listdocument.h"

#include <QTableView>

class QLabel;

namespace tavrel {

class RowSelectionModel;

/// The table of a list document: whole rows of one height, the selection that of the document, columns that the user
/// moves, and cells that can be read on light and dark palettes. Painting costs what the visible rows cost.
class RecordTable : public QTableView {
    Q_OBJECT

public:
    /// The model's rows are the document's records, and it resets itself when their list changes.
    RecordTable(QAbstractItemModel* model, ListDocumentBase& document, QWidget* parent);

    /// What stands in the table while it has no rows.
    void setPlaceholder(const QString& text);
    /// Scrolls to the row, whatever columns are hidden.
    void reveal(int row);
    /// The words of the selected rows' cells: visible columns in the order shown, a tab between two, a line per row.
    /// Null when it was cancelled.
    QString selectionAsText(const Progress& progress = {}) const;

Q_SIGNALS:
    /// A row was double-clicked, or Return was pressed on it.
    void opened(int row);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void fitRows();
    void updatePlaceholder();

    ListDocumentBase& document_;
    RowSelectionModel* selection_ = nullptr;
    QLabel* placeholder_;
};

/// The colour made lighter until it can be read on a dark background (a contrast of 4.5 to 1, by the definitions of
/// contrast and relative luminance of WCAG 2.1); on a light background the colour as it is.
QColor readableOn(const QColor& background, const QColor& color);

}  // namespace tavrel
