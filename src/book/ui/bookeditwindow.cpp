#include "book/ui/bookeditwindow.h"

#include "base/texts.h"
#include "book/picklistusage.h"
#include "book/ui/bookactions.h"
#include "desktop/ui/bringtofront.h"
#include "desktop/ui/customtoolbar.h"
#include "desktop/ui/windowkeys.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include <utility>

namespace tavrel {

namespace {

/// Pages that have a key of their own, Ctrl and the digit.
constexpr int keyedPages = 9;

void bind(QWidget* window, const QKeySequence& keys, std::function<void()> command) {
    QObject::connect(new QShortcut(keys, window), &QShortcut::activated, window, std::move(command));
}

QKeySequence keyOfPage(int page) {
    return Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + page);
}

}  // namespace

BookEditWindow::BookEditWindow(BookBase& book, BookActions& actions, QWidget* parent)
    : QMainWindow(parent),
      book_(book),
      actions_(actions),
      pages_(
          book.form().state(), book.desktop(), [&book](int list) { return book.form().ownList(list); },
          [&book](int control) { return book.form().hint(control); },
          [&book](int control) { return heldTexts(book, control); }),
      toolBar_(new CustomToolBar(book.description().editToolBar, book.desktop().preferences, this)) {
    setObjectName(QStringLiteral("editWindow"));
    buildToolBar();
    buildContents();
    addShortcuts();

    connect(&pages_, &FormPages::editingFinished, this,
            [this](int control, const QString& typed) { book_.form().endEditing(control, typed); });
    connect(&book.form().state(), &FormStateBase::focusRequested, this, &BookEditWindow::takeFocus);
    connect(&book, &BookBase::stateChanged, this, &BookEditWindow::updateState);
    setWindowFilePath(book.file());
    connect(&book, &BookBase::fileChanged, this, [this] { setWindowFilePath(book_.file()); });
    connect(&book, &BookBase::editWindowTitleChanged, this, &BookEditWindow::updateTitle);
    connect(&book, &BookBase::editWindowRequested, this, &BookEditWindow::bringToFront);
    connect(&book, &BookBase::editWindowClosed, this, [this] {
        if (!closing_) {
            hide();
        }
    });
    connect(&actions, &BookActions::aboutToRun, this, &BookEditWindow::finishEditing);
    updateTitle();
    updateState();
    QSize largest;
    for (int page = 1; page <= pageCount(); ++page) {
        largest = largest.expandedTo(pages_.page(page)->sizeHint());
    }
    resizeWindowToSize(largest);
    goView(1);
}

BookEditWindow::~BookEditWindow() = default;

void BookEditWindow::buildToolBar() {
    addToolBar(toolBar_);
    setContextMenuPolicy(Qt::NoContextMenu);
    actions_.fill(*toolBar_);
    toolBar_->ensurePolished();  // the window is measured before it shows
    connect(&actions_, &BookActions::added, this, [this] { actions_.fill(*toolBar_); });
}

QPushButton* BookEditWindow::stepButton(const char* command, const QString& title) {
    QAction* action = actions_.action(QLatin1StringView(command));
    addAction(action);
    auto* button = new QPushButton(action->icon(), title);
    button->setObjectName(QLatin1StringView(command));
    button->setAutoDefault(false);
    button->setAccessibleName(action->text());
    button->setToolTip(
        QStringLiteral("%1 (%2)").arg(action->text(), action->shortcut().toString(QKeySequence::NativeText)));
    connect(button, &QPushButton::clicked, action, &QAction::trigger);
    const auto follow = [button, action] { button->setEnabled(action->isEnabled()); };
    connect(action, &QAction::enabledChanged, button, follow);
    follow();
    return button;
}

