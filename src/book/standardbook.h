#pragma once

#include "book/book.h"
#include "book/bookdescription.h"
#include "book/bookform.h"
#include "desktop/clock.h"
#include "forms/control.h"
#include "records/field.h"
#include "records/nodate.h"

#include <array>

namespace tavrel {

// What the nine record books have in common beyond what makes a book: words, toolbars, menus, cells, the manner of
// their combo boxes. A book that differs somewhere says so in its own description.

/// Margins of the printed list and card in points, and their scale.
inline constexpr PrintSettings recordBookPrint{24.8, 25.0, 10.0, 10.0, 0.7};

/// The words of a book whose records are cards, by its own title of the edit window (a format that takes what names the
/// record), menu and table.
constexpr BookWords recordBookWords(Title windowTitle, Title menu, Title tableName) {
    BookWords words{};
    words.windowTitle = windowTitle;
    words.newRecord = {"Main", "Menu new card"};
    words.editRecord = {"Main", "Menu edit card"};
    words.insertRecord = {"Main", "Menu insert card"};
    words.deleteRecords = {"Main", "Menu delete cards"};
    words.previousRecord = {"Main", "Menu previous card"};
    words.nextRecord = {"Main", "Menu next card"};
    words.menu = menu;
    words.tableName = tableName;
    words.emptyTable = {"Main", "Empty record book"};
    words.oneRecord = {"Main", "One card"};
    words.manyRecords = {"Main", "Cards"};
    return words;
}

/// The items of a record book's two toolbars, from what it calls its commands. One constant of a book holds them for as
/// long as the program runs; the descriptions that it gives point into it.
class RecordBookTools {
public:
    constexpr explicit RecordBookTools(const BookCommands& commands)
        : tableItems_{ToolItem{"saveDocument", {"Main", "Save"}, "enregistrer", {"Main", "Tip save"}},
                      ToolItem{commands.print, {"Main", "Print"}, "imprimante", {"Main", "Tip print"}, true},
                      ToolItem{commands.newRecord, {"Main", "Add"}, "ajouterMat", {"Main", "Tip add"}},
                      ToolItem{commands.deleteRecord, {"Main", "Delete"}, "supprimerMat", {"Main", "Tip delete"}, true},
                      cardItem(commands)},
          tableOrder_{"saveDocument", commands.print, toolSeparator, commands.newRecord, commands.deleteRecord,
                      commands.card,  toolSeparator,  toolCustomise, toolFlexibleSpace},
          editItems_{ToolItem{commands.addRecord, {"Main", "Add"}, "ajouterMat", {"Main", "Tip add"}},
                     ToolItem{commands.insertRecord, {"Main", "Insert"}, "insererMat", {"Main", "Tip insert"}, true},
                     ToolItem{commands.updateRecord, {"Main", "Update"}, "validerMat", {"Main", "Tip update"}, true},
                     ToolItem{commands.blank, {"Main", "Erase"}, "raz", {"Main", "Tip erase"}}, cardItem(commands)},
          editOrder_{commands.addRecord, commands.insertRecord, commands.updateRecord, commands.blank,
                     commands.card,      toolSeparator,         toolCustomise,         toolFlexibleSpace} {}

    constexpr ToolBarDescription tableToolBar(const char* identifier) const {
        return {identifier, tableItems_, tableOrder_, tableOrder_};
    }
    constexpr ToolBarDescription editToolBar(const char* identifier) const {
        return {identifier, editItems_, editOrder_, editOrder_};
    }

private:
    static constexpr ToolItem cardItem(const BookCommands& commands) {
        return {commands.card, {"Main", "Synthesis card"}, "texte", {"Main", "Tip synthesis card"}, true};
    }

    std::array<ToolItem, 5> tableItems_;
    std::array<const char*, 9> tableOrder_;
    std::array<ToolItem, 5> editItems_;
    std::array<const char*, 8> editOrder_;
};

/// The steps of a rating, 0 to 5.
inline constexpr Choice cotations[] = {
    {0, {"Main", "Cotation 0"}}, {1, {"Main", "Cotation 1"}}, {2, {"Main", "Cotation 2"}},
    {3, {"Main", "Cotation 3"}}, {4, {"Main", "Cotation 4"}}, {5, {"Main", "Cotation 5"}},
};
inline constexpr int highestCotation = 5;

/// The title of a choice; when there is no such tag, what stands for an unknown one. A title that has no text is shown
/// as the one for missing texts.
QString choiceText(std::span<const Choice> choices, qint32 tag, const QString& unknown,
                   const QString& missing = missingText());

/// A cell of a rating: its stars, and in words how many of how many. Another number shows as it is.
void cotationCell(qint32 rating, Cell& cell);

/// A cell of a rating that is brown unless it is 0, and shows another number as 0.
void ratedCell(qint32 rating, Cell& cell);

/// A cell of a field that is 0 or 1: the word for a tick, or nothing.
void checkCell(bool isSet, Cell& cell);

/// A duration that is held as a time of day, as "07:30"; nothing for what a cleared form holds. The day plays no part.
QString hoursAndMinutes(const Date& time);

/// At the end of editing a combo box of a record book: what was typed, without the spaces around it, is offered to the
/// control's shared list. The question names what the form's first combo with such a list holds, whichever was edited.
void offerFromForm(BookForm& form, int control, const QString& typed);

/// The form of a record book.
template <class Table, class Class>
class RecordBookForm : public RecordForm<Table, Class> {
public:
    using RecordForm<Table, Class>::RecordForm;

    void endEditing(int control, const QString& typed) override { offerFromForm(*this, control, typed); }

protected:
    Date today() const { return Date::fromDateTime(this->desktop().clock.now()); }
};

/// What a description makes where nothing but its form and its record tell it from the others.
template <class Form>
std::unique_ptr<BookForm> makeRecordBookForm(Desktop& desktop) {
    return std::make_unique<Form>(desktop);
}
template <class Class, const BookDescription& (*description)()>
std::unique_ptr<BookBase> makeRecordBook(Desktop& desktop) {
    return std::make_unique<Book<Class>>(desktop, description());
}

/// The edit window's title in a book whose records are known by their day, which is in the description's numberField.
QString titleByDay(const BookBase& book);

/// Such a book.
template <class Class>
class BookByDay : public Book<Class> {
public:
    using Book<Class>::Book;

protected:
    QString formTitle() const override { return titleByDay(*this); }
};
template <class Class, const BookDescription& (*description)()>
std::unique_ptr<BookBase> makeBookByDay(Desktop& desktop) {
    return std::make_unique<BookByDay<Class>>(desktop, description());
}

}  // namespace tavrel
