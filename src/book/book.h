#pragma once

#include "book/bookdescription.h"
#include "book/bookform.h"
#include "desktop/notificationcentre.h"
#include "documents/listdocument.h"

#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace tavrel {

class BookFilter;

/// A way out of the edit form, on which entries that are not stored are asked about or stored.
enum class Leaving {
    closing,    ///< the edit window closes: a stored record is stored without a question
    stepping,   ///< to the record before or behind: likewise
    saving,     ///< the document is saved: likewise
    escaping,   ///< the edit window closes by Escape
    elsewhere,  ///< another record, a new one, an import, revert, closing the document, the end of the program
};

/// A document of records of one class with its edit form: every operation of its windows, without them. Everything that
/// is particular to its type comes from its description. Where an operation would need a selected row and none is, the
/// list stays as it is and a beep sounds.
class BookBase : public ListDocument {
    Q_OBJECT

public:
    BookBase(Desktop& desktop, const BookDescription& description);
    ~BookBase() override;

    const BookDescription& description() const { return description_; }
    BookForm& form() { return *form_; }
    const BookForm& form() const { return *form_; }
    /// The row of the record last loaded into the form; -1 when none.
    int currentIndex() const { return currentIndex_; }
    /// Whether the form holds the record of the selected row rather than a new one.
    bool formShowsSelectedRecord() const { return shownRow_ >= 0 && shownRow_ == selectedRow(); }
    /// The row of the stored record in the form, selected or not; -1 while a new one is typed.
    int shownRow() const { return shownRow_; }

    /// The archived list, whatever the type.
    Expected<QByteArray> dataRepresentationOfType(const QString& type) override;
    /// The list is replaced before the type is checked, so a wrong type fails with the list already replaced.
    Expected<void> loadDataRepresentation(QByteArrayView data, const QString& type) override;

    // Records.
    /// Clears the form for a new record and brings the edit window to the front.
    void newRecord();
    void addRecord();
    void insertRecord();
    void updateRecord();
    /// Removes the selected records after a question.
    void deleteRecords();
    /// Stores the form into the selected record and goes to the one before or behind it, among those shown.
    void previousRecord() { step(-1); }
    void nextRecord() { step(+1); }
    /// Selects the row alone and scrolls to it; when it is not to stay selected, only scrolls.
    void selectLast(int index, bool selected);
    void editWindow();
    /// Follows a selection: the record of the selected row goes into the form, unless that holds entries.
    void followSelection();
    /// Appends records that were taken in from elsewhere, as one undo step.
    void appendRecords(const QString& step, const RecordList& taken);
    /// A drop on the table: the last record stands in the list once more, before itself; no undo step is lost by it.
    void duplicateLast();

    // The guard of the form.
    /// Whether the form holds entries that are stored nowhere.
    bool hasEntries() const { return form_->hasEntries(); }
    /// Settles entries that are not stored, the one place where they are asked about: for a new record Add, Discard or
    /// Cancel; for a stored one it is stored, or on the ways that ask, Store, Discard or Cancel. False when the user
    /// cancels: everything is then to stay as it is.
    bool leaveForm(Leaving way);
    /// Its two halves. The first asks and changes nothing; nothing when the user cancels.
    std::optional<Entries> askAboutEntries(Leaving way);
    void settleEntries(Entries entries);
    /// Closes the edit window, entries settled; false when the user would rather go on editing.
    bool closeEditWindow(Leaving way = Leaving::closing);
    /// A selection by the user, who may be asked about entries first; false when it is not to come about.
    bool userSelects(const QList<int>& rows);

    void showUnstored(const UnstoredForm& form) override;

    // The form.
    void blankFields();
    /// Loads the stored record that the form shows anew or, where it shows none, the one at currentIndex.
    void editFields();
    void updateUI();

    // The table.
    /// Sets a field of a record by its name; a failure when there is no such field, row or kind of value.
    Expected<void> setValue(int row, const QString& field, const FieldValue& value);
    /// Sorts by a field, descending at first and turned round by each further call for the same field. Not a change of
    /// the document. The selected records stay selected.
    void sortBy(const QString& field);
    bool sortedAscending() const;

    /// What the windows show of the list.
    BookFilter& filter() { return *filter_; }
    const BookFilter& filter() const { return *filter_; }

    // The search. It selects the matching records that are shown; one without the field's text counts as a match.
    /// How many records hold the text, case aside, or a failure when they have no such field.
    Expected<int> findTextWithField(const QString& field, const QString& text);
    /// The same, telling the user of a failure.
    void find(const QString& field, const QString& text);
    /// What the last search found, as text.
    const QString& foundText() const { return foundText_; }
    /// The records that the filter shows or, without one, that the last search matches as they are now; none before.
    RecordList foundRecords() const;

    // What the windows show.
    /// The count line: one record, or how many there are.
    QString countText() const;
    bool canGoBack() const;
    bool canGoForward() const;
    const QString& editWindowTitle() const { return editWindowTitle_; }

Q_SIGNALS:
    void stateChanged();  ///< the count, the found text or the way back and forward
    void editWindowRequested();
    void editWindowClosed();
    void editWindowTitleChanged();
    void tableReloadRequested();
    void columnsRebuildRequested();
    void searched();

protected:
    /// Calls the handler for every notification of that name, as long as the document lives.
    void listen(Notification name, std::function<void()> handler);
    /// What the form of a new record gets besides its cleared values.
    virtual void proposeNumber() {}
    std::optional<UnstoredForm> unstoredForm() const override;
    /// The title of the edit window, from what the form shows.
    virtual QString formTitle() const;

private:
    void step(int direction);
    int rowBeside(int direction) const;
    void putAt(int row, bool replacing);
    void beginBlank();
    void titleEditWindow();
    void load(int row);
    void followShown(const ListChange& change);
    void listIsRestored();
    QList<int> rowsHolding(const Field& field, const QString& searched) const;
    void search(std::function<QList<int>()> matching);
    std::optional<Entries> askAboutEntries(const Title& question, const Title& keep);

    const BookDescription& description_;
    std::unique_ptr<BookForm> form_;
    std::unique_ptr<BookFilter> filter_;
    std::vector<NotificationCentre::Subscription> subscriptions_;
    int currentIndex_ = -1;
    bool keepsForm_ = false;
    RecordPointer shown_;  ///< the stored record in the form; null while a new one is typed
    int shownRow_ = -1;    ///< its row
    bool asksAboutEntries_ = false;
    QString idColonne_;
    std::map<QString, bool> ascendingDirection_;
    QString foundText_;
    std::function<QList<int>()> search_;  ///< the rows that the last search matches
    QString editWindowTitle_;
};

/// A book whose records are of class Class.
template <class Class>
class Book : public BookBase {
public:
    using BookBase::BookBase;

    using Pointer = std::shared_ptr<const Class>;

    /// The record at a row; null outside the list.
    Pointer recordAt(int row) const { return std::static_pointer_cast<const Class>(BookBase::recordAt(row)); }
    const Class& record(int row) const { return static_cast<const Class&>(*records()[static_cast<std::size_t>(row)]); }
};

}  // namespace tavrel
