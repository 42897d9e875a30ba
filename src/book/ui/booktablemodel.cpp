#include "book/ui/booktablemodel.h"

#include "base/decimalsign.h"
#include "book/bookfilter.h"
#include "desktop/ui/icons.h"

#include <algorithm>

namespace tavrel {

BookTableModel::BookTableModel(BookBase& book, QObject* parent)
    : QAbstractTableModel(parent), book_(book), table_(book) {
    bold_.setBold(true);
    connect(&book, &ListDocument::listChanged, this, &BookTableModel::follow);
    connect(&book, &BookBase::tableReloadRequested, this, &BookTableModel::reload);
    connect(&book.filter(), &BookFilter::changed, this, &BookTableModel::reload);
}

int BookTableModel::recordOf(int row) const {
    return book_.filter().isActive() ? book_.filter().shownRows()[static_cast<std::size_t>(row)] : row;
}

int BookTableModel::rowOf(int record) const {
    if (!book_.filter().isActive()) {
        return record;
    }
    const std::vector<int>& shown = book_.filter().shownRows();
    const auto found = std::lower_bound(shown.begin(), shown.end(), record);
    return found != shown.end() && *found == record ? static_cast<int>(found - shown.begin()) : -1;
}

int BookTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : book_.filter().shownCount();
}

int BookTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.columns().size());
}

void BookTableModel::follow(const ListChange& change) {
    row_ = -1;
    if (book_.filter().isActive()) {
        return;  // the filter says itself what has become of its rows
    }
    if (change.removed != change.inserted) {
        reload();
    } else if (change.inserted > 0) {
        Q_EMIT dataChanged(index(change.first, 0), index(change.first + change.inserted - 1, columnCount() - 1));
    }
}

void BookTableModel::reload() {
    beginResetModel();
    table_.reload();
    row_ = -1;
    endResetModel();
}

const Cell& BookTableModel::cellAt(const QModelIndex& index) const {
    if (index.row() != row_ || index.column() != column_) {
        cell_ = table_.cell(recordOf(index.row()), index.column());
        row_ = index.row();
        column_ = index.column();
    }
    return cell_;
}

QString BookTableModel::onScreen(const QModelIndex& index, const QString& words) const {
    const BookTable::Placed& placed = table_.columns()[static_cast<std::size_t>(index.column())];
    const FieldKind kind = placed.field.isNull() ? FieldKind::real : placed.field.kind();
    const bool isNumber = kind == FieldKind::integer || kind == FieldKind::real ||
                          (kind == FieldKind::text && placed.column->alignment == Qt::AlignRight);
    return isNumber ? withDecimalSign(words) : words;
}

QVariant BookTableModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    switch (role) {
        case Qt::DisplayRole:
            return onScreen(index, cellAt(index).text);
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return onScreen(index, cellAt(index).inWords());
        case Qt::DecorationRole: {
            const QString& name = cellAt(index).image;
            return name.isEmpty() ? QVariant() : QVariant(iconNamed(name));
        }
        case Qt::TextAlignmentRole:
            return QVariant(table_.columns()[static_cast<std::size_t>(index.column())].column->alignment |
                            Qt::AlignVCenter);
        case Qt::FontRole:
            return cellAt(index).style.bold ? QVariant(bold_) : QVariant();
        case Qt::BackgroundRole: {
            const auto& background = cellAt(index).style.background;
            return background ? QVariant(*background) : QVariant();
        }
        case Qt::ForegroundRole: {
            const CellStyle& style = cellAt(index).style;
            if (style.background) {
                return style.text.value_or(QColor(Qt::black));
            }
            const bool isColoured = style.text && *style.text != QColor(Qt::black);
            return isColoured ? QVariant(*style.text) : QVariant();
        }
        default:
            return {};
    }
}

QVariant BookTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    const Column& column = *table_.columns()[static_cast<std::size_t>(section)].column;
    switch (role) {
        case Qt::DisplayRole:
            return column.title.text();
        case Qt::TextAlignmentRole:
            return QVariant(column.alignment | Qt::AlignVCenter);
        default:
            return {};
    }
}

}  // namespace tavrel
