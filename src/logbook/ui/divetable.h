#pragma once

#include "desktop/desktop.h"
#include "documents/ui/recordtable.h"
#include "logbook/carnet.h"
#include "logbook/ui/logbooktablemodel.h"

class QMenu;

namespace tavrel {

/// The table of a logbook: the columns that the preferences show, sorted by a click on a column's header, chosen in the
/// menu of the header. Widths and order of the columns are remembered.
class DiveTable : public RecordTable {
    Q_OBJECT

public:
    DiveTable(Carnet& carnet, Desktop& desktop, QWidget* parent = nullptr);
    ~DiveTable() override;

    /// Shows and hides every column as its preference says.
    void displayColumnsInTableView();
    /// Shows or hides the column of a field. A column that comes back stands at its former place among those present.
    void setColumn(const QString& field, bool visible);

    /// The columns to show, as a menu.
    QMenu* columnsMenu() const { return columnsMenu_; }

protected:
    void hideEvent(QHideEvent* event) override;

private:
    DiveTable(Carnet& carnet, Desktop& desktop, LogbookTableModel* model, QWidget* parent);
    void fitColumns();
    void buildColumnsMenu();
    void sortBy(int column);
    void rememberColumns();

    Carnet& carnet_;
    Desktop& desktop_;
    LogbookTableModel* model_;
    QMenu* columnsMenu_;
};

}  // namespace tavrel
