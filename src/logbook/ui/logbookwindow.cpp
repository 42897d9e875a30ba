#include "logbook/ui/logbookwindow.h"

#include "base/texts.h"
#include "book/ui/booktableview.h"
#include "desktop/preferences.h"
#include "documents/ui/madewindows.h"
#include "logbook/ui/divedetails.h"
#include "logbook/ui/divewindows.h"
#include "logbook/ui/profilecommands.h"
#include "logbook/ui/renumberwindow.h"

#include <QDataStream>
#include <QSplitter>

namespace tavrel {

namespace {

const QString detailsLayout = QStringLiteral("Carnet details");

}  // namespace

LogbookWindow::LogbookWindow(Carnet& carnet, Desktop& desktop)
    : BookWindow(carnet, desktop),
      carnet_(carnet),
      profile_(new ProfileCommands(carnet, *this, desktop)),
      dives_(new DiveWindows(carnet, *this, desktop)),
      panes_(new QSplitter(Qt::Vertical)),
      details_(new DiveDetails(desktop)) {
    addDetails();
    actions().action(QStringLiteral("synthese"))->setText(text("Carnet", "Menu card"));
    connect(&carnet, &Carnet::renumberWindowRequested, this, [this] { renumberWindow().bringToFront(); });
    connect(&carnet, &Carnet::listChanged, this, &LogbookWindow::showSelectedDive);
    connect(&carnet, &Carnet::selectionChanged, this, &LogbookWindow::showSelectedDive);
    showSelectedDive();
}

LogbookWindow::~LogbookWindow() {
    QByteArray layout;
    QDataStream(&layout, QIODevice::WriteOnly) << detailsShown_->isChecked() << panes_->saveState();
    desktop_.preferences.setWindowState(detailsLayout, layout);
}

void LogbookWindow::addDetails() {
    QWidget* table = takeCentralWidget();
    panes_->setObjectName(QStringLiteral("panes"));
    panes_->addWidget(table);
    panes_->addWidget(details_);
    panes_->setChildrenCollapsible(false);
    panes_->setStretchFactor(0, 1);
    panes_->setStretchFactor(1, 0);
    setCentralWidget(panes_);
    table->setFocus();
    detailsShown_ =
        actions().add(QStringLiteral("details"), text("Carnet", "Details"), "", Qt::CTRL | Qt::SHIFT | Qt::Key_D,
                      BookActions::always, [this] { details_->setVisible(detailsShown_->isChecked()); });
    detailsShown_->setCheckable(true);
    restoreDetails();
}

std::optional<Entries> LogbookWindow::askAboutEntries(Settling next) {
    return profile_->settleEditor() ? BookWindow::askAboutEntries(next) : std::nullopt;
}

void LogbookWindow::settleEntries(Entries entries) {
    if (entries == Entries::dropped) {
        profile_->discardEditor();
    }
    BookWindow::settleEntries(entries);
}

void LogbookWindow::restoreDetails() {
    QDataStream layout(desktop_.preferences.windowState(detailsLayout));
    bool isShown = true;
    QByteArray sizes;
    layout >> isShown >> sizes;
    if (layout.status() == QDataStream::Ok) {
        panes_->restoreState(sizes);
    } else {
        isShown = true;
    }
    detailsShown_->setChecked(isShown);
    details_->setVisible(isShown);
}

void LogbookWindow::showSelectedDive() {
    details_->setDive(carnet_.recordAt(carnet_.selectedRow()));
}

void LogbookWindow::showCard() {
    dives_->divesForSynthesisWindow();
}

QList<QAction*> LogbookWindow::ownMenuActions() {
    return BookWindow::ownMenuActions() + dives_->commands();
}

QList<QAction*> LogbookWindow::viewActions() {
    return QList<QAction*>{detailsShown_, nullptr} + BookWindow::viewActions();
}

void LogbookWindow::addImport(const Title& title, const char* toolItem, std::function<void()> command) {
    if (toolItem) {
        const QString identifier = QString::fromLatin1(toolItem);
        provideCommand(identifier, std::move(command), title);
        imports_.append(actions().action(identifier));
        return;
    }
    imports_.append(new QAction(title.text(), this));
    connect(imports_.constLast(), &QAction::triggered, this, std::move(command));
}

RenumberWindow& LogbookWindow::renumberWindow() {
    if (!renumberWindow_) {
        renumberWindow_ = new RenumberWindow(carnet_, this);
    }
    return *renumberWindow_;
}

QList<QWidget*> LogbookWindow::furtherWindows() {
    return BookWindow::furtherWindows() + profile_->windows() + dives_->windows() + madeWindows({renumberWindow_});
}

}  // namespace tavrel
