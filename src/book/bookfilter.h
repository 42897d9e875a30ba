#pragma once

#include "book/filterindex.h"
#include "documents/listdocument.h"

#include <QFutureWatcher>
#include <QObject>

#include <memory>
#include <vector>

namespace tavrel {

/// The filter of a book: while something is typed into it, the book's windows show only the records that match. A
/// record that comes or changes while it stands stays in sight until it is typed anew, and so does the one in the form
/// as long as it holds entries that are not stored; when many change at once they are filtered again. Selected are only
/// records that are shown. In long books the work is done on another thread; until it is done the rows stay as they
/// were.
class BookFilter : public QObject {
    Q_OBJECT

public:
    explicit BookFilter(BookBase& book);
    ~BookFilter() override;

    void setText(const QString& typed);
    const QString& text() const { return typed_; }
    /// Makes ready for what will be typed.
    void prepare();
    /// Whether records that match have still to be found.
    bool isBusy() const { return isBusy_; }

    /// Whether rows may be hidden.
    bool isActive() const { return isActive_; }
    /// The rows shown, ascending; only while it is active.
    const std::vector<int>& shownRows() const { return shown_; }
    bool isShown(int row) const;
    int shownCount() const;

    const std::vector<FilterField>& fields() const { return *sharedFields(); }
    /// Where the text of a column's cell matches.
    QList<TextRange> marksIn(const Column& column, const QString& text) const;

Q_SIGNALS:
    /// Other rows are shown, or other words are marked.
    void changed();
    void busyChanged();

private:
    struct Found {
        std::shared_ptr<const FilterIndex> index;
        std::vector<int> places;  ///< of its records
    };

    /// Found when they are asked for first.
    const FilterIndex::Fields& sharedFields() const;
    void followList(const ListChange& change);
    void refresh();
    void run();
    void finish();
    void take(const Found& found);
    void show();
    bool needsIndex() const { return !index_ || isStale_; }

    BookBase& book_;
    mutable FilterIndex::Fields fields_;
    QString typed_;
    RecordFilter filter_;  ///< of typed_
    RecordFilter marked_;  ///< the one that the rows shown belong to
    bool isActive_ = false;
    bool isStale_ = false;  ///< the index knows another list, or shows days and words as they were
    bool isBusy_ = false;
    bool isWaiting_ = false;  ///< what was typed since has still to be looked for
    std::shared_ptr<const FilterIndex> index_;
    std::vector<const Record*> known_;            ///< to the filter that stands, in the order of their addresses
    std::vector<const Record*> hidden_;           ///< those of them that it hides
    std::shared_ptr<const FilterIndex> knownIn_;  ///< which keeps them alive
    RecordPointer kept_;
    std::vector<int> shown_;
    QFutureWatcher<Found> watcher_;
};

}  // namespace tavrel
