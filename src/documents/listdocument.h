#pragma once

#include "documents/document.h"
#include "records/recordlayout.h"

#include <QList>

#include <functional>
#include <memory>
#include <utility>

namespace tavrel {

/// What became of a list: from row first on, so many rows went and so many came in their place.
struct ListChange {
    int first = 0;
    int removed = 0;
    int inserted = 0;
};

/// A document that holds an ordered list of records of one class. They are shared, immutable values: a change replaces
/// a record, never edits one in place. Every change of the list goes through changeList, which records one named undo
/// step; a step keeps only what it took out of the list and what it put in, so that many small steps in a long list
/// stay small. The selection belongs to the document; windows mirror it.
class ListDocument : public Document {
    Q_OBJECT

public:
    ListDocument(Desktop& desktop, const RecordLayout& layout);

    const RecordLayout& layout() const { return layout_; }
    using SharedList = std::shared_ptr<const RecordList>;

    const RecordList& records() const { return *list_; }
    /// The same list, for whoever keeps it as it is now.
    const SharedList& sharedRecords() const { return list_; }
    int count() const { return static_cast<int>(list_->size()); }
    /// The record at a row; null outside the list.
    RecordPointer recordAt(int row) const {
        return row >= 0 && row < count() ? (*list_)[static_cast<std::size_t>(row)] : nullptr;
    }

    /// Makes the list another one as a named undo step, which marks the document changed.
    void changeList(const QString& step, RecordList list);
    /// Makes the list another one without an undo step or a change mark (loading, sorting).
    void replaceList(RecordList list);

    /// Rows in ascending order.
    const QList<int>& selectedRows() const { return selectedRows_; }
    /// The last selected row; -1 when none is.
    int selectedRow() const { return selectedRows_.isEmpty() ? -1 : selectedRows_.back(); }
    /// Selects exactly these rows; rows outside the list are left out.
    void selectRows(QList<int> rows);
    void deselectAll() { selectRows({}); }

Q_SIGNALS:
    /// The list is another one, or in another order.
    void listChanged(const tavrel::ListChange& change);
    /// Undo or redo brought the list back; what shows a record reads it again.
    void listRestored();
    void selectionChanged();
    /// A row is to be scrolled into view.
    void rowRevealed(int row);

protected:
    /// Whether the list changes because a step is undone or redone.
    bool isRestoring() const { return exchange_.first != nullptr; }
    /// What takes a record's place in the step that is undone or redone; null where nothing does.
    RecordPointer successorOf(const RecordPointer& record) const;
    QByteArray archive() const;
    Expected<RecordList> unarchive(QByteArrayView data) const;
    bool isNewer(QByteArrayView contents) const override;
    std::function<QByteArray()> contentsLater() const override;
    std::shared_ptr<const void> contentsVersion() const override { return list_; }
    int recordCount() const override { return count(); }

private:
    class Step;

    /// The list as the steps make it.
    const SharedList& listOfSteps() const { return stepList_ ? stepList_ : list_; }
    void show(SharedList list);

    const RecordLayout& layout_;
    QList<int> selectedRows_;
    SharedList list_ = std::make_shared<const RecordList>();
    SharedList stepList_;  ///< the list as the steps make it, where it was replaced since (sorted, loaded)
    /// What the step that is undone or redone takes out of the list, and what it puts in.
    std::pair<const RecordList*, const RecordList*> exchange_{};
};

}  // namespace tavrel
