#include "documents/ui/recordtable.h"

#include "desktop/ui/readablecolour.h"
#include "documents/ui/rowselectionmodel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QProxyStyle>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTextLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace tavrel {

namespace {

/// Behind what was searched for; black can be read on it, in light and dark windows alike.
const QColor markGround(0xff, 0xd5, 0x4a);

/// The style of the program with some air between the columns, in cells and headers alike.
class AiryStyle : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        constexpr int air = 4;
        const int plain = QProxyStyle::pixelMetric(metric, option, widget);
        return metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin ? plain + air : plain;
    }
};

}  // namespace

class CellDelegate : public QStyledItemDelegate {
public:
    CellDelegate(const RowSelectionModel& selection, QObject* parent)
        : QStyledItemDelegate(parent), selection_(selection) {}

    void setMarks(CellMarks marks) { marks_ = std::move(marks); }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        const QList<TextRange> marks = marks_ ? marks_(index, cell.text) : QList<TextRange>();
        const QString text = std::exchange(cell.text, marks.isEmpty() ? cell.text : QString());
        const QStyle& style = *cell.widget->style();
        style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
        if (!marks.isEmpty()) {
            cell.text = text;
            paintMarked(*painter, cell, style.subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget), marks);
        }
    }

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
    /// The text of a cell with a ground of their own behind its marked parts.
    static void paintMarked(QPainter& painter, const QStyleOptionViewItem& cell, const QRect& place,
                            const QList<TextRange>& marks) {
        const int margin = cell.widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, cell.widget) + 1;
        const QRect inside = place.adjusted(margin, 0, -margin, 0);
        const QString shown = cell.fontMetrics.elidedText(cell.text, cell.textElideMode, inside.width());
        const bool isSelected = cell.state & QStyle::State_Selected;
        const QColor plain = cell.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
        QList<QTextLayout::FormatRange> formats;
        for (const TextRange& mark : marks) {
            QTextCharFormat format;
            format.setBackground(markGround);
            format.setForeground(Qt::black);
            formats.append({static_cast<int>(mark.start),
                            static_cast<int>(std::min(mark.length, shown.size() - mark.start)), format});
        }
        formats.removeIf([](const QTextLayout::FormatRange& each) { return each.length <= 0; });
        QTextLayout layout(shown, cell.font);
        QTextOption line(cell.displayAlignment);
        line.setWrapMode(QTextOption::NoWrap);
        layout.setTextOption(line);
        layout.setFormats(formats);
        layout.beginLayout();
        QTextLine only = layout.createLine();
        only.setLineWidth(inside.width());
        layout.endLayout();
        painter.save();
        painter.setPen(plain);
        layout.draw(&painter, QPointF(inside.left(), inside.top() + std::floor((inside.height() - only.height()) / 2)));
        painter.restore();
    }

    const RowSelectionModel& selection_;
    CellMarks marks_;
};

RecordTable::RecordTable(QAbstractItemModel* tableModel, ListDocument& document, const ShownRecords& shown,
                         QWidget* parent)
    : QTableView(parent), document_(document), shown_(shown), placeholder_(new QLabel(viewport())) {
    setModel(tableModel);
    // The selection moves its current row when that goes; connected before it, the table knows why.
    connect(tableModel, &QAbstractItemModel::rowsAboutToBeRemoved, this, [this] { rowsGo_ = true; });
    const std::unique_ptr<QItemSelectionModel> unused(selectionModel());
    selection_ = new RowSelectionModel(tableModel, document, shown, this);
    setSelectionModel(selection_);
    cells_ = new CellDelegate(*selection_, this);
    setItemDelegate(cells_);

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
            Q_EMIT opened();
        }
    });
    connect(tableModel, &QAbstractItemModel::modelReset, this, &RecordTable::updatePlaceholder);
    connect(tableModel, &QAbstractItemModel::rowsInserted, this, &RecordTable::updatePlaceholder);
    connect(tableModel, &QAbstractItemModel::rowsRemoved, this, [this] {
        rowsGo_ = false;
        updatePlaceholder();
    });
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

void RecordTable::setMarks(CellMarks marks) {
    cells_->setMarks(std::move(marks));
}

void RecordTable::updatePlaceholder() {
    placeholder_->setVisible(model()->rowCount() == 0);
}

void RecordTable::reveal(int record) {
    const int row = shown_.rowOf(record);
    if (row < 0) {
        return;
    }
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
    const QList<int> records = document_.selectedRows();
    QString result;
    for (qsizetype place = 0; place < records.size(); ++place) {
        if (progress && place % rowsPerReport == 0 &&
            !progress(static_cast<std::size_t>(place), static_cast<std::size_t>(records.size()))) {
            return {};
        }
        const int row = shown_.rowOf(records[place]);
        if (row < 0) {
            continue;
        }
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
    setAutoScroll(!rowsGo_ && (!selection_ || !selection_->isMirroring()));
    QTableView::currentChanged(current, previous);
    setAutoScroll(true);
}

void RecordTable::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && event->modifiers().testFlag(Qt::NoModifier)) {
        // The row that was current last is another's when none is selected.
        if (document_.selectedRow() >= 0) {
            Q_EMIT opened();
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
