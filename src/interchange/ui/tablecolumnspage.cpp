#include "interchange/ui/tablecolumnspage.h"

#include "base/languageorder.h"
#include "base/texts.h"
#include "forms/ui/wheelguard.h"
#include "interchange/lossreport.h"
#include "interchange/standard/csvtext.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tavrel {

namespace {

enum Column { heading, example, field, columnCount };

/// The fields by their titles in the order of the alphabet.
std::vector<std::pair<QString, QString>> fieldsByTitle() {
    std::vector<std::pair<QString, QString>> titled;
    for (const QString& each : csvFields()) {
        titled.emplace_back(fieldTitle(each), each);
    }
    std::sort(titled.begin(), titled.end(),
              [order = languageOrder()](const auto& one, const auto& other) { return order(one.first, other.first); });
    return titled;
}

}  // namespace

TableColumnsPage::TableColumnsPage(QWidget* parent)
    : QWidget(parent),
      table_(new QTableWidget(0, columnCount)),
      hint_(new QLabel(text("Interchange", "Say the date"))) {
    table_->setObjectName(QStringLiteral("tableColumns"));
    table_->setAccessibleName(text("Interchange", "Columns of table"));
    table_->setHorizontalHeaderLabels({text("Interchange", "Column heading"), text("Interchange", "Column example"),
                                       text("Interchange", "Column field")});
    table_->verticalHeader()->hide();
    table_->setSelectionMode(QAbstractItemView::NoSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    hint_->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(hint_);
    layout->addWidget(table_, 1);
}

void TableColumnsPage::showColumns(const std::vector<TableColumn>& columns) {
    hint_->setVisible(!holdsDay(columns));
    if (!fields_.empty()) {
        return;
    }
    table_->setRowCount(static_cast<int>(columns.size()));
    const auto fields = fieldsByTitle();
    for (const TableColumn& column : columns) {
        addRow(column, fields);
    }
    table_->resizeColumnsToContents();
    table_->horizontalHeader()->setStretchLastSection(true);
}

void TableColumnsPage::addRow(const TableColumn& column, const std::vector<std::pair<QString, QString>>& fields) {
    const int row = static_cast<int>(headings_.size());
    auto* choice = new QComboBox;
    choice->addItem(text("Interchange", "Column left out"), QString());
    for (const auto& [title, key] : fields) {
        choice->addItem(title, key);
    }
    choice->setCurrentIndex(std::max(0, choice->findData(column.field)));
    choice->setAccessibleName(column.heading);
    // Turning the wheel is to scroll the table.
    guardAgainstWheel(choice);
    connect(choice, &QComboBox::currentIndexChanged, this, &TableColumnsPage::chosenChanged);
    table_->setItem(row, heading, new QTableWidgetItem(column.heading));
    table_->setItem(row, example, new QTableWidgetItem(column.example));
    table_->setCellWidget(row, field, choice);
    headings_.push_back(column.heading);
    fields_.push_back(choice);
}

TableColumns TableColumnsPage::chosen() const {
    TableColumns columns;
    for (std::size_t row = 0; row < headings_.size(); ++row) {
        columns[headings_[row]] = fields_[row]->currentData().toString();
    }
    return columns;
}

}  // namespace tavrel
