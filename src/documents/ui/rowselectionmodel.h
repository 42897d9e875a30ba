#pragma once

#include "documents/listdocument.h"
#include "documents/ui/shownrecords.h"

#include <QItemSelectionModel>
#include <QStyleOptionViewItem>

#include <functional>
#include <utility>

namespace tavrel {

/// The selection of a table whose rows show a document's records. The document holds the selection: what the user
/// selects goes there, and what the document selects shows here.
///
/// Views search a selection range by range for every cell, and compare two selections range by range with each other.
/// So this model holds the document's rows only while they make up few ranges; the cells ask isRowSelected(), which is
/// fast for any selection.
class RowSelectionModel : public QItemSelectionModel {
    Q_OBJECT

public:
    /// The model's rows show those records; construct after what resets the model when the list changes.
    RowSelectionModel(QAbstractItemModel* model, ListDocument& document, const ShownRecords& shown, QObject* parent);

    bool isRowSelected(int row) const;
    /// Marks a cell's option as selected when its row is; for a delegate's initStyleOption().
    void markSelected(QStyleOptionViewItem& option, const QModelIndex& index) const;

    /// Selects on behalf of the user; where it answers no, everything stays selected as it was.
    void setChooser(std::function<bool(const QList<int>& rows)> choose) { choose_ = std::move(choose); }

    /// While one lives the user does one thing. Views select more than once on one key; after a no they are not heard
    /// again.
    class OneDoing {
    public:
        explicit OneDoing(RowSelectionModel& model) : model_(model) { model_.refused_ = false; }
        ~OneDoing() { model_.refused_ = false; }
        OneDoing(const OneDoing&) = delete;
        OneDoing& operator=(const OneDoing&) = delete;

    private:
        RowSelectionModel& model_;
    };

    /// Whether what changes now comes from the document.
    bool isMirroring() const { return mirroring_; }

    using QItemSelectionModel::select;
    void select(const QItemSelection& selection, QItemSelectionModel::SelectionFlags command) override;
    void setCurrentIndex(const QModelIndex& index, SelectionFlags command) override;
    void reset() override;

private:
    void mirror();
    void makeCurrent(int row);

    QList<int> recordsOf(const QItemSelection& selection) const;
    QList<int> selectedRowsShown() const;

    ListDocument& document_;
    const ShownRecords& shown_;
    std::function<bool(const QList<int>& rows)> choose_;
    /// What the user's present gesture (a drag, a growing Shift selection) started from, the rows it spans now, and
    /// what it does with them.
    QList<int> settled_;
    QList<int> gesture_;
    SelectionFlags operation_ = NoUpdate;
    QList<int> combined_;
    bool mirroring_ = false;
    bool answering_ = false;
    bool refused_ = false;
};

}  // namespace tavrel
