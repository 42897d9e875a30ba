#pragma once

#include "book/book.h"
#include "forms/ui/formpages.h"

#include <QMainWindow>
#include <QString>

class QLabel;
class QPushButton;
class QStackedWidget;
class QTabBar;

namespace tavrel {

class BookActions;
class CustomToolBar;

/// The edit window of a book: the pages of its form, one at a time, in a window that keeps the size of the largest.
/// Opens and closes as the book asks. Whatever ends the editing goes through the book, which stores entries or asks
/// about them.
class BookEditWindow : public QMainWindow {
    Q_OBJECT

public:
    BookEditWindow(BookBase& book, BookActions& actions, QWidget* parent = nullptr);
    ~BookEditWindow() override;

    int pageCount() const { return pages_.pageCount(); }
    /// Shows a page, from 1; the form is refreshed.
    void goView(int page);
    int currentPage() const { return page_; }
    /// Shows the window over all others. It does so by itself whenever the book asks; whoever makes it only then calls
    /// it.
    void bringToFront();
    /// Gives the area of the pages a size, as far as the screen has room for it.
    void resizeWindowToSize(const QSize& size);

    FormPages& pages() { return pages_; }
    CustomToolBar& toolBar() { return *toolBar_; }
    /// Ends an entry under way, before the form is taken or replaced from elsewhere.
    void finishEditing() { pages_.finishEditing(); }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildToolBar();
    void buildContents();
    QPushButton* stepButton(const char* command, const QString& title);
    void addShortcuts();
    void takeFocus(int control);
    void takeNumberFocus();
    void confirm();
    void escape();
    void updateState();
    void updateTitle();
    int numberControl() const;

    BookBase& book_;
    BookActions& actions_;
    FormPages pages_;
    CustomToolBar* toolBar_;
    QTabBar* pageBar_ = nullptr;
    QStackedWidget* stack_ = nullptr;
    QLabel* status_ = nullptr;
    int page_ = 1;
    bool focusesNumber_ = true;  ///< as soon as it is in sight
    bool escaping_ = false;
    bool closing_ = false;
};

}  // namespace tavrel
