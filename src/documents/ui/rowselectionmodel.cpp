#include "documents/ui/rowselectionmodel.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <iterator>

namespace tavrel {

namespace {

/// Beyond so many ranges of rows, painting and changing a selection would slow down.
constexpr int mostRanges = 500;

QList<int> combine(const QList<int>& rows, const QList<int>& gesture, QItemSelectionModel::SelectionFlags operation) {
    QList<int> result;
    const auto add = std::back_inserter(result);
    if (operation & QItemSelectionModel::Select) {
        std::set_union(rows.begin(), rows.end(), gesture.begin(), gesture.end(), add);
    } else if (operation & QItemSelectionModel::Deselect) {
        std::set_difference(rows.begin(), rows.end(), gesture.begin(), gesture.end(), add);
    } else if (operation & QItemSelectionModel::Toggle) {
        std::set_symmetric_difference(rows.begin(), rows.end(), gesture.begin(), gesture.end(), add);
    } else {
        result = rows;
    }
    return result;
}

}  // namespace

RowSelectionModel::RowSelectionModel(QAbstractItemModel* model, ListDocument& document, const ShownRecords& shown,
                                     QObject* parent)
    : QItemSelectionModel(model, parent), document_(document), shown_(shown) {
    connect(model, &QAbstractItemModel::modelReset, this, &RowSelectionModel::mirror);
    connect(model, &QAbstractItemModel::rowsInserted, this, &RowSelectionModel::mirror);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &RowSelectionModel::mirror);
    connect(model, &QAbstractItemModel::dataChanged, this, &RowSelectionModel::mirror);  // of other records now
    connect(&document, &ListDocument::listChanged, this, &RowSelectionModel::mirror);
    connect(&document, &ListDocument::selectionChanged, this, &RowSelectionModel::mirror);
    mirror();
}

bool RowSelectionModel::isRowSelected(int row) const {
    const QList<int>& rows = document_.selectedRows();
    return std::binary_search(rows.begin(), rows.end(), shown_.recordOf(row));
}

QList<int> RowSelectionModel::recordsOf(const QItemSelection& selection) const {
    QList<int> records;
    for (const auto& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            records.append(shown_.recordOf(row));
        }
    }
    std::sort(records.begin(), records.end());
    records.erase(std::unique(records.begin(), records.end()), records.end());
    return records;
}

QList<int> RowSelectionModel::selectedRowsShown() const {
    QList<int> rows;
    for (const int record : document_.selectedRows()) {
        if (const int row = shown_.rowOf(record); row >= 0) {
            rows.append(row);
        }
    }
    return rows;
}

void RowSelectionModel::markSelected(QStyleOptionViewItem& option, const QModelIndex& index) const {
    option.state.setFlag(QStyle::State_Selected, isRowSelected(index.row()));
}

void RowSelectionModel::select(const QItemSelection& selection, SelectionFlags command) {
    if (mirroring_) {
        QItemSelectionModel::select(selection, command);
        return;
    }
    if (command == NoUpdate || refused_) {
        return;
    }
    if (document_.selectedRows() != combined_) {  // the document selected something itself since the last gesture
        settled_ = document_.selectedRows();
        gesture_.clear();
    }
    if (command & Clear) {
        settled_.clear();
        gesture_.clear();
    }
    if (!(command & Current)) {
        settled_ = combine(settled_, gesture_, operation_);
        gesture_.clear();
    }
    if (command & (Select | Deselect | Toggle)) {
        operation_ = command & (Select | Deselect | Toggle);
        gesture_ = recordsOf(selection);
    }
    combined_ = combine(settled_, gesture_, operation_);

    const QScopedValueRollback answering(answering_, true);
    if (!choose_) {
        document_.selectRows(combined_);
    } else if (!choose_(combined_)) {
        settled_ = document_.selectedRows();
        combined_ = settled_;
        gesture_.clear();
        refused_ = true;
        mirror();
    }
}

void RowSelectionModel::setCurrentIndex(const QModelIndex& index, SelectionFlags command) {
    const QPersistentModelIndex before = currentIndex();
    QItemSelectionModel::setCurrentIndex(index, command);
    if (refused_) {
        QItemSelectionModel::setCurrentIndex(before, NoUpdate);
    }
}

void RowSelectionModel::reset() {
    // The model's rows are read again; the document keeps its selection, which mirror() brings back.
    const QScopedValueRollback mirroring(mirroring_, true);
    QItemSelectionModel::reset();
}

void RowSelectionModel::mirror() {
    const int lastRow = model()->rowCount() - 1;
    const int lastColumn = model()->columnCount() - 1;
    QItemSelection ranges;
    const QList<int> rows = selectedRowsShown();
    for (qsizetype first = 0; first < rows.size() && rows[first] <= lastRow;) {
        qsizetype last = first;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1 && rows[last + 1] <= lastRow) {
            ++last;
        }
        if (ranges.size() == mostRanges) {
            ranges.clear();
            ranges.append(
                QItemSelectionRange(model()->index(rows.front(), 0), model()->index(rows.front(), lastColumn)));
            break;
        }
        ranges.append(QItemSelectionRange(model()->index(rows[first], 0), model()->index(rows[last], lastColumn)));
        first = last + 1;
    }
    {
        const QScopedValueRollback mirroring(mirroring_, true);
        QItemSelectionModel::select(ranges, ClearAndSelect);
    }
    if (!answering_ || refused_) {
        makeCurrent(shown_.rowOf(document_.selectedRow()));
    }
}

void RowSelectionModel::makeCurrent(int row) {
    // The arrow keys go on from the selection; where the user already stands in it nothing moves.
    const bool outside =
        row >= 0 && row < model()->rowCount() && !(currentIndex().isValid() && isRowSelected(currentIndex().row()));
    if (outside) {
        const QScopedValueRollback mirroring(mirroring_, true);
        QItemSelectionModel::setCurrentIndex(model()->index(row, std::max(0, currentIndex().column())), NoUpdate);
    }
}

}  // namespace tavrel
