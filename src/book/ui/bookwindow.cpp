#include "book/ui/bookwindow.h"

#include "base/texts.h"
#include "book/ui/bookeditwindow.h"
#include "book/ui/bookfilterbar.h"
#include "book/ui/booksearchfield.h"
#include "book/ui/booktableview.h"
#include "book/ui/cardwindow.h"
#include "book/ui/repertorywindow.h"
#include "desktop/clock.h"
#include "desktop/preferences.h"
#include "desktop/ui/customtoolbar.h"
#include "desktop/ui/progresswindow.h"
#include "documents/ui/madewindows.h"
#include "drawing/ui/printing.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace tavrel {

namespace {

/// Shows the items that a toolbar has no room for, below it, as the arrow at its end does.
void unfold(const QToolBar& bar) {
    if (auto* arrow = bar.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
        arrow && !arrow->isChecked()) {
        arrow->click();
    }
}

}  // namespace

BookWindow::BookWindow(BookBase& book, Desktop& desktop)
    : DocumentWindow(book, desktop),
      book_(book),
      actions_(new BookActions(book, this)),
      table_(new BookTableView(book)),
      filter_(new BookFilterBar(book)),
      toolBar_(new CustomToolBar(book.description().tableToolBar, desktop.preferences, this)),
      count_(new QLabel),
      found_(new QLabel) {
    setObjectName(QStringLiteral("bookWindow"));
    auto* contents = new QWidget;
    auto* layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(filter_);
    layout->addWidget(table_, 1);
    setCentralWidget(contents);
    table_->setFrameShape(QFrame::NoFrame);
    statusBar()->addWidget(count_);
    statusBar()->addPermanentWidget(found_);
    addCommands();
    buildToolBar();

    table_->setChooser([this](const QList<int>& rows) {
        finishEntry();
        return book_.userSelects(rows);
    });
    if (book.description().dropDuplicatesLast) {
        table_->acceptRows(QLatin1StringView(book.description().kind.extension));
    }
    table_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table_, &QWidget::customContextMenuRequested, this, &BookWindow::showRowMenu);
    connect(table_, &RecordTable::opened, this, &BookWindow::open);
    connect(filter_, &BookFilterBar::left, this, [this] { table_->setFocus(); });
    connect(&book, &BookBase::stateChanged, this, &BookWindow::updateState);
    connect(&book, &BookBase::editWindowRequested, this, &BookWindow::showEditWindow);
    updateState();

    resize(QSize(1200, 680).boundedTo(screen()->availableSize()));
    restoreGeometry(desktop.preferences.windowState(layoutName()));
    table_->setFocus();
    const auto revealLatest = [this] {
        table_->reveal(book_.selectedRow() >= 0 ? book_.selectedRow() : book_.count() - 1);
    };
    revealLatest();
    // Only when it shows it knows its height.
    QMetaObject::invokeMethod(table_, revealLatest, Qt::QueuedConnection);
}

BookWindow::~BookWindow() {
    desktop_.preferences.setWindowState(layoutName(), saveGeometry());
}

void BookWindow::addCommands() {
    const BookDescription& description = book_.description();
    for (QAction* each : actions_->all()) {
        addAction(each);
    }
    connect(actions_, &BookActions::added, this, [this](QAction* added) {
        addAction(added);
        actions_->fill(*toolBar_);
    });
    actions_->addTool(QStringLiteral("saveDocument"), [this] { Q_EMIT saveRequested(); });
    actions_->addTool(QLatin1StringView(description.commands.print), [this] { printDocument(); },
                      {"Main", "Menu print"});
    actions_->addTool(QLatin1StringView(description.commands.card),
                      [this] { book_.description().card ? showCard() : repertoryWindow().bringToFront(); });
    actions_->add(QStringLiteral("copy"), text("Main", "Menu copy"), "", QKeySequence::Copy, BookActions::withSelection,
                  [this] { copySelection(); });
    actions_->add(QStringLiteral("selectAll"), text("Main", "Menu select all"), "", QKeySequence::SelectAll,
                  BookActions::withRecords, [this] { table_->selectAll(); });
    actions_->add(QStringLiteral("printPreview"), text("Main", "Menu print preview"), "", {}, BookActions::withRecords,
                  [this] { previewDocument(); });
    actions_->add(QStringLiteral("filter"), text("Main", "Menu filter"), "chercher", QKeySequence::Find,
                  BookActions::always, [this] { filter_->edit(); });
    if (!description.searches.empty()) {
        actions_->add(QStringLiteral("find"), text("Main", "Menu find"), "chercher", Qt::CTRL | Qt::SHIFT | Qt::Key_F,
                      BookActions::always, [this] {
                          if (!search_->isVisible()) {
                              setAnimated(false);  // the field is there at once
                              unfold(*toolBar_);
                              setAnimated(true);
                          }
                          if (!search_->isVisible()) {
                              return filter_->edit();  // the user took the field out of the toolbar
                          }
                          search_->setFocus(Qt::ShortcutFocusReason);
                          search_->selectAll();
                      });
    }
}

void BookWindow::buildToolBar() {
    addToolBar(toolBar_);
    setContextMenuPolicy(Qt::NoContextMenu);
    if (!book_.description().searches.empty()) {
        search_ = new BookSearchField(book_);
        toolBar_->setWidget(search_->objectName(), search_);
        connect(search_, &BookSearchField::aboutToSearch, this, &BookWindow::finishEntry);
    }
    actions_->fill(*toolBar_);
}

void BookWindow::provideCommand(const QString& identifier, std::function<void()> run, const Title& menuTitle) {
    actions_->addTool(identifier, std::move(run), menuTitle);
}

