#pragma once

#include "platform/document.h"
#include "platform/recordarchive.h"

#include <QList>
#include <QUndoCommand>

#include <algorithm>
#include <memory>
#include <vector>

namespace tavrel {

/// A document that holds an ordered list of records: what its windows need to know whatever the record. The selection
/// belongs to the document; windows mirror it.
class ListDocumentBase : public Document {
    Q_OBJECT

public:
    using Document::Document;

    virtual int count() const = 0;

    /// Rows in ascending order.
    const QList<int>& selectedRows() const { return selectedRows_; }
    /// The last selected row; -1 when none is.
    int selectedRow() const { return selectedRows_.isEmpty() ? -1 : selectedRows_.back(); }
    /// Selects exactly these rows; rows outside the list are left out.
    void selectRows(QList<int> rows);
    void deselectAll() { selectRows({}); }

Q_SIGNALS:
    /// The list is another one, or in another order.
    void listChanged();
    /// Undo or redo brought the list back; what shows a record reads it again.
    void listRestored();
    void selectionChanged();
    /// A row is to be scrolled into view.
    void rowRevealed(int row);

private:
    QList<int> selectedRows_;
};

/// Holds records as shared, immutable values: a change replaces a record, never edits one in place. Every change of the
/// list goes through changeList, which records one named undo step; a step keeps two lists of pointers.
template <class Record>
class ListDocument : public ListDocumentBase {
public:
    using Pointer = std::shared_ptr<const Record>;
    using List = std::vector<Pointer>;

    using ListDocumentBase::ListDocumentBase;

    const List& records() const { return *list_; }
    int count() const override { return static_cast<int>(list_->size()); }
    /// The record at a row; null outside the list.
    Pointer recordAt(int row) const {
        return row >= 0 && row < count() ? (*list_)[static_cast<std::size_t>(row)] : nullptr;
    }

    /// Makes the list another one as a named undo step, which marks the document changed.
    void changeList(const QString& step, List list) {
        undoStack().push(new Step(*this, step, std::make_shared<const List>(std::move(list))));
    }

    /// Makes the list another one without an undo step or a change mark (loading, sorting).
    void replaceList(List list) { show(std::make_shared<const List>(std::move(list))); }

protected:
    Expected<QByteArray> archive() const { return writeRecords<Record>(*list_, Record::layout()); }

    Expected<List> unarchive(QByteArrayView data) const {
        return readRecords<Record>(data, Record::layout(), progress()).map([](auto&& file) {
            return std::move(file.records);
        });
    }

private:
    class Step : public QUndoCommand {
    public:
        Step(ListDocument& document, const QString& name, std::shared_ptr<const List> after)
            : QUndoCommand(name), document_(document), before_(document.list_), after_(std::move(after)) {}

        void undo() override { restore(before_); }
        void redo() override {
            if (pushed_) {
                restore(after_);
            } else {
                pushed_ = true;
                document_.show(after_);
            }
        }

    private:
        void restore(const std::shared_ptr<const List>& list) {
            document_.show(list);
            Q_EMIT document_.listRestored();
        }

        bool pushed_ = false;
        ListDocument& document_;
        std::shared_ptr<const List> before_;
        std::shared_ptr<const List> after_;
    };

    void show(std::shared_ptr<const List> list) {
        list_ = std::move(list);
        Q_EMIT listChanged();
        selectRows(selectedRows());
    }

    std::shared_ptr<const List> list_ = std::make_shared<const List>();
};

}  // namespace tavrel
