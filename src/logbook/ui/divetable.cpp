#include "logbook/ui/divetable.h"

#include "desktop/preferences.h"
#include "logbook/divecolumns.h"

#include <QHeaderView>
#include <QHideEvent>
#include <QMenu>

#include <algorithm>

namespace tavrel {

namespace {

const QString columnsState = QStringLiteral("logbook columns");

}  // namespace

DiveTable::DiveTable(Carnet& carnet, Desktop& desktop, QWidget* parent)
    : DiveTable(carnet, desktop, new LogbookTableModel(carnet, desktop.preferences, nullptr), parent) {}

DiveTable::DiveTable(Carnet& carnet, Desktop& desktop, LogbookTableModel* tableModel, QWidget* parent)
    : RecordTable(tableModel, carnet, parent),
      carnet_(carnet),
      desktop_(desktop),
      model_(tableModel),
      columnsMenu_(new QMenu(text("Main", "Menu columns"), this)) {
    model_->setParent(this);
    fitColumns();
    if (const QByteArray state = desktop.preferences.windowState(columnsState); !state.isEmpty()) {
        horizontalHeader()->restoreState(state);
    }
    horizontalHeader()->setSortIndicatorShown(false);
    buildColumnsMenu();
    displayColumnsInTableView();

    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &DiveTable::sortBy);
    horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(horizontalHeader(), &QWidget::customContextMenuRequested, this,
            [this](const QPoint& place) { columnsMenu_->popup(horizontalHeader()->mapToGlobal(place)); });
    connect(&carnet, &Carnet::columnsRebuildRequested, this, [this] {
        displayColumnsInTableView();
        model_->reload();
    });
}

DiveTable::~DiveTable() {
    rememberColumns();
}

void DiveTable::fitColumns() {
    const auto* header = horizontalHeader();
    const int character = fontMetrics().horizontalAdvance(u'0');
    for (std::size_t column = 0; column < diveColumns.size(); ++column) {
        const int section = static_cast<int>(column);
        setColumnWidth(section, std::max(character * diveColumns[column].width, header->sectionSizeHint(section)));
    }
}

void DiveTable::buildColumnsMenu() {
    for (const auto& column : diveColumns) {
        QAction* action = columnsMenu_->addAction(column.title.text());
        action->setObjectName(QString::fromLatin1(column.field));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, &column](bool shown) {
            desktop_.preferences.set(column.shown, shown);
            desktop_.notifications.post(Notification::updateColumnsTableView);
        });
    }
}

void DiveTable::displayColumnsInTableView() {
    for (const auto& column : diveColumns) {
        setColumn(QString::fromLatin1(column.field), desktop_.preferences.get(column.shown));
    }
    // Whoever hid the last column would have no header left to bring one back with.
    const auto actions = columnsMenu_->actions();
    const bool single =
        std::count_if(actions.begin(), actions.end(), [](auto* each) { return each->isChecked(); }) == 1;
    for (QAction* action : actions) {
        action->setEnabled(!single || !action->isChecked());
    }
}

void DiveTable::setColumn(const QString& field, bool visible) {
    const int column = diveColumnOf(field.toStdString());
    if (column < 0) {
        return;
    }
    // A hidden section keeps its place in the header.
    setColumnHidden(column, !visible);
    columnsMenu_->actions().at(column)->setChecked(visible);
}

void DiveTable::sortBy(int column) {
    const QString field = QString::fromLatin1(diveColumns[static_cast<std::size_t>(column)].field);
    carnet_.sortBy(field);
    horizontalHeader()->setSortIndicatorShown(true);
    horizontalHeader()->setSortIndicator(column, carnet_.sortedAscending() ? Qt::AscendingOrder : Qt::DescendingOrder);
    reveal(std::max(0, carnet_.selectedRow()));
}

void DiveTable::rememberColumns() {
    desktop_.preferences.setWindowState(columnsState, horizontalHeader()->saveState());
}

void DiveTable::hideEvent(QHideEvent* event) {
    RecordTable::hideEvent(event);
    if (!event->spontaneous()) {
        rememberColumns();
    }
}

}  // namespace tavrel
