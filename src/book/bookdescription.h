#pragma once

#include "base/failure.h"
#include "base/texts.h"
#include "book/cardrecords.h"
#include "book/column.h"
#include "desktop/printsettings.h"
#include "desktop/toolbar.h"
#include "documents/documentkind.h"
#include "drawing/styledtext.h"

#include <QString>

#include <memory>
#include <span>

namespace tavrel {

class BookBase;
class BookForm;
struct Desktop;

/// A search that the table window offers: what it is called and the field that it looks into.
struct BookSearch {
    Title title;
    const char* field;
};

/// How a loaded file's type name is held against the document's, after its list has replaced the old one.
enum class TypeCheck { exact, none };

/// The words of the commands on the records of one type.
struct BookWords {
    Title windowTitle;  ///< of the edit window; a format that takes the record's number, where titleField is one
    Title newRecord, editRecord, insertRecord, deleteRecords, previousRecord, nextRecord;  ///< menu commands
    Title menu;                                                                            ///< the type's own menu
    Title tableName;                                                                       ///< for screen readers
    Title emptyTable;              ///< a format that takes the keys of the command for a new record
    Title oneRecord, manyRecords;  ///< the count line; the second is a format
    Title oneFound = {"Main", "One card found"}, manyFound = {"Main", "Found cards"};
    Title eraseQuestion = {"Main", "Erase card"};    ///< of one record
    Title eraseQuestions = {"Main", "Erase cards"};  ///< of several: a format
    Title formOfRecord = {"Main", "Form of card"};   ///< a format: place and count
    Title formOfNew = {"Main", "Form of new card"};
    Title undoAdd = {"Main", "Undo add card"}, undoInsert = {"Main", "Undo insert card"};
    Title undoUpdate = {"Main", "Undo update card"}, undoDelete = {"Main", "Undo delete card"};
    Title undoImport = {"Main", "Undo import cards"};
    Title addQuestion = {"Main", "Add new card question"};  ///< a new record is typed and not added
    Title storeQuestion = {"Main", "Store card question"};  ///< a stored one was changed and is not stored
};

/// The identifiers by which the toolbars of a type name its commands.
struct BookCommands {
    const char* newRecord;
    const char* addRecord;
    const char* insertRecord;
    const char* updateRecord;
    const char* deleteRecord;
    const char* print = "imprimer";
    const char* card = "synthese";
    const char* blank = "blankFields";
};

/// One type of document, whole: everything that tells it from the other nine. What all share is Book and its windows.
struct BookDescription {
    DocumentKind kind;
    Title title;             ///< in the menu of new documents and in file dialogs
    const char* layoutName;  ///< under which its windows keep their places ("Materiel")
    const char* newAction;   ///< the new-document action ("newMaterielDocumentMenuAction")
    const RecordLayout& (*layout)();
    TypeCheck typeCheck = TypeCheck::exact;
    /// Tried on a file in which there is no list at all; null: there is no older format.
    Expected<RecordList> (*olderFormat)(QByteArrayView data) = nullptr;

    std::span<const Column> columns;
    std::unique_ptr<TableStyle> (*tableStyle)(const Desktop& desktop);  ///< see plainTableStyle
    std::span<const Title> pages;                                       ///< titles of the edit window's pages
    const char* numberField;         ///< the control that names a record, and that a new one starts in
    bool blankingDeselects = true;   ///< erasing the form deselects all rows
    bool opensOnFirstRecord = true;  ///< a file that was read shows its first record, rather than scrolling to its last
    bool dropDuplicatesLast = true;  ///< a row dropped on the table puts the last record into the list once more
    ToolBarDescription tableToolBar, editToolBar;
    BookCommands commands;
    BookWords words;
    std::span<const BookSearch> searches = {};
    PrintSettings print;

    /// The card of the records, in their order; null: the type has none. `file` is what the closing line calls the
    /// document's file.
    StyledText (*card)(const CardRecords& records, const Desktop& desktop, const QString& file) = nullptr;

    std::unique_ptr<BookForm> (*makeForm)(Desktop& desktop);
    std::unique_ptr<BookBase> (*make)(Desktop& desktop);
};

/// A table that follows nothing but the day and the locale.
std::unique_ptr<TableStyle> plainTableStyle(const Desktop& desktop);

}  // namespace tavrel
