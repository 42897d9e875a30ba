#include "drawing/ui/datatablewindow.h"

#include "base/texts.h"

#include <QAbstractTableModel>
#include <QAction>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

namespace tavrel {

class DataTableWindow::Model : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void setTable(const DataTable& table) {
        beginResetModel();
        table_ = table;
        endResetModel();
    }
    const DataTable& table() const { return table_; }

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : table_.rows; }
    int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(table_.columns.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        return role == Qt::DisplayRole ? QVariant(table_.cell(index.row(), index.column())) : QVariant();
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(table_.columns.value(section))
                                                                        : QVariant();
    }

private:
    DataTable table_;
};

DataTableWindow::DataTableWindow(QWidget* parent) : QDialog(parent), model_(new Model(this)), view_(new QTableView) {
    setObjectName(QStringLiteral("dataTableWindow"));
    view_->setModel(model_);
    view_->setSelectionBehavior(QAbstractItemView::SelectRows);
    view_->setAlternatingRowColors(true);
    view_->verticalHeader()->hide();
    view_->horizontalHeader()->setStretchLastSection(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton* copyButton = buttons->addButton(text("Main", "Menu copy"), QDialogButtonBox::ActionRole);
    connect(copyButton, &QPushButton::clicked, this, &DataTableWindow::copy);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* copyAction = new QAction(text("Main", "Menu copy"), view_);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(copyAction, &QAction::triggered, this, &DataTableWindow::copy);
    view_->addAction(copyAction);
    view_->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(view_);
    layout->addWidget(buttons);
    resize(720, 480);
}

void DataTableWindow::setTable(const DataTable& table, const QString& title) {
    model_->setTable(table);
    setWindowTitle(title);
    view_->setAccessibleName(title);
    view_->resizeColumnsToContents();
}

void DataTableWindow::copy() const {
    std::vector<int> rows;
    for (const QModelIndex& index : view_->selectionModel()->selectedRows()) {
        rows.push_back(index.row());
    }
    DataTable copied = model_->table();
    if (!rows.empty()) {
        std::sort(rows.begin(), rows.end());
        copied.rows = static_cast<int>(rows.size());
        copied.cell = [&](int row, int column) {
            return model_->table().cell(rows[static_cast<std::size_t>(row)], column);
        };
    }
    QGuiApplication::clipboard()->setText(copied.text());
}

}  // namespace tavrel