void BookEditWindow::buildContents() {
    pageBar_ = new QTabBar;
    pageBar_->setDocumentMode(true);
    pageBar_->setExpanding(false);
    pageBar_->setDrawBase(true);
    pageBar_->setObjectName(QStringLiteral("pageBar"));
    pageBar_->setAccessibleName(text("Main", "Pages"));
    stack_ = new QStackedWidget;
    for (int page = 1; page <= pageCount(); ++page) {
        const int tab = pageBar_->addTab(book_.description().pages[static_cast<std::size_t>(page) - 1].text());
        if (page <= keyedPages) {
            pageBar_->setTabToolTip(tab, keyOfPage(page).toString(QKeySequence::NativeText));
        }
        auto* area = new QScrollArea;
        area->setFrameShape(QFrame::NoFrame);
        area->setFocusPolicy(Qt::NoFocus);
        area->setWidgetResizable(true);
        area->setWidget(pages_.page(page));
        stack_->addWidget(area);
    }
    pageBar_->setVisible(pageCount() > 1);
    connect(pageBar_, &QTabBar::currentChanged, this, [this](int tab) {
        if (tab + 1 != page_) {
            goView(tab + 1);
        }
    });

    status_ = new QLabel;
    status_->setObjectName(QStringLiteral("status"));
    status_->setAlignment(Qt::AlignCenter);
    status_->setWordWrap(true);
    auto* foot = new QHBoxLayout;
    foot->setContentsMargins(11, 4, 11, 9);
    foot->setSpacing(16);
    foot->addWidget(stepButton("previousRecord", text("Main", "Previous")));
    foot->addWidget(status_, 1);
    foot->addWidget(stepButton("nextRecord", text("Main", "Next")));
    auto* contents = new QWidget;
    auto* layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 4, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(pageBar_);
    layout->addWidget(stack_, 1);
    layout->addLayout(foot);
    setCentralWidget(contents);
}

void BookEditWindow::addShortcuts() {
    for (int page = 1; page <= std::min(pageCount(), keyedPages); ++page) {
        bind(this, keyOfPage(page), [this, page] { goView(page); });
    }
    addPageKeys(
        *this, pageCount(), [this] { return page_; }, [this](int page) { goView(page); });
    bind(this, Qt::CTRL | Qt::Key_Return, [this] { confirm(); });
    bind(this, Qt::CTRL | Qt::Key_Enter, [this] { confirm(); });
    bind(this, Qt::Key_Escape, [this] { escape(); });
    bind(this, QKeySequence::Close, [this] { close(); });
}

void BookEditWindow::confirm() {
    finishEditing();
    if (!book_.hasEntries()) {
        return;
    }
    if (book_.shownRow() >= 0) {
        book_.updateRecord();
    } else {
        book_.addRecord();
    }
}

void BookEditWindow::escape() {
    const QScopedValueRollback escaping(escaping_, true);
    close();
}

void BookEditWindow::goView(int page) {
    page_ = page;
    pageBar_->setCurrentIndex(page - 1);
    const bool hadFocus = stack_->isAncestorOf(focusWidget());
    stack_->setCurrentIndex(page - 1);
    book_.updateUI();
    if (hadFocus) {
        pages_.takeFirstFocus(page_);
    }
    takeNumberFocus();
}

void BookEditWindow::resizeWindowToSize(const QSize& size) {
    const QSize around = sizeHint() - stack_->sizeHint();
    resize((size + around).boundedTo(screen()->availableSize()));
}

int BookEditWindow::numberControl() const {
    return book_.form().state().table().find(book_.description().numberField);
}

void BookEditWindow::takeNumberFocus() {
    if (focusesNumber_) {
        focusesNumber_ = !pages_.takeFocus(numberControl());
    }
}

void BookEditWindow::takeFocus(int control) {
    if (control != numberControl()) {
        return;
    }
    focusesNumber_ = true;
    if (const int page = pages_.pageOf(control); page != page_) {
        goView(page);
    } else {
        takeNumberFocus();
    }
}

void BookEditWindow::bringToFront() {
    tavrel::bringToFront(this);
    takeNumberFocus();
}

void BookEditWindow::updateTitle() {
    setWindowTitle(book_.editWindowTitle().isEmpty() ? book_.displayName() : book_.editWindowTitle());
}

void BookEditWindow::updateState() {
    const BookWords& words = book_.description().words;
    status_->setText(book_.shownRow() >= 0 ? textWith(words.formOfRecord, book_.shownRow() + 1, book_.count())
                                           : words.formOfNew.text());
}

void BookEditWindow::closeEvent(QCloseEvent* event) {
    if (isVisible() && !std::exchange(closing_, true)) {
        finishEditing();
        const bool closes = book_.closeEditWindow(escaping_ ? Leaving::escaping : Leaving::closing);
        closing_ = false;
        if (!closes) {
            event->ignore();
            return;
        }
    }
    QMainWindow::closeEvent(event);
}

}  // namespace tavrel
