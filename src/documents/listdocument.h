#pragma once

#include "archive/recordarchive.h"
#include "documents/document.h"

#include <QList>
#include <QUndoCommand>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
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
/// list goes through changeList, which records one named undo step; a step keeps only what it took out of the list and
/// what it put in, so that many small steps in a long list stay small.
template <class Record>
class ListDocument : public ListDocumentBase {
public:
    using Pointer = std::shared_ptr<const Record>;
    using List = std::vector<Pointer>;

    explicit ListDocument(Desktop& desktop) : ListDocumentBase(desktop) {
        connect(&undoStack(), &QUndoStack::indexChanged, this, [this] {
            if (undoStack().count() == 0) {
                stepList_.reset();
            }
        });
    }

    const List& records() const { return *list_; }
    int count() const override { return static_cast<int>(list_->size()); }
    /// The record at a row; null outside the list.
    Pointer recordAt(int row) const {
        return row >= 0 && row < count() ? (*list_)[static_cast<std::size_t>(row)] : nullptr;
    }

    /// Makes the list another one as a named undo step, which marks the document changed.
    void changeList(const QString& step, List list) { undoStack().push(new Step(*this, step, std::move(list))); }

    /// Makes the list another one without an undo step or a change mark (loading, sorting).
    void replaceList(List list) {
        if (undoStack().count() > 0 && !stepList_) {
            stepList_ = list_;
        }
        show(std::make_shared<const List>(std::move(list)));
    }

protected:
    Expected<QByteArray> archive() const { return writeRecords<Record>(*list_, Record::layout()); }

    Expected<List> unarchive(QByteArrayView data) const {
        return readRecords<Record>(data, Record::layout(), progress()).map([](auto&& file) {
            return std::move(file.records);
        });
    }

private:
    using SharedList = std::shared_ptr<const List>;

    class Step : public QUndoCommand {
    public:
        Step(ListDocument& document, const QString& name, List after)
            : QUndoCommand(name),
              document_(document),
              stepList_(document.stepList_),
              sorted_(stepList_ ? document.list_ : nullptr) {
            const List& before = *document.list_;
            const auto [lastBefore, lastAfter] = differingEnds(before, after);
            const auto first = std::mismatch(before.cbegin(), lastBefore, after.cbegin(), lastAfter);
            place_ = first.first - before.cbegin();
            taken_.assign(first.first, lastBefore);
            put_.assign(first.second, lastAfter);
            pushed_ = std::make_shared<const List>(std::move(after));
        }

        void undo() override {
            const SharedList before = sorted_ ? sorted_ : exchanged(*document_.listOfSteps(), put_, taken_);
            document_.stepList_ = stepList_;
            restore(before);
        }

        void redo() override {
            if (const SharedList after = std::exchange(pushed_, nullptr)) {
                document_.stepList_.reset();
                document_.show(after);
                return;
            }
            const SharedList after = exchanged(sorted_ ? *sorted_ : *document_.listOfSteps(), taken_, put_);
            document_.stepList_.reset();
            restore(after);
        }

    private:
        using Place = typename List::const_iterator;

        static std::pair<Place, Place> differingEnds(const List& before, const List& after) {
            const auto ends = std::mismatch(before.crbegin(), before.crend(), after.crbegin(), after.crend());
            return {ends.first.base(), ends.second.base()};
        }

        SharedList exchanged(const List& list, const List& old, const List& replacement) const {
            const auto place = list.begin() + place_;
            List result;
            result.reserve(list.size() - old.size() + replacement.size());
            result.insert(result.end(), list.begin(), place);
            result.insert(result.end(), replacement.begin(), replacement.end());
            result.insert(result.end(), place + static_cast<std::ptrdiff_t>(old.size()), list.end());
            return std::make_shared<const List>(std::move(result));
        }

        void restore(const SharedList& list) {
            document_.show(list);
            Q_EMIT document_.listRestored();
        }

        ListDocument& document_;
        SharedList stepList_;  ///< of the document before the step
        SharedList sorted_;    ///< the list before the step, where that is not what the steps make of it
        SharedList pushed_;    ///< the list after the step, until that is shown for the first time
        std::ptrdiff_t place_ = 0;
        List taken_;
        List put_;
    };

    /// The list as the steps make it.
    const SharedList& listOfSteps() const { return stepList_ ? stepList_ : list_; }

    void show(SharedList list) {
        list_ = std::move(list);
        Q_EMIT listChanged();
        selectRows(selectedRows());
    }

    SharedList list_ = std::make_shared<const List>();
    SharedList stepList_;  ///< the list as the steps make it, where it was replaced since (sorted, loaded)
};

}  // namespace tavrel
