#include "logbook/ui/diveeditwindow.h"

#include "base/texts.h"
#include "desktop/ui/icons.h"
#include "logbook/ui/carnettoolbars.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QStyle>
#include <QTabBar>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace tavrel {

namespace {

constexpr std::array<Title, DiveEditWindow::pageCount> pageTitles{{{"Carnet", "Page dive"},
                                                                   {"Carnet", "Page conditions"},
                                                                   {"Carnet", "Page decompression"},
                                                                   {"Carnet", "Page gas"},
                                                                   {"Carnet", "Page bottles"},
                                                                   {"Carnet", "Page equipment"}}};

/// The pages, one of them in sight, and a blank one in front of them. Wants the size that it is told.
class PageStack : public QStackedWidget {
public:
    QSize sizeHint() const override { return wanted_; }
    void setWanted(const QSize& size) {
        wanted_ = size;
        updateGeometry();
    }

private:
    QSize wanted_;
};

void bind(QWidget* window, const QKeySequence& keys, std::function<void()> command) {
    QObject::connect(new QShortcut(keys, window), &QShortcut::activated, window, std::move(command));
}

}  // namespace

DiveEditWindow::DiveEditWindow(Carnet& carnet, Desktop& desktop, QWidget* parent)
    : QMainWindow(parent), carnet_(carnet), pages_(carnet.form().state(), desktop, [&carnet](int list) {
          return carnet.form().ownList(static_cast<DiveList>(list));
      }) {
    setObjectName(QStringLiteral("diveEditWindow"));
    buildToolBar(desktop);
    buildContents();
    addShortcuts();

    connect(&pages_, &FormPages::editingFinished, this,
            [this](int control, const QString& typed) { carnet_.form().endEditing(control, typed); });
    connect(&carnet.form().state(), &FormStateBase::focusRequested, this, &DiveEditWindow::takeFocus);
    connect(&carnet, &Carnet::stateChanged, this, &DiveEditWindow::updateState);
    connect(&carnet, &Carnet::editWindowTitleChanged, this, &DiveEditWindow::updateTitle);
    connect(&carnet, &Carnet::editWindowRequested, this, &DiveEditWindow::bringToFront);
    connect(&carnet, &Carnet::editWindowClosed, this, [this] {
        if (!closing_) {
            hide();
        }
    });
    updateTitle();
    updateState();
    goView(1);
}

DiveEditWindow::~DiveEditWindow() = default;

void DiveEditWindow::buildToolBar(Desktop& desktop) {
    toolBar_ = new CustomToolBar(setupToolbarEdit(), desktop.preferences, this);
    addToolBar(toolBar_);
    setContextMenuPolicy(Qt::NoContextMenu);
    setCommand(QStringLiteral("addDiveToList"), [this] { carnet_.addDive(); });
    setCommand(QStringLiteral("insertDive"), [this] { carnet_.insertDive(); });
    setCommand(QStringLiteral("blankFields"), [this] { carnet_.blankFields(); });
    toolBar_->setValidation([this](const QString& identifier) { return validateToolbarItem(carnet_, identifier); });
}

void DiveEditWindow::setCommand(const QString& identifier, std::function<void()> command) {
    toolBar_->setCommand(identifier, [this, run = std::move(command)] {
        finishEditing();
        run();
    });
    toolBar_->rebuild();
}

void DiveEditWindow::buildContents() {
    pageBar_ = new QTabBar;
    pageBar_->setDocumentMode(true);
    pageBar_->setExpanding(false);
    pageBar_->setDrawBase(true);
    pageBar_->setObjectName(QStringLiteral("pageBar"));
    pageBar_->setAccessibleName(text("Carnet", "Pages"));
    stack_ = new PageStack;
    stack_->addWidget(new QWidget);
    for (int page = 1; page <= pageCount; ++page) {
        const int tab = pageBar_->addTab(pageTitles[static_cast<std::size_t>(page) - 1].text());
        pageBar_->setTabToolTip(
            tab, QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + page)).toString(QKeySequence::NativeText));
        auto* area = new QScrollArea;
        area->setFrameShape(QFrame::NoFrame);
        area->setFocusPolicy(Qt::NoFocus);
        area->setWidgetResizable(true);
        area->setWidget(pages_.page(page));
        stack_->addWidget(area);
    }
    connect(pageBar_, &QTabBar::currentChanged, this, [this](int tab) {
        if (tab + 1 != page_) {
            goView(tab + 1);
        }
    });

    previous_ = new QPushButton(iconNamed(QStringLiteral("precedent")), text("Carnet", "Previous"));
    previous_->setAccessibleName(text("Carnet", "Previous dive"));
    previous_->setObjectName(QStringLiteral("previousButton"));
    previous_->setShortcut(Qt::CTRL | Qt::Key_PageUp);
    next_ = new QPushButton(iconNamed(QStringLiteral("suivant")), text("Carnet", "Next"));
    next_->setAccessibleName(text("Carnet", "Next dive"));
    next_->setObjectName(QStringLiteral("nextButton"));
    next_->setShortcut(Qt::CTRL | Qt::Key_PageDown);
    for (auto* button : {previous_, next_}) {
        button->setToolTip(QStringLiteral("%1 (%2)").arg(button->accessibleName(),
                                                         button->shortcut().toString(QKeySequence::NativeText)));
    }
    connect(previous_, &QPushButton::clicked, this, [this] { step(-1); });
    connect(next_, &QPushButton::clicked, this, [this] { step(+1); });
    status_ = new QLabel;
    status_->setObjectName(QStringLiteral("status"));
    status_->setAlignment(Qt::AlignCenter);
    status_->setWordWrap(true);

    auto* foot = new QHBoxLayout;
    foot->setContentsMargins(11, 4, 11, 9);
    foot->setSpacing(16);
    foot->addWidget(previous_);
    foot->addWidget(status_, 1);
    foot->addWidget(next_);
    auto* contents = new QWidget;
    auto* layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 4, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(pageBar_);
    layout->addWidget(stack_, 1);
    layout->addLayout(foot);
    setCentralWidget(contents);
}

