#include "book/book.h"

#include "base/texts.h"
#include "book/bookfilter.h"
#include "book/booktable.h"
#include "desktop/alerts.h"

#include <algorithm>

namespace tavrel {

BookBase::BookBase(Desktop& desktop, const BookDescription& description)
    : ListDocument(desktop, description.layout()), description_(description), form_(description.makeForm(desktop)) {
    setType(description.kind.name.text());
    filter_ = std::make_unique<BookFilter>(*this);
    connect(filter_.get(), &BookFilter::changed, this, &BookBase::stateChanged);
    connect(form_.get(), &BookForm::userEdited, this, [this] {
        titleEditWindow();
        Q_EMIT stateChanged();
    });
    connect(form_.get(), &BookForm::userEdited, this, &Document::touched);
    connect(this, &ListDocument::selectionChanged, this, &BookBase::followSelection);
    connect(this, &ListDocument::listChanged, this, &BookBase::followShown);
    connect(this, &ListDocument::listChanged, this, &BookBase::stateChanged);
    connect(this, &ListDocument::listRestored, this, &BookBase::listIsRestored);
}

BookBase::~BookBase() = default;

void BookBase::listen(Notification name, std::function<void()> handler) {
    subscriptions_.push_back(desktop().notifications.subscribe(name, std::move(handler)));
}

Expected<QByteArray> BookBase::dataRepresentationOfType(const QString&) {
    return archive();
}

Expected<void> BookBase::loadDataRepresentation(QByteArrayView data, const QString& type) {
    const bool isOwnType = description_.typeCheck == TypeCheck::none || type == this->type();
    auto read = unarchive(data);
    if (!read && description_.olderFormat && isOwnType) {
        read = description_.olderFormat(data);
    }
    if (!read) {
        return tl::unexpected(read.error());
    }
    deselectAll();
    replaceList(std::move(*read));
    if (!isOwnType) {
        return failure(textWith("Main", "Unknown document type", type));
    }
    updateUI();
    const int row = shown_ ? shownRow_ : description_.opensOnFirstRecord ? 0 : count() - 1;
    selectLast(row, description_.opensOnFirstRecord);
    return {};
}

void BookBase::beginBlank() {
    blankFields();
    proposeNumber();
    form_->updateUI();
    form_->remember();
    titleEditWindow();
}

void BookBase::newRecord() {
    if (!leaveForm(Leaving::elsewhere)) {
        return;
    }
    beginBlank();
    Q_EMIT editWindowRequested();
}

void BookBase::addRecord() {
    RecordList list = records();
    list.push_back(form_->buildRecord());
    changeList(description_.words.undoAdd.text(), std::move(list));
    form_->remember();
    selectLast(count() - 1, false);
    beginBlank();
    updateUI();
}

void BookBase::putAt(int row, bool replacing) {
    if (row < 0) {
        desktop().alerts.beep();
        return;
    }
    const RecordPointer built = form_->buildRecord();
    RecordList list = records();
    const auto place = list.begin() + row;
    if (replacing) {
        *place = built;
    } else {
        list.insert(place, built);
    }
    changeList((replacing ? description_.words.undoUpdate : description_.words.undoInsert).text(), std::move(list));
    shown_ = built;
    shownRow_ = row;
    form_->remember();
    titleEditWindow();
    updateUI();
}

void BookBase::insertRecord() {
    putAt(selectedRow(), false);
}

void BookBase::updateRecord() {
    // An untouched form is stored over no record but the one that it shows.
    const bool isElsewhere = shown_ && !hasEntries() && shownRow_ != selectedRow();
    putAt(isElsewhere ? -1 : shown_ ? shownRow_ : selectedRow(), true);
}

void BookBase::deleteRecords() {
    if (selectedRow() < 0) {
        return;
    }
    desktop().alerts.beep();
    const QList<int> rows = selectedRows();
    const int doomed = static_cast<int>(rows.size());
    const QString question =
        doomed == 1 ? description_.words.eraseQuestion.text() : textWith(description_.words.eraseQuestions, doomed);
    if (desktop().alerts.ask(question, {QStringLiteral("OK"), text("Main", "Cancel")}) != 0) {
        return;
    }
    RecordList list;
    for (int row = 0; row < count(); ++row) {
        if (!std::binary_search(rows.begin(), rows.end(), row)) {
            list.push_back(recordAt(row));
        }
    }
    const bool typesAnother = hasEntries() && !std::binary_search(rows.begin(), rows.end(), shownRow_);
    deselectAll();
    changeList(description_.words.undoDelete.text(), std::move(list));
    if (!typesAnother) {
        beginBlank();
    }
    updateUI();
}

void BookBase::step(int direction) {
    const int row = selectedRow();
    if (row < 0) {
        desktop().alerts.beep();
        return;
    }
    if (!leaveForm(Leaving::stepping)) {
        return;
    }
    selectLast(rowBeside(direction), true);
    followSelection();
}

int BookBase::rowBeside(int direction) const {
    int row = selectedRow() + direction;
    while (row >= 0 && row < count() && !filter_->isShown(row)) {
        row += direction;
    }
    return row;
}

void BookBase::selectLast(int index, bool selected) {
    selectRows({index});
    if (index >= 0 && index < count()) {
        Q_EMIT rowRevealed(index);
    }
    if (!selected) {
        deselectAll();
    }
}

void BookBase::editWindow() {
    if (!formShowsSelectedRecord()) {
        if (!leaveForm(Leaving::elsewhere)) {
            return;
        }
        if (selectedRow() >= 0) {
            followSelection();
        } else {
            beginBlank();
        }
    }
    Q_EMIT editWindowRequested();
}

void BookBase::followSelection() {
    currentIndex_ = selectedRow();
    if (currentIndex_ >= 0 && !keepsForm_ && !hasEntries()) {
        load(currentIndex_);
    }
    Q_EMIT stateChanged();
}

void BookBase::followShown(const ListChange& change) {
    if (!shown_) {
        return;
    }
    const auto rowOf = [this](const RecordPointer& record) {
        const auto found = record ? std::find(records().begin(), records().end(), record) : records().end();
        return found == records().end() ? -1 : static_cast<int>(found - records().begin());
    };
    int row = shownRow_;
    if (row >= change.first + change.removed) {
        row += change.inserted - change.removed;
    }
    if (recordAt(row) != shown_) {
        const int held = rowOf(shown_);
        // A change made now leaves the order as it is; an undone one may bring back the order before a sort.
        const bool isInPlace = !isRestoring() && change.removed == change.inserted;
        row = held >= 0 ? held : isInPlace ? row : rowOf(successorOf(shown_));
    }
    const RecordPointer before = std::exchange(shown_, recordAt(row));
    shownRow_ = shown_ ? row : -1;
    if (shown_ == before || hasEntries()) {
        return;
    }
    if (shown_) {
        load(row);
    } else {
        beginBlank();
    }
}

void BookBase::listIsRestored() {
    // What is being typed outlasts an undo; so does a form for a new record.
    if (!hasEntries() && shown_) {
        followSelection();
        return;
    }
    if (shown_) {
        selectRows({shownRow_});
    }
    currentIndex_ = selectedRow();
    titleEditWindow();
    Q_EMIT stateChanged();
}

void BookBase::appendRecords(const QString& step, const RecordList& taken) {
    RecordList list = records();
    list.insert(list.end(), taken.begin(), taken.end());
    changeList(step, std::move(list));
}

void BookBase::duplicateLast() {
    if (count() == 0) {
        return;
    }
    RecordList list = records();
    const RecordPointer last = list.back();
    list.insert(list.end() - 1, last);
    replaceList(std::move(list));
}

std::optional<Entries> BookBase::askAboutEntries(const Title& question, const Title& keep) {
    if (asksAboutEntries_) {
        return std::nullopt;
    }
    asksAboutEntries_ = true;
    const int answer =
        desktop().alerts.ask(question.text(), {keep.text(), text("Main", "Discard"), text("Main", "Cancel")});
    asksAboutEntries_ = false;
    switch (answer) {
        case 0:
            return Entries::stored;
        case 1:
            return Entries::dropped;
        default:
            return std::nullopt;
    }
}

std::optional<Entries> BookBase::askAboutEntries(Leaving way) {
    if (!hasEntries()) {
        return Entries::none;
    }
    if (!shown_) {
        return askAboutEntries(description_.words.addQuestion, {"Main", "Add"});
    }
    if (way == Leaving::escaping || way == Leaving::elsewhere) {
        return askAboutEntries(description_.words.storeQuestion, {"Main", "Store"});
    }
    return Entries::stored;
}

void BookBase::settleEntries(Entries entries) {
    switch (entries) {
        case Entries::none:
            break;
        case Entries::stored:
            shown_ ? updateRecord() : addRecord();
            break;
        case Entries::dropped:
            shown_ ? editFields() : beginBlank();
            Q_EMIT touched();
            break;
    }
}

bool BookBase::leaveForm(Leaving way) {
    const auto entries = askAboutEntries(way);
    if (entries) {
        settleEntries(*entries);
    }
    return entries.has_value();
}

std::optional<UnstoredForm> BookBase::unstoredForm() const {
    if (!hasEntries()) {
        return std::nullopt;
    }
    return UnstoredForm{shownRow_, form_->entries(), form_->entriesBeside()};
}

void BookBase::showUnstored(const UnstoredForm& form) {
    if (form.row >= 0 && form.row < count()) {
        selectRows({form.row});
        followSelection();
    } else {
        deselectAll();
        beginBlank();
    }
    form_->enterAgain(form);
    Q_EMIT editWindowRequested();
}

bool BookBase::closeEditWindow(Leaving way) {
    if (!leaveForm(way)) {
        return false;
    }
    Q_EMIT editWindowClosed();
    return true;
}

bool BookBase::userSelects(const QList<int>& rows) {
    const auto last = std::max_element(rows.begin(), rows.end());
    const bool staysInForm = formShowsSelectedRecord() && last != rows.end() && *last == selectedRow();
    if (!staysInForm && !leaveForm(Leaving::elsewhere)) {
        return false;
    }
    keepsForm_ = staysInForm;
    selectRows(rows);
    keepsForm_ = false;
    // The selected row may be selected again while the form is cleared.
    if (selectedRow() >= 0 && !shown_) {
        followSelection();
    }
    return true;
}

void BookBase::blankFields() {
    if (description_.blankingDeselects) {
        deselectAll();
    }
    form_->blankFields(count());
    form_->state().requestFocus(form_->state().table().find(description_.numberField));
    form_->remember();
    shown_ = nullptr;
    shownRow_ = -1;
    titleEditWindow();
    Q_EMIT stateChanged();
}

void BookBase::editFields() {
    load(shownRow_ >= 0 ? shownRow_ : currentIndex_);
}

void BookBase::load(int row) {
    const RecordPointer stored = recordAt(row);
    if (!stored) {
        return;
    }
    form_->editFields(*stored);
    shown_ = stored;
    shownRow_ = row;
    titleEditWindow();
}

void BookBase::updateUI() {
    form_->updateUI();
    Q_EMIT stateChanged();
}

QString BookBase::formTitle() const {
    const int control = form_->state().table().find(description_.numberField);
    const QString& name = form_->state().at(control).text;
    return textWith(description_.words.windowTitle, name.isEmpty() ? QStringLiteral("…") : name);
}

void BookBase::titleEditWindow() {
    const QString title = formTitle();
    if (title != editWindowTitle_) {
        editWindowTitle_ = title;
        Q_EMIT editWindowTitleChanged();
    }
}

Expected<void> BookBase::setValue(int row, const QString& field, const FieldValue& value) {
    const Field found = layout().field(field);
    const RecordPointer held = recordAt(row);
    if (found.isNull() || !held) {
        return failure(textWith("Main", "No usable field", field));
    }
    const std::shared_ptr<Record> changed = layout().copy(*held);
    if (!found.setValue(*changed, value)) {
        return failure(textWith("Main", "No usable field", field));
    }
    RecordList list = records();
    list[static_cast<std::size_t>(row)] = changed;
    changeList(description_.words.undoUpdate.text(), std::move(list));
    if (row == shownRow_ && !hasEntries()) {
        editFields();
    }
    return {};
}

void BookBase::sortBy(const QString& field) {
    bool& ascending = ascendingDirection_[field];
    if (idColonne_ == field) {
        ascending = !ascending;
    }
    idColonne_ = field;

    const std::vector<int> order = sortedOrder(records(), layout().field(field), ascending);
    RecordList list;
    list.reserve(order.size());
    QList<int> selection;
    for (std::size_t row = 0; row < order.size(); ++row) {
        list.push_back(recordAt(order[row]));
        if (std::binary_search(selectedRows().begin(), selectedRows().end(), order[row])) {
            selection.append(static_cast<int>(row));
        }
    }
    // The record in the form stays, with what was typed into it, unless another of several selected ones is now the
    // last.
    const RecordPointer inForm = recordAt(selectedRow());
    keepsForm_ = true;
    replaceList(std::move(list));
    selectRows(selection);
    keepsForm_ = false;
    if (recordAt(selectedRow()) != inForm) {
        followSelection();
    }
}

bool BookBase::sortedAscending() const {
    const auto found = ascendingDirection_.find(idColonne_);
    return found != ascendingDirection_.end() && found->second;
}

Expected<int> BookBase::findTextWithField(const QString& field, const QString& searched) {
    deselectAll();
    const Field found = layout().field(field);
    if (found.isNull() || found.kind() != FieldKind::text) {
        return failure(textWith("Main", "No usable field", field));
    }
    search([this, found, searched] { return rowsHolding(found, searched); });
    return static_cast<int>(selectedRows().size());
}

QList<int> BookBase::rowsHolding(const Field& field, const QString& searched) const {
    QList<int> rows;
    for (int row = 0; row < count(); ++row) {
        const QString& value = *field.get<QString>(*records()[static_cast<std::size_t>(row)]);
        if (filter_->isShown(row) &&
            (value.isNull() || (!searched.isEmpty() && value.contains(searched, Qt::CaseInsensitive)))) {
            rows.append(row);
        }
    }
    return rows;
}

void BookBase::search(std::function<QList<int>()> matching) {
    search_ = std::move(matching);
    const QList<int> rows = search_();
    selectRows(rows);
    if (!rows.isEmpty()) {
        Q_EMIT rowRevealed(rows.front());
    }
    const int matches = static_cast<int>(rows.size());
    foundText_ = matches == 1 ? description_.words.oneFound.text() : textWith(description_.words.manyFound, matches);
    Q_EMIT stateChanged();
    Q_EMIT searched();
}

RecordList BookBase::foundRecords() const {
    RecordList found;
    if (filter_->isActive()) {
        for (const int row : filter_->shownRows()) {
            found.push_back(recordAt(row));
        }
    } else if (search_) {
        for (const int row : search_()) {
            found.push_back(recordAt(row));
        }
    }
    return found;
}

void BookBase::find(const QString& field, const QString& searched) {
    if (const auto found = findTextWithField(field, searched); !found) {
        desktop().alerts.fail(found.error());
    }
}

QString BookBase::countText() const {
    return count() == 1 ? description_.words.oneRecord.text() : textWith(description_.words.manyRecords, count());
}

bool BookBase::canGoBack() const {
    return selectedRow() > 0 && rowBeside(-1) >= 0;
}

bool BookBase::canGoForward() const {
    return selectedRow() >= 0 && rowBeside(+1) < count();
}

}  // namespace tavrel
