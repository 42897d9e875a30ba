#include "app/picklistwindow.h"

#include "base/texts.h"
#include "desktop/alerts.h"
#include "desktop/preferences.h"
#include "desktop/ui/keptframe.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

namespace tavrel {

PickListModel::PickListModel(PickLists& lists, PickList list, QObject* parent)
    : QAbstractListModel(parent), lists_(lists), list_(list) {
    connect(&lists, &PickLists::changed, this, [this](PickList changed) {
        if (changed == list_) {
            beginResetModel();
            endResetModel();
        }
    });
}

int PickListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lists_[list_].size());
}

QVariant PickListModel::data(const QModelIndex& index, int role) const {
    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    return isText ? QVariant(lists_[list_].value(index.row())) : QVariant();
}

PickListEditor::PickListEditor(Desktop& desktop, const EditedList& description, QWidget* parent)
    : QWidget(parent),
      desktop_(desktop),
      description_(description),
      field_(new QLineEdit(this)),
      tableView_(new QListView(this)),
      totalField_(new QLabel(this)) {
    const QString title = text(description.title);
    auto* heading = new QLabel(title, this);
    heading->setBuddy(tableView_);
    auto* addButton = new QPushButton(text("Main", "Add entry"), this);
    auto* deleteButton = new QPushButton(text("Main", "Delete entries"), this);

    field_->setObjectName(QLatin1StringView(description.field));
    tableView_->setObjectName(QLatin1StringView(description.tableView));
    totalField_->setObjectName(QLatin1StringView(description.totalField));
    addButton->setObjectName(QLatin1StringView(description.addAction));
    deleteButton->setObjectName(QLatin1StringView(description.deleteAction));
    field_->setPlaceholderText(text("Main", "New entry"));
    field_->setAccessibleName(title + QStringLiteral(": ") + field_->placeholderText());
    tableView_->setAccessibleName(title);

    tableView_->setModel(new PickListModel(desktop.pickLists, description.list, tableView_));
    tableView_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tableView_->setAlternatingRowColors(true);
    tableView_->setUniformItemSizes(true);
    tableView_->setMinimumSize(260, 220);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(heading, 0, 0, 1, 2);
    layout->addWidget(field_, 1, 0);
    layout->addWidget(addButton, 1, 1);
    layout->addWidget(tableView_, 2, 0, 1, 2);
    layout->addWidget(totalField_, 3, 0);
    layout->addWidget(deleteButton, 3, 1);

    connect(addButton, &QPushButton::clicked, this, &PickListEditor::add);
    connect(field_, &QLineEdit::returnPressed, this, &PickListEditor::add);
    connect(deleteButton, &QPushButton::clicked, this, &PickListEditor::deleteSelection);
    auto* deleteKey = new QShortcut(QKeySequence::Delete, tableView_);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &PickListEditor::deleteSelection);
    connect(tableView_->model(), &QAbstractItemModel::modelReset, this, &PickListEditor::showTotal);
    showTotal();
}

void PickListEditor::add() {
    desktop_.pickLists.append(description_.list, field_->text());
    desktop_.pickLists.sort(description_.list);
    store();
    field_->clear();
}

void PickListEditor::deleteSelection() {
    if (!tableView_->selectionModel()->hasSelection()) {
        return;
    }
    desktop_.alerts.beep();
    if (desktop_.alerts.ask(text("Main", "Erase selection"), {QStringLiteral("OK"), text("Main", "Cancel")}) == 0) {
        // Taken after the question: a form that changed the list meanwhile has undone the selection.
        QList<int> rows;
        for (const QModelIndex& index : tableView_->selectionModel()->selectedRows()) {
            rows.append(index.row());
        }
        desktop_.pickLists.remove(description_.list, rows);
        tableView_->clearSelection();
        store();
    }
    field_->clear();
}

void PickListEditor::store() {
    desktop_.pickLists.store(description_.list, QString::fromLatin1(description_.storedUnder));
    desktop_.preferences.synchronize(desktop_.alerts);
}

void PickListEditor::showTotal() {
    totalField_->setText(textWith("Carnet", "Entries", tableView_->model()->rowCount()));
}

PickListWindow::PickListWindow(Desktop& desktop, const PickListEditorDescription& description) {
    setObjectName(QLatin1StringView(description.controller));
    setWindowTitle(text(description.first.title));
    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(16);
    layout->addWidget(new PickListEditor(desktop, description.first, this));
    if (description.second) {
        layout->addWidget(new PickListEditor(desktop, *description.second, this));
    }
    new QShortcut(QKeySequence::Close, this, [this] { close(); });
    new QShortcut(Qt::Key_Escape, this, [this] { close(); });
    new KeptFrame(*this, desktop.preferences, QString::fromLatin1(description.layout));
}

}  // namespace tavrel