void DiveEditWindow::addShortcuts() {
    for (int page = 1; page <= pageCount; ++page) {
        bind(this, Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + page), [this, page] { goView(page); });
    }
    bind(this, Qt::CTRL | Qt::Key_Return, [this] { confirm(); });
    bind(this, Qt::CTRL | Qt::Key_Enter, [this] { confirm(); });
    bind(this, Qt::Key_Escape, [this] { close(); });
    bind(this, QKeySequence::Close, [this] { close(); });
}

void DiveEditWindow::confirm() {
    finishEditing();
    if (carnet_.formShowsSelectedDive()) {
        carnet_.updateDive();
    } else {
        carnet_.addDive();
    }
}

void DiveEditWindow::step(int direction) {
    finishEditing();
    if (direction < 0) {
        carnet_.prevDive();
    } else {
        carnet_.nextDive();
    }
}

QSize DiveEditWindow::naturalSize(int page) const {
    return pages_.page(page)->sizeHint();
}

void DiveEditWindow::goView(int page) {
    page_ = page;
    pageBar_->setCurrentIndex(page - 1);
    focusesPage_ = focusesPage_ || stack_->isAncestorOf(focusWidget());
    stack_->setCurrentIndex(0);
    resizeWindowToSize(naturalSize(page));
    if (!resizing_) {
        showPage();
    }
}

void DiveEditWindow::showPage() {
    stack_->setCurrentIndex(page_);
    carnet_.updateUI();
    if (std::exchange(focusesPage_, false)) {
        pages_.takeFirstFocus(page_);
    }
    if (focusesNumber_) {
        focusesNumber_ = !pages_.takeFocus(carnet_.form().controls().noPlongeeField.index);
    }
}

void DiveEditWindow::resizeWindowToSize(const QSize& size) {
    delete std::exchange(resizing_, nullptr);
    static_cast<PageStack*>(stack_)->setWanted(size);
    centralWidget()->layout()->activate();
    layout()->invalidate();
    if (isMaximized() || isFullScreen()) {
        return;
    }
    const QSize target = sizeHint().boundedTo(screen()->availableSize());
    const bool smoothly = isVisible() && QGuiApplication::platformName() != QLatin1StringView("offscreen") &&
                          style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
    if (!smoothly) {
        resize(target);
        return;
    }
    resizing_ = new QPropertyAnimation(this, "size", this);
    resizing_->setDuration(style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this));
    resizing_->setEndValue(target);
    connect(resizing_, &QPropertyAnimation::finished, this, [this] {
        std::exchange(resizing_, nullptr)->deleteLater();
        showPage();
    });
    resizing_->start();
}

void DiveEditWindow::takeFocus(int control) {
    if (control != carnet_.form().controls().noPlongeeField.index) {
        return;
    }
    focusesNumber_ = true;
    if (page_ != 1) {
        goView(1);
    } else {
        focusesNumber_ = !pages_.takeFocus(control);
    }
}

void DiveEditWindow::bringToFront() {
    show();
    raise();
    activateWindow();
    if (focusesNumber_) {
        focusesNumber_ = !pages_.takeFocus(carnet_.form().controls().noPlongeeField.index);
    }
}

void DiveEditWindow::updateTitle() {
    setWindowTitle(carnet_.editWindowTitle().isEmpty() ? carnet_.displayName() : carnet_.editWindowTitle());
}

void DiveEditWindow::updateState() {
    previous_->setEnabled(carnet_.canGoBack());
    next_->setEnabled(carnet_.canGoForward());
    toolBar_->validate();
    status_->setText(carnet_.formShowsSelectedDive()
                         ? textWith("Carnet", "Form of dive", carnet_.selectedRow() + 1, carnet_.count())
                         : text("Carnet", "Form of new dive"));
}

void DiveEditWindow::closeEvent(QCloseEvent* event) {
    if (isVisible() && !std::exchange(closing_, true)) {
        finishEditing();
        const bool closes = carnet_.closeEditWindow();
        closing_ = false;
        if (!closes) {
            event->ignore();
            return;
        }
    }
    QMainWindow::closeEvent(event);
}

}  // namespace tavrel
