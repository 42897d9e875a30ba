#include "documents/ui/recordtable.h"

#include "desktop/ui/readablecolour.h"
#include "documents/ui/rowselectionmodel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QProxyStyle>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <utility>

namespace tavrel {

namespace {

/// The style of the program with some air between the columns, in cells and headers alike.
class AiryStyle : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        constexpr int air = 4;
        const int plain = QProxyStyle::pixelMetric(metric, option, widget);
        return metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin ? plain + air : plain;
    }
};

class CellDelegate : public QStyledItemDelegate {
public:
    CellDelegate(const RowSelectionModel& selection, QObject* parent)
        : QStyledItemDelegate(parent), selection_(selection) {}

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        selection_.markSelected(*option, index);
        if (option->state & QStyle::State_Selected) {
            option->state.setFlag(QStyle::State_HasFocus, false);  // the selected row is marked enough
        }
        // Colours with a background of their own are a pair and stay as they are. Others stand on the table's.
        if (option->backgroundBrush.style() == Qt::NoBrush) {
            option->palette.setColor(QPalette::Text, readableOn(option->palette.color(QPalette::Base),
                                                                option->palette.color(QPalette::Text)));
        }
        if (option->text.isEmpty() && !option->icon.isNull()) {
            option->decorationAlignment = Qt::AlignCenter;
            option->decorationSize.setWidth(option->rect.width());
        }
    }

private:
    const RowSelectionModel& selection_;
};

}  // namespace

RecordTable::RecordTable(QAbstractItemModel* tableModel, ListDocument& document, QWidget* parent)
    : QTableView(parent), document_(document), placeholder_(new QLabel(viewport())) {
    setModel(tableModel);
    const std::unique_ptr<QItemSelectionModel> unused(selectionModel());
    selection_ = new RowSelectionModel(tableModel, document, this);
    setSelectionModel(selection_);
    setItemDelegate(new CellDelegate(*selection_, this));

    auto* airy = new AiryStyle;
    airy->setParent(this);
    setStyle(airy);
    horizontalHeader()->setStyle(airy);

    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->hide();
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    fitRows();

    placeholder_->setAlignment(Qt::AlignCenter);
    placeholder_->setWordWrap(true);
    placeholder_->setForegroundRole(QPalette::PlaceholderText);
    placeholder_->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* middle = new QVBoxLayout(viewport());
    middle->addWidget(placeholder_);

    connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (selection_->isRowSelected(index.row())) {
            Q_EMIT opened(index.row());
        }
    });
    connect(tableModel, &QAbstractItemModel::modelReset, this, &RecordTable::updatePlaceholder);
    connect(&document, &ListDocument::selectionChanged, viewport(), qOverload<>(&QWidget::update));
    connect(&document, &ListDocument::rowRevealed, this, &RecordTable::reveal);
    updatePlaceholder();
}

void RecordTable::setChooser(RowChooser choose) {
    selection_->setChooser(std::move(choose));
}

void RecordTable::setPlaceholder(const QString& text) {
    placeholder_->setText(text);
}

void RecordTable::updatePlaceholder() {
    placeholder_->setVisible(model()->rowCount() == 0);
}

void RecordTable::reveal(int row) {
    const auto* header = horizontalHeader();
    for (int place = 0; place < header->count(); ++place) {
        const int column = header->logicalIndex(place);
        if (!header->isSectionHidden(column)) {
            const int sideways = horizontalOffset();
            scrollTo(model()->index(row, column));
            horizontalScrollBar()->setValue(sideways);
            return;
        }
    }
}

QString RecordTable::selectionAsText(const Progress& progress) const {
    const auto* header = horizontalHeader();
    QList<int> columns;
    for (int place = 0; place < header->count(); ++place) {
        if (const int column = header->logicalIndex(place); !header->isSectionHidden(column)) {
            columns.append(column);
        }
    }
    constexpr qsizetype rowsPerReport = 256;
    const QList<int> rows = document_.selectedRows();
    QString result;
    for (qsizetype place = 0; place < rows.size(); ++place) {
        if (progress && place % rowsPerReport == 0 &&
            !progress(static_cast<std::size_t>(place), static_cast<std::size_t>(rows.size()))) {
            return {};
        }
        const int row = rows[place];
        for (const int column : columns) {
            QString words = model()->index(row, column).data(Qt::AccessibleTextRole).toString();
            for (const QChar separator : {u'\t', u'\n', u'\r'}) {
                words.replace(separator, u' ');
            }
            result += words;
            result += column == columns.back() ? u'\n' : u'\t';
        }
    }
    return result;
}

QModelIndex RecordTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    // Rows are what one moves through: Home and End go to the first and the last one.
    const bool toFirst = action == MoveHome;
    if ((toFirst || action == MoveEnd) && model()->rowCount() > 0) {
        return model()->index(toFirst ? 0 : model()->rowCount() - 1, std::max(0, currentIndex().column()));
    }
    return QTableView::moveCursor(action, modifiers);
}

void RecordTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    // The table follows the keyboard; where the document selects, it says itself what is to be seen.
    setAutoScroll(!selection_ || !selection_->isMirroring());
    QTableView::currentChanged(current, previous);
    setAutoScroll(true);
}

void RecordTable::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && event->modifiers().testFlag(Qt::NoModifier)) {
        // The row that was current last is another's when none is selected.
        if (document_.selectedRow() >= 0) {
            Q_EMIT opened(document_.selectedRow());
        }
        return;
    }
    const RowSelectionModel::OneDoing key(*selection_);
    QTableView::keyPressEvent(event);
}

void RecordTable::mousePressEvent(QMouseEvent* event) {
    const RowSelectionModel::OneDoing press(*selection_);
    QTableView::mousePressEvent(event);
}

void RecordTable::selectAll() {
    const RowSelectionModel::OneDoing all(*selection_);
    QTableView::selectAll();
}

void RecordTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitRows();
    }
}

void RecordTable::fitRows() {
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + fontMetrics().height() / 2);
}

}  // namespace tavrel
