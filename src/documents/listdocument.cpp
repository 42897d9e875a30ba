#include "documents/listdocument.h"

#include "archive/recordarchive.h"

#include <QUndoCommand>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tavrel {

namespace {

using Place = RecordList::const_iterator;

/// Where two lists differ: what lies between their like beginnings and their like ends.
struct Difference {
    Place first, lastBefore, firstAfter, lastAfter;
};

Difference differenceOf(const RecordList& before, const RecordList& after) {
    const auto ends = std::mismatch(before.crbegin(), before.crend(), after.crbegin(), after.crend());
    const Place lastBefore = ends.first.base();
    const Place lastAfter = ends.second.base();
    const auto firsts = std::mismatch(before.cbegin(), lastBefore, after.cbegin(), lastAfter);
    return {firsts.first, lastBefore, firsts.second, lastAfter};
}

}  // namespace

class ListDocument::Step : public QUndoCommand {
public:
    Step(ListDocument& document, const QString& name, RecordList after)
        : QUndoCommand(name),
          document_(document),
          stepList_(document.stepList_),
          sorted_(stepList_ ? document.list_ : nullptr) {
        const RecordList& before = *document.list_;
        const Difference difference = differenceOf(before, after);
        place_ = difference.first - before.cbegin();
        taken_.assign(difference.first, difference.lastBefore);
        put_.assign(difference.firstAfter, difference.lastAfter);
        pushed_ = std::make_shared<const RecordList>(std::move(after));
    }

    void undo() override {
        const SharedList before = sorted_ ? sorted_ : exchanged(*document_.listOfSteps(), put_, taken_);
        document_.stepList_ = stepList_;
        restore(before, put_, taken_);
    }

    void redo() override {
        if (const SharedList after = std::exchange(pushed_, nullptr)) {
            document_.stepList_.reset();
            document_.show(after);
            return;
        }
        const SharedList after = exchanged(sorted_ ? *sorted_ : *document_.listOfSteps(), taken_, put_);
        document_.stepList_.reset();
        restore(after, taken_, put_);
    }

private:
    SharedList exchanged(const RecordList& list, const RecordList& old, const RecordList& replacement) const {
        const auto place = list.begin() + place_;
        RecordList result;
        result.reserve(list.size() - old.size() + replacement.size());
        result.insert(result.end(), list.begin(), place);
        result.insert(result.end(), replacement.begin(), replacement.end());
        result.insert(result.end(), place + static_cast<std::ptrdiff_t>(old.size()), list.end());
        return std::make_shared<const RecordList>(std::move(result));
    }

    void restore(const SharedList& list, const RecordList& old, const RecordList& replacement) {
        document_.exchange_ = {&old, &replacement};
        document_.show(list);
        document_.exchange_ = {};
        Q_EMIT document_.listRestored();
    }

    ListDocument& document_;
    SharedList stepList_;  ///< of the document before the step
    SharedList sorted_;    ///< the list before the step, where that is not what the steps make of it
    SharedList pushed_;    ///< the list after the step, until that is shown for the first time
    std::ptrdiff_t place_ = 0;
    RecordList taken_;
    RecordList put_;
};

ListDocument::ListDocument(Desktop& desktop, const RecordLayout& layout) : Document(desktop), layout_(layout) {
    connect(&undoStack(), &QUndoStack::indexChanged, this, [this] {
        if (undoStack().count() == 0) {
            stepList_.reset();
        }
    });
}

void ListDocument::changeList(const QString& step, RecordList list) {
    undoStack().push(new Step(*this, step, std::move(list)));
}

void ListDocument::replaceList(RecordList list) {
    if (undoStack().count() > 0 && !stepList_) {
        stepList_ = list_;
    }
    show(std::make_shared<const RecordList>(std::move(list)));
}

RecordPointer ListDocument::successorOf(const RecordPointer& record) const {
    const auto& [old, replacement] = exchange_;
    if (!old || old->size() != replacement->size()) {
        return nullptr;
    }
    const auto found = std::find(old->begin(), old->end(), record);
    return found == old->end() ? nullptr : (*replacement)[static_cast<std::size_t>(found - old->begin())];
}

void ListDocument::show(SharedList list) {
    const SharedList before = std::exchange(list_, std::move(list));
    const Difference difference = differenceOf(*before, *list_);
    Q_EMIT listChanged({static_cast<int>(difference.first - before->cbegin()),
                        static_cast<int>(difference.lastBefore - difference.first),
                        static_cast<int>(difference.lastAfter - difference.firstAfter)});
    selectRows(selectedRows());
}

void ListDocument::selectRows(QList<int> rows) {
    rows.removeIf([this](int row) { return row < 0 || row >= count(); });
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    // Element by element: comparing two empty lists as such looks at a null pointer.
    if (std::equal(rows.begin(), rows.end(), selectedRows_.begin(), selectedRows_.end())) {
        return;
    }
    selectedRows_ = std::move(rows);
    Q_EMIT selectionChanged();
}

QByteArray ListDocument::archive() const {
    return writeRecords(*list_, layout_);
}

bool ListDocument::isNewer(QByteArrayView contents) const {
    return recordVersionOf(contents) > layout_.version;
}

/// The records never change, so another thread may read them while the list goes on to be another one.
std::function<QByteArray()> ListDocument::contentsLater() const {
    return [list = list_, &layout = layout_] { return writeRecords(*list, layout); };
}

Expected<RecordList> ListDocument::unarchive(QByteArrayView data) const {
    return readRecords(data, layout_, progress()).map([](auto&& file) { return std::move(file.records); });
}

}  // namespace tavrel
