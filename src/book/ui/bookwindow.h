#pragma once

#include "book/ui/bookactions.h"
#include "documents/ui/documentwindow.h"

#include <functional>
#include <memory>

class QLabel;

namespace tavrel {

class BookEditWindow;
class BookFilterBar;
class BookSearchField;
class BookTableView;
class CardWindow;
class CustomToolBar;
class RepertoryWindow;
struct PrintJob;

/// The window of a book: the table of its records under their filter, the searches, and every command on them, all as
/// its description says.
/// The edit window and the card are made when they are asked for first.
class BookWindow : public DocumentWindow {
    Q_OBJECT

public:
    BookWindow(BookBase& book, Desktop& desktop);
    ~BookWindow() override;

    /// Gives the toolbars' item of that identifier, of which the book alone knows nothing, what it does. Until then it
    /// does not show.
    void provideCommand(const QString& identifier, std::function<void()> command, const Title& menuTitle = {});

    BookActions& actions() { return *actions_; }
    BookTableView& table() { return *table_; }
    BookFilterBar& filterBar() { return *filter_; }
    /// Null where the description names no searches.
    BookSearchField* searchField() { return search_; }
    CustomToolBar& toolBar() { return *toolBar_; }
    BookEditWindow& editWindow();
    /// Shows the card of all records.
    virtual void showCard();
    CardWindow& cardWindow();
    /// The pictures of the records, in a book that has no card.
    RepertoryWindow& repertoryWindow();

    QString ownMenuTitle() const override;
    QList<QAction*> ownMenuActions() override;
    QList<QAction*> viewActions() override;
    QList<QAction*> editActions() override;
    QAction* commandAction(const QString& name) override;
    /// Prints the table, landscape, with nothing selected; the selection comes back afterwards.
    void printDocument() override;
    /// Shows the pages of that before they are printed.
    void previewDocument() override;
    QList<QWidget*> furtherWindows() override;
    std::optional<Entries> askAboutEntries(Settling next) override;
    void settleEntries(Entries entries) override;

Q_SIGNALS:
    /// The edit window was asked for first and is there.
    void editWindowMade(tavrel::BookEditWindow& made);

private:
    void addCommands();
    void buildToolBar();
    void finishEntry();
    void showEditWindow();
    void showRowMenu(const QPoint& place);
    void open();
    void copySelection();
    /// The table as it is shown, landscape.
    PrintJob printJob() const;
    void printDeselected(const std::function<void(const PrintJob& job)>& print);
    void updateState();
    QAction* command(const char* name) const { return actions_->action(QLatin1StringView(name)); }
    QString layoutName() const { return QLatin1StringView(book_.description().layoutName); }

    BookBase& book_;
    BookActions* actions_;
    BookTableView* table_;
    BookFilterBar* filter_;
    BookSearchField* search_ = nullptr;
    CustomToolBar* toolBar_;
    QLabel* count_;
    QLabel* found_;
    std::unique_ptr<BookEditWindow> editWindow_;
    std::unique_ptr<CardWindow> cardWindow_;
    std::unique_ptr<RepertoryWindow> repertoryWindow_;
};

}  // namespace tavrel
