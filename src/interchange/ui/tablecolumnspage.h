#pragma once

#include "interchange/standard/tablereading.h"

#include <QWidget>

#include <utility>
#include <vector>

class QComboBox;
class QLabel;
class QTableWidget;

namespace tavrel {

/// What the columns of a table are taken for: each with an example of its cells and a choice among a dive's fields.
class TableColumnsPage : public QWidget {
    Q_OBJECT

public:
    explicit TableColumnsPage(QWidget* parent = nullptr);

    /// The columns of the file; shown once more, only whether the day is among them.
    void showColumns(const std::vector<TableColumn>& columns);
    /// The choices by the headings.
    TableColumns chosen() const;

Q_SIGNALS:
    /// The user chose a field for a column.
    void chosenChanged();

private:
    void addRow(const TableColumn& column, const std::vector<std::pair<QString, QString>>& fields);

    QTableWidget* table_;
    QLabel* hint_;
    std::vector<QString> headings_;
    std::vector<QComboBox*> fields_;
};

}  // namespace tavrel
