#include "book/ui/booktablemodel.h"

#include "book/bookfilter.h"
#include "desktop/ui/icons.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace tavrel {

BookTableModel::BookTableModel(BookBase& book, QObject* parent)
    : QAbstractTableModel(parent), book_(book), table_(book) {
    bold_.setBold(true);
    showRows();
    connect(&book, &ListDocument::listChanged, this, &BookTableModel::followList);
    connect(&book, &BookBase::tableReloadRequested, this, &BookTableModel::reload);
    connect(&book.filter(), &BookFilter::changed, this, &BookTableModel::followFilter);
}

int BookTableModel::recordOf(int row) const {
    return isFiltered_ ? rows_[static_cast<std::size_t>(row)] : row;
}

int BookTableModel::rowOf(int record) const {
    if (!isFiltered_) {
        return record;
    }
    const auto found = std::lower_bound(rows_.begin(), rows_.end(), record);
    return found != rows_.end() && *found == record ? static_cast<int>(found - rows_.begin()) : -1;
}

int BookTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(isFiltered_ ? rows_.size() : records_->size());
}

int BookTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.columns().size());
}

void BookTableModel::showRows() {
    records_ = book_.sharedRecords();
    isFiltered_ = book_.filter().isActive();
    rows_ = isFiltered_ ? book_.filter().shownRows() : std::vector<int>();
    row_ = -1;
}

ListChange BookTableModel::changeOfRows() const {
    const BookFilter& filter = book_.filter();
    const int before = rowCount();
    const int after = filter.shownCount();
    const auto isSame = [&](int old, int now) {
        const int place = filter.isActive() ? filter.shownRows()[static_cast<std::size_t>(now)] : now;
        return (*records_)[static_cast<std::size_t>(recordOf(old))] == book_.records()[static_cast<std::size_t>(place)];
    };
    const int shorter = std::min(before, after);
    int first = 0;
    while (first < shorter && isSame(first, first)) {
        ++first;
    }
    int last = 0;
    while (last < shorter - first && isSame(before - 1 - last, after - 1 - last)) {
        ++last;
    }
    return {first, before - first - last, after - first - last};
}

void BookTableModel::show(const ListChange& change) {
    const int exchanged = std::min(change.removed, change.inserted);
    const int more = change.inserted - change.removed;
    if (more != 0) {
        RecordList before;
        for (int row = change.first; row < change.first + exchanged; ++row) {
            before.push_back((*records_)[static_cast<std::size_t>(recordOf(row))]);
        }
        const int first = change.first + exchanged;
        more > 0 ? beginInsertRows({}, first, first + more - 1) : beginRemoveRows({}, first, first - more - 1);
        showRows();
        if (exchanged > 0) {  // while rows come or go, all others are as they were
            auto between = std::make_shared<RecordList>(*records_);
            for (std::size_t place = 0; place < before.size(); ++place) {
                const int record = recordOf(change.first + static_cast<int>(place));
                (*between)[static_cast<std::size_t>(record)] = before[place];
            }
            records_ = std::move(between);
        }
        more > 0 ? endInsertRows() : endRemoveRows();
    }
    showRows();
    if (exchanged > 0) {
        Q_EMIT dataChanged(index(change.first, 0), index(change.first + exchanged - 1, columnCount() - 1));
    }
}

void BookTableModel::followList() {
    if (book_.filter().isActive()) {
        return;  // the filter says itself what has become of its rows
    }
    show(changeOfRows());
}

void BookTableModel::followFilter() {
    show(changeOfRows());
    if (rowCount() > 0) {  // other words are marked in all of them
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

void BookTableModel::reload() {
    beginResetModel();
    table_.reload();
    showRows();
    endResetModel();
}

const Cell& BookTableModel::cellAt(const QModelIndex& index) const {
    if (index.row() != row_ || index.column() != column_) {
        cell_ = table_.cell(*records_, recordOf(index.row()), index.column());
        row_ = index.row();
        column_ = index.column();
    }
    return cell_;
}

QVariant BookTableModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    switch (role) {
        case Qt::DisplayRole:
            return table_.onScreen(index.column(), cellAt(index).text);
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return table_.onScreen(index.column(), cellAt(index).inWords());
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
