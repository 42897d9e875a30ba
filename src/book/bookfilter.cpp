#include "book/bookfilter.h"

#include "base/decimalsign.h"
#include "book/book.h"

#include <QPromise>
#include <QScopedValueRollback>
#include <QThreadPool>

#include <algorithm>
#include <functional>

namespace tavrel {

namespace {

// What a window does itself within a frame; longer work goes to another thread.
constexpr int mostRecordsAtOnce = 1000;           // to make an index of
constexpr std::size_t mostBytesAtOnce = 4 << 20;  // to search

bool contains(const std::vector<const Record*>& ordered, const Record* record) {
    return std::binary_search(ordered.begin(), ordered.end(), record, std::less<>());
}

}  // namespace

BookFilter::BookFilter(BookBase& book) : book_(book) {
    connect(&book, &ListDocument::listChanged, this, &BookFilter::followList);
    connect(&book, &BookBase::tableReloadRequested, this, [this] { isStale_ = true; });
    connect(&watcher_, &QFutureWatcherBase::finished, this, &BookFilter::finish);
}

BookFilter::~BookFilter() {
    watcher_.disconnect(this);
    watcher_.cancel();
    watcher_.waitForFinished();
}

const FilterIndex::Fields& BookFilter::sharedFields() const {
    if (!fields_) {
        fields_ = std::make_shared<const std::vector<FilterField>>(filterFieldsOf(book_));
    }
    return fields_;
}

bool BookFilter::isShown(int row) const {
    return !isActive_ || std::binary_search(shown_.begin(), shown_.end(), row);
}

int BookFilter::shownCount() const {
    return isActive_ ? static_cast<int>(shown_.size()) : book_.count();
}

QList<TextRange> BookFilter::marksIn(const Column& column, const QString& text) const {
    if (!isActive_) {
        return {};
    }
    const auto field = std::find_if(fields().begin(), fields().end(),
                                    [&column](const FilterField& each) { return each.column == &column; });
    QStringList marks = marked_.marksIn(static_cast<int>(field - fields().begin()));
    for (QString& mark : marks) {
        if (rangesOf({mark}, text).isEmpty()) {
            mark = withDecimalSign(mark);
        }
    }
    return marks.isEmpty() ? QList<TextRange>() : rangesOf(marks, text);
}

void BookFilter::setText(const QString& typed) {
    typed_ = typed;
    filter_ = RecordFilter(typed, fields());
    refresh();
}

void BookFilter::prepare() {
    if (needsIndex() && !isBusy()) {
        run();
    }
}

void BookFilter::refresh() {
    if (filter_.isEmpty()) {
        isWaiting_ = false;
        if (isActive_) {
            isActive_ = false;
            known_.clear();
            hidden_.clear();
            knownIn_.reset();
            kept_.reset();
            marked_ = {};
            show();
        }
        return;
    }
    if (isBusy()) {
        isWaiting_ = true;  // the latest text is asked for as soon as the work under way is done
        return;
    }
    run();
}

void BookFilter::run() {
    const bool makesIndex = needsIndex();
    const RecordList records = makesIndex ? book_.records() : RecordList();
    const std::shared_ptr<const TableStyle> style = book_.description().tableStyle(book_.desktop());
    isStale_ = false;
    const auto work = [index = index_, makesIndex, records, style, fields = sharedFields(),
                       filter = filter_](const FilterIndex::Cancelled& cancelled) {
        Found found;
        found.index = makesIndex ? std::make_shared<const FilterIndex>(records, fields, *style, cancelled) : index;
        found.places = found.index->matches(filter, cancelled);
        return found;
    };
    const bool isShort = makesIndex ? book_.count() <= mostRecordsAtOnce : index_->size() <= mostBytesAtOnce;
    if (isShort) {
        take(work({}));
        return;
    }
    isBusy_ = true;
    const auto promise = std::make_shared<QPromise<Found>>();
    promise->start();
    watcher_.setFuture(promise->future());
    QThreadPool::globalInstance()->start([promise, work] {
        Found found = work([&promise] { return promise->isCanceled(); });
        promise->addResult(std::move(found));
        promise->finish();
    });
    Q_EMIT busyChanged();
}

void BookFilter::finish() {
    isBusy_ = false;
    Q_EMIT busyChanged();
    if (watcher_.isCanceled() || watcher_.future().resultCount() == 0) {
        return;
    }
    const Found found = watcher_.result();
    if (std::exchange(isWaiting_, false)) {
        index_ = found.index;
        refresh();
        return;
    }
    take(found);
}

void BookFilter::take(const Found& found) {
    index_ = found.index;
    if (filter_.isEmpty()) {
        return;
    }
    marked_ = filter_;
    isActive_ = true;
    kept_ = book_.hasEntries() ? book_.recordAt(book_.shownRow()) : nullptr;
    known_.clear();
    hidden_.clear();
    knownIn_ = index_;
    auto match = found.places.begin();
    for (int place = 0; place < static_cast<int>(index_->records().size()); ++place) {
        const Record* record = index_->records()[static_cast<std::size_t>(place)].get();
        known_.push_back(record);
        if (match != found.places.end() && *match == place) {
            ++match;
        } else {
            hidden_.push_back(record);
        }
    }
    std::sort(known_.begin(), known_.end(), std::less<>());
    std::sort(hidden_.begin(), hidden_.end(), std::less<>());
    show();
}

void BookFilter::show() {
    shown_.clear();
    if (isActive_) {
        for (int row = 0; row < book_.count(); ++row) {
            const RecordPointer& record = book_.records()[static_cast<std::size_t>(row)];
            if (record == kept_ || !contains(hidden_, record.get())) {
                shown_.push_back(row);
            }
        }
    }
    Q_EMIT changed();
    if (isActive_) {
        QList<int> rows = book_.selectedRows();
        if (rows.removeIf([this](int row) { return !isShown(row); }) > 0) {
            book_.selectRows(rows);
        }
    }
}

void BookFilter::followList(const ListChange& change) {
    isStale_ = true;
    if (!isActive_) {
        return;
    }
    const auto first = book_.records().begin() + change.first;
    const auto changed = std::count_if(first, first + change.inserted,
                                       [this](const RecordPointer& record) { return !contains(known_, record.get()); });
    show();
    if (changed > 1) {
        refresh();
    }
}

}  // namespace tavrel