BookEditWindow& BookWindow::editWindow() {
    if (!editWindow_) {
        editWindow_ = std::make_unique<BookEditWindow>(book_, *actions_);
        Q_EMIT editWindowMade(*editWindow_);
    }
    return *editWindow_;
}

void BookWindow::showEditWindow() {
    if (!editWindow_) {  // afterwards it listens itself
        editWindow().bringToFront();
    }
}

CardWindow& BookWindow::cardWindow() {
    if (!cardWindow_) {
        cardWindow_ =
            std::make_unique<CardWindow>(desktop_, book_.description().print, layoutName() + QStringLiteral(" card"));
    }
    return *cardWindow_;
}

void BookWindow::showCard() {
    if (book_.count() > 0) {
        cardWindow().setCard(QStringLiteral("%1 – %2").arg(book_.displayName(), text("Main", "Synthesis card")),
                             book_.description().card(book_.records(), desktop_, book_.file()));
    }
    cardWindow().bringToFront();
}

RepertoryWindow& BookWindow::repertoryWindow() {
    if (!repertoryWindow_) {
        repertoryWindow_ = std::make_unique<RepertoryWindow>(book_);
    }
    return *repertoryWindow_;
}

void BookWindow::finishEntry() {
    if (editWindow_) {
        editWindow_->finishEditing();
    }
}

std::optional<Entries> BookWindow::askAboutEntries(Settling next) {
    finishEntry();
    return book_.askAboutEntries(next == Settling::saving ? Leaving::saving : Leaving::elsewhere);
}

void BookWindow::settleEntries(Entries entries) {
    book_.settleEntries(entries);
}

void BookWindow::open() {
    finishEntry();
    // A new record that is added first would take the selection with it.
    const QList<int> rows = book_.selectedRows();
    if (book_.userSelects(rows)) {
        book_.editWindow();
    }
}

void BookWindow::printDocument() {
    printDeselected([this](const PrintJob& job) { runPrint(this, job, desktop_.alerts); });
}

void BookWindow::previewDocument() {
    printDeselected([this](const PrintJob& job) { runPrintPreview(this, job); });
}

PrintJob BookWindow::printJob() const {
    PrintSettings settings = book_.description().print;
    settings.landscape = true;
    return {settings, book_.displayName(), desktop_.clock.now().date(),
            [this](const Paper& paper) { return pagesOf(book_, table_->shownPart(), paper); }};
}

void BookWindow::printDeselected(const std::function<void(const PrintJob& job)>& print) {
    finishEntry();
    if (!book_.leaveForm(Leaving::elsewhere)) {
        return;
    }
    const QList<int> selected = book_.selectedRows();
    book_.deselectAll();
    print(printJob());
    book_.selectRows(selected);
}

void BookWindow::copySelection() {
    ProgressWindow progress(this, text("Main", "Copying"));
    const QString rows = table_->selectionAsText(progress.progress());
    if (!rows.isNull()) {
        QGuiApplication::clipboard()->setText(rows);
    }
}

void BookWindow::showRowMenu(const QPoint& place) {
    const BookCommands& commands = book_.description().commands;
    QMenu menu(this);
    menu.addActions({command("editWindow"), command(commands.newRecord), command(commands.insertRecord),
                     command(commands.deleteRecord)});
    menu.addSeparator();
    menu.addActions({command("copy"), command("selectAll")});
    menu.exec(table_->viewport()->mapToGlobal(place));
}

void BookWindow::updateState() {
    const QString keys = command(book_.description().commands.newRecord)->shortcut().toString(QKeySequence::NativeText);
    table_->setPlaceholder(book_.count() > 0 ? text("Main", "Nothing matches")
                                             : textWith(book_.description().words.emptyTable, keys));
    count_->setText(book_.countText());
    found_->setText(book_.foundText());
}

QString BookWindow::ownMenuTitle() const {
    return book_.description().words.menu.text();
}

QList<QAction*> BookWindow::ownMenuActions() {
    const BookCommands& commands = book_.description().commands;
    QList<QAction*> actions{command(commands.newRecord),
                            command("editWindow"),
                            command(commands.insertRecord),
                            command(commands.deleteRecord),
                            nullptr,
                            command("previousRecord"),
                            command("nextRecord"),
                            nullptr};
    // What else the toolbar has, but for what stands in other menus.
    const QList<QAction*> imports = importActions();
    for (const ToolItem& item : toolBar_->description().items) {
        QAction* action = command(item.identifier);
        const bool isElsewhere = imports.contains(action) || action == commandAction(QStringLiteral("saveDocument")) ||
                                 action == commandAction(QStringLiteral("printDocument"));
        if (action && !isElsewhere && !actions.contains(action)) {
            actions.append(action);
        }
    }
    if (!actions.back()) {
        actions.removeLast();
    }
    return actions;
}

QList<QAction*> BookWindow::viewActions() {
    QList<QAction*> actions{toolBar_->action(QLatin1StringView(toolCustomise))};
    if (table_->columnsMenu()) {
        actions.prepend(table_->columnsMenu()->menuAction());
    }
    return actions;
}

QList<QAction*> BookWindow::editActions() {
    QList<QAction*> actions{command("copy"), command("selectAll"), nullptr, command("filter")};
    if (search_) {
        actions.append(command("find"));
    }
    return actions;
}

QAction* BookWindow::commandAction(const QString& name) {
    return name == u"printDocument"                             ? command(book_.description().commands.print)
           : name == u"saveDocument" || name == u"printPreview" ? command(name.toUtf8())
                                                                : nullptr;
}

QList<QWidget*> BookWindow::furtherWindows() {
    return madeWindows({editWindow_.get(), cardWindow_.get(), repertoryWindow_.get()});
}

}  // namespace tavrel
