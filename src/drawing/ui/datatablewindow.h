#pragma once

#include "drawing/datatable.h"

#include <QDialog>

class QTableView;

namespace tavrel {

/// Shows a data table. Copying takes the selected rows, or all when none is selected.
class DataTableWindow : public QDialog {
    Q_OBJECT

public:
    explicit DataTableWindow(QWidget* parent = nullptr);

    void setTable(const DataTable& table, const QString& title);
    QTableView& table() { return *view_; }
    void copy() const;

private:
    class Model;

    Model* model_;
    QTableView* view_;
};

}  // namespace tavrel
