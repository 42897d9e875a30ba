#include "app/picklistwindow.h"

#include "base/languageorder.h"
#include "base/texts.h"
#include "desktop/alerts.h"
#include "desktop/preferences.h"
#include "desktop/ui/fittedtoscreen.h"
#include "desktop/ui/keptframe.h"
#include "desktop/ui/windowkeys.h"
#include "forms/picklistentry.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>

namespace tavrel {

namespace {

/// How often an entry is used, in words.
constexpr int usageRole = Qt::UserRole;

/// Draws an entry with how often it is used at the end of its line.
class UsageDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        const bool selected = option.state & QStyle::State_Selected;
        QColor colour = option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
        colour.setAlphaF(usageOpacity);
        painter->save();
        painter->setPen(colour);
        painter->drawText(option.rect.adjusted(0, 0, -option.fontMetrics.averageCharWidth(), 0),
                          Qt::AlignRight | Qt::AlignVCenter, index.data(usageRole).toString());
        painter->restore();
    }

private:
    static constexpr float usageOpacity = 0.7F;
};

/// Sorts as the language of the texts does.
class SortedWords : public QSortFilterProxyModel {
public:
    explicit SortedWords(QObject* parent) : QSortFilterProxyModel(parent), order_(languageOrder()) { sort(0); }

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override {
        return order_(left.data().toString(), right.data().toString());
    }

private:
    QCollator order_;
};

}  // namespace

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
    const QString entry = lists_[list_].value(index.row());
    const int uses = usage_ ? usage_->value(entry) : 0;
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return entry;
        case usageRole:
            return usage_ ? textWith("Main", "Used so often", uses) : QString();
        case Qt::ToolTipRole:
            return usage_ ? entry + u'\n' + textWith("Main", "Used in records", uses) : entry;
        case Qt::AccessibleDescriptionRole:
            return usage_ ? textWith("Main", "Used in records", uses) : QString();
        default:
            return {};
    }
}

bool PickListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const QString entry = value.toString();
    if (role != Qt::EditRole || entry.isEmpty() || entry == lists_[list_].value(index.row())) {
        return false;
    }
    // The cell's editor is still at work and would go with the reset of the view.
    QMetaObject::invokeMethod(
        this,
        [this, row = index.row(), entry] {
            lists_.remove(list_, {row});
            lists_.append(list_, entry);
            Q_EMIT renamed();
        },
        Qt::QueuedConnection);
    return true;
}

Qt::ItemFlags PickListModel::flags(const QModelIndex& index) const {
    return QAbstractListModel::flags(index) | Qt::ItemIsEditable;
}

void PickListModel::countUsage(const PickListUsage& usage) {
    usage_ = usage ? usage(list_) : std::nullopt;
    if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
}

PickListEditor::PickListEditor(Desktop& desktop, const EditedList& description, const PickListUsage& usage,
                               QWidget* parent)
    : QWidget(parent),
      desktop_(desktop),
      description_(description),
      usage_(usage),
      model_(new PickListModel(desktop.pickLists, description.list, this)),
      sorted_(new SortedWords(this)),
      field_(new QLineEdit(this)),
      tableView_(new QListView(this)),
      totalField_(new QLabel(this)) {
    const QString title = text(description.title());
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

    sorted_->setSourceModel(model_);
    tableView_->setModel(sorted_);
    tableView_->setItemDelegate(new UsageDelegate(tableView_));
    tableView_->setToolTip(text("Main", "Rename entry hint"));
    tableView_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
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
    layout->addWidget(newWordsRow(), 4, 0, 1, 2);

    connect(addButton, &QPushButton::clicked, this, &PickListEditor::add);
    connect(field_, &QLineEdit::returnPressed, this, &PickListEditor::add);
    connect(deleteButton, &QPushButton::clicked, this, &PickListEditor::deleteSelection);
    auto* deleteKey = new QShortcut(QKeySequence::Delete, tableView_);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &PickListEditor::deleteSelection);
    connect(sorted_, &QAbstractItemModel::modelReset, this, &PickListEditor::showTotal);
    connect(model_, &PickListModel::renamed, this, [this] {
        desktop_.pickLists.sort(description_.list);
        store();
    });
    showTotal();
}

QWidget* PickListEditor::newWordsRow() {
    auto* row = new QWidget(this);
    auto* choice = new QComboBox(row);
    choice->setObjectName(QLatin1StringView(description_.field) + QStringLiteral("NewWords"));
    choice->addItem(text("Main", "New words ask"), static_cast<int>(NewWords::ask));
    choice->addItem(text("Main", "New words always"), static_cast<int>(NewWords::always));
    choice->addItem(text("Main", "New words never"), static_cast<int>(NewWords::never));
    choice->setCurrentIndex(choice->findData(static_cast<int>(newWordsOf(desktop_.preferences, description_.list))));
    auto* caption = new QLabel(text("Main", "New words"), row);
    caption->setBuddy(choice);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(choice);
    layout->addStretch();
    connect(choice, &QComboBox::activated, this, [this, choice] {
        setNewWords(desktop_.preferences, description_.list, static_cast<NewWords>(choice->currentData().toInt()));
        desktop_.preferences.synchronize(desktop_.alerts);
    });
    return row;
}

void PickListEditor::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    model_->countUsage(usage_);
}

void PickListEditor::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        model_->countUsage(usage_);
    }
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
            rows.append(sorted_->mapToSource(index).row());
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

PickListWindow::PickListWindow(Desktop& desktop, const PickListEditorDescription& description,
                               const PickListUsage& usage) {
    setObjectName(QLatin1StringView(description.controller));
    setWindowTitle(text(description.first.title()));
    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(16);
    layout->addWidget(new PickListEditor(desktop, description.first, usage, this));
    if (description.second) {
        layout->addWidget(new PickListEditor(desktop, *description.second, usage, this));
    }
    addCloseKeys(*this);
    fitToScreen(*this);
    new KeptFrame(*this, desktop.preferences, QString::fromLatin1(description.layout));
}

}  // namespace tavrel
