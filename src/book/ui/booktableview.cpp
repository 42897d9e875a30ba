#include "book/ui/booktableview.h"

#include "book/bookfilter.h"
#include "desktop/preferences.h"

#include <QDate>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QHideEvent>
#include <QMenu>
#include <QMimeData>
#include <QStyle>

#include <algorithm>

namespace tavrel {

BookTableView::BookTableView(BookBase& book, QWidget* parent) : BookTableView(book, new BookTableModel(book), parent) {}

BookTableView::BookTableView(BookBase& book, BookTableModel* tableModel, QWidget* parent)
    : RecordTable(tableModel, book, *tableModel, parent), book_(book), model_(tableModel) {
    model_->setParent(this);
    setAccessibleName(book.description().words.tableName.text());
    fitColumns();
    if (const QByteArray state = book.desktop().preferences.windowState(columnsState()); !state.isEmpty()) {
        horizontalHeader()->restoreState(state);
    }
    // A day or a number at the far right of the window would stand away from its row.
    horizontalHeader()->setStretchLastSection(column(model_->columnCount() - 1).alignment == Qt::AlignLeft);
    horizontalHeader()->setSortIndicatorShown(false);
    buildColumnsMenu();
    displayColumnsInTableView();

    setMarks([this](const QModelIndex& cell, const QString& shown) {
        return book_.filter().marksIn(column(cell.column()), shown);
    });
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &BookTableView::sortBy);
    connect(&book, &BookBase::columnsRebuildRequested, this, [this] {
        displayColumnsInTableView();
        model_->reload();
    });
}

BookTableView::~BookTableView() {
    rememberColumns();
}

QString BookTableView::columnsState() const {
    return QLatin1StringView(book_.description().layoutName) + QStringLiteral(" columns");
}

void BookTableView::fitColumns() {
    const auto* header = horizontalHeader();
    const int character = fontMetrics().horizontalAdvance(u'0');
    // Words and the arrow of the sorted column stand beside each other.
    const int margin = header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
    const int arrow = header->sizeHint().height() / 2 + 2 * margin;
    const int days = roomForDays();
    for (int place = 0; place < model_->columnCount(); ++place) {
        const int digits = column(place).width;
        setColumnWidth(
            place, std::max(digits == widthOfDays ? days : character * digits, header->sectionSizeHint(place) + arrow));
    }
}

int BookTableView::roomForDays() const {
    const TableStyle& cells = model_->table().style();
    int longest = 0;
    for (int month = 1; month <= 12; ++month) {
        const QString day = cells.locale.toString(QDate(2000, month, 28), cells.dateFormat);
        longest = std::max(longest, fontMetrics().horizontalAdvance(day));
    }
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    return longest + 2 * margin + fontMetrics().averageCharWidth();
}

void BookTableView::buildColumnsMenu() {
    const auto columns = book_.description().columns;
    if (std::none_of(columns.begin(), columns.end(), [](const Column& each) { return each.shown; })) {
        return;
    }
    columnsMenu_ = new QMenu(text("Main", "Menu columns"), this);
    for (const Column& each : columns) {
        QAction* action = columnsMenu_->addAction(each.title.text());
        action->setObjectName(QLatin1StringView(each.field));
        action->setCheckable(true);
        action->setVisible(each.shown);
        connect(action, &QAction::triggered, this, [this, setting = each.shown](bool shown) {
            book_.desktop().preferences.set(*setting, shown);
            book_.desktop().notifications.post(Notification::updateColumnsTableView);
        });
    }
    horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(horizontalHeader(), &QWidget::customContextMenuRequested, this,
            [this](const QPoint& place) { columnsMenu_->popup(horizontalHeader()->mapToGlobal(place)); });
}

void BookTableView::displayColumnsInTableView() {
    if (!columnsMenu_) {
        return;
    }
    for (int place = 0; place < model_->columnCount(); ++place) {
        setColumn(QLatin1StringView(column(place).field), model_->table().isShown(place));
    }
    // Whoever hid the last column would have no header left to bring one back with.
    const auto actions = columnsMenu_->actions();
    const bool single =
        std::count_if(actions.begin(), actions.end(), [](auto* each) { return each->isChecked(); }) == 1;
    for (QAction* action : actions) {
        action->setEnabled(!single || !action->isChecked());
    }
}

void BookTableView::setColumn(const QString& field, bool visible) {
    const int place = columnOf(field.toStdString());
    if (place < 0) {
        return;
    }
    // A hidden section keeps its place in the header.
    setColumnHidden(place, !visible);
    if (columnsMenu_) {
        columnsMenu_->actions().at(place)->setChecked(visible);
    }
}

TablePart BookTableView::shownPart() const {
    TablePart part;
    part.isAsOnScreen = true;
    const double digit = QFontMetricsF(font()).horizontalAdvance(u'0');
    const QHeaderView& header = *horizontalHeader();
    for (int place = 0; place < header.count(); ++place) {
        if (const int column = header.logicalIndex(place); !header.isSectionHidden(column)) {
            part.columns.push_back({column, header.sectionSize(column) / digit});
        }
    }
    if (header.stretchLastSection() && !part.columns.empty()) {
        part.columns.back().width = 0;  // as wide as the window leaves it, which nobody asked for
    }
    const int rows = model_->rowCount();
    part.records.reserve(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) {
        part.records.push_back(book_.recordAt(model_->recordOf(row)));
    }
    return part;
}

void BookTableView::sortBy(int place) {
    book_.sortBy(QLatin1StringView(column(place).field));
    horizontalHeader()->setSortIndicatorShown(true);
    horizontalHeader()->setSortIndicator(place, book_.sortedAscending() ? Qt::AscendingOrder : Qt::DescendingOrder);
    reveal(std::max(0, book_.selectedRow()));
}

void BookTableView::rememberColumns() {
    book_.desktop().preferences.setWindowState(columnsState(), horizontalHeader()->saveState());
}

void BookTableView::hideEvent(QHideEvent* event) {
    RecordTable::hideEvent(event);
    if (!event->spontaneous()) {
        rememberColumns();
    }
}

void BookTableView::acceptRows(const QString& dataType) {
    rowType_ = dataType;
    setAcceptDrops(true);
}

void BookTableView::dragEnterEvent(QDragEnterEvent* event) {
    // Files go on to the window, which opens them.
    event->setAccepted(event->mimeData()->hasFormat(rowType_));
    if (event->isAccepted()) {
        qDebug("validate Drop 2");
    }
}

void BookTableView::dragMoveEvent(QDragMoveEvent* event) {
    // Above whatever row it is.
    event->setAccepted(event->mimeData()->hasFormat(rowType_));
}

void BookTableView::dropEvent(QDropEvent* event) {
    event->setAccepted(event->mimeData()->hasFormat(rowType_));
    if (event->isAccepted()) {
        qDebug("validate Drop 3");
        event->setDropAction(Qt::CopyAction);
        book_.duplicateLast();
    }
}

}  // namespace tavrel
