#include "logbook/ui/logbookwindow.h"

#include "desktop/alerts.h"
#include "desktop/preferences.h"
#include "desktop/ui/icons.h"
#include "desktop/ui/progresswindow.h"
#include "documents/ui/printing.h"
#include "logbook/ui/carnettoolbars.h"
#include "logbook/ui/diveeditwindow.h"
#include "logbook/ui/divesearchfield.h"
#include "logbook/ui/divetable.h"
#include "logbook/ui/renumberwindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QPrinter>
#include <QStatusBar>

#include <algorithm>
#include <utility>

namespace tavrel {

namespace {

const QString frameState = QStringLiteral("Carnet");

bool editToolbarHas(const QString& identifier) {
    const auto items = setupToolbarEdit().items;
    return std::any_of(items.begin(), items.end(),
                       [&](const ToolItem& item) { return identifier == QLatin1StringView(item.identifier); });
}

}  // namespace

LogbookWindow::LogbookWindow(Carnet& carnet, Desktop& desktop)
    : DocumentWindow(carnet, desktop),
      carnet_(carnet),
      table_(new DiveTable(carnet, desktop)),
      search_(new DiveSearchField(carnet, desktop)),
      toolBar_(new CustomToolBar(setupToolbarCarnet(), desktop.preferences, this)),
      count_(new QLabel),
      found_(new QLabel) {
    setObjectName(QStringLiteral("logbookWindow"));
    setCentralWidget(table_);
    table_->setFrameShape(QFrame::NoFrame);
    table_->setAccessibleName(text("Carnet", "Table of dives"));
    statusBar()->addWidget(count_);
    statusBar()->addPermanentWidget(found_);
    buildCommands();
    buildToolBar();

    table_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table_, &QWidget::customContextMenuRequested, this, &LogbookWindow::showRowMenu);
    connect(table_, &RecordTable::opened, &carnet, [this] { carnet_.editWindow(); });
    connect(&carnet, &Carnet::stateChanged, this, &LogbookWindow::updateState);
    connect(&carnet, &Carnet::editWindowRequested, this, &LogbookWindow::showEditWindow);
    connect(&carnet, &Carnet::renumberWindowRequested, this, [this] { renumberWindow().bringToFront(); });
    updateState();

    resize(1200, 680);
    restoreGeometry(desktop.preferences.windowState(frameState));
    table_->setFocus();
    table_->reveal(carnet.count() - 1);
}

LogbookWindow::~LogbookWindow() {
    desktop_.preferences.setWindowState(frameState, saveGeometry());
}

QAction* LogbookWindow::addCommand(const char* name, const QString& title, const char* icon, const QKeySequence& keys,
                                   std::function<void()> command) {
    auto* action = new QAction(iconNamed(QLatin1StringView(icon)), title, this);
    action->setObjectName(QLatin1StringView(name));
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, std::move(command));
    addAction(action);
    return action;
}

void LogbookWindow::buildCommands() {
    newDive_ = addCommand("newDive", text("Carnet", "Menu new dive"), "ajouterPl", Qt::CTRL | Qt::SHIFT | Qt::Key_N,
                          [this] { carnet_.newDive(); });
    editDive_ = addCommand("editWindow", text("Carnet", "Menu edit dive"), "texte", Qt::CTRL | Qt::Key_E,
                           [this] { carnet_.editWindow(); });
    insertDive_ = addCommand("insertDive", text("Carnet", "Menu insert dive"), "insererPl",
                             Qt::CTRL | Qt::SHIFT | Qt::Key_I, [this] {
                                 finishEntry();
                                 carnet_.insertDive();
                             });
    deleteDive_ = addCommand("deleteDive", text("Carnet", "Menu delete dives"), "supprimerPl", QKeySequence::Delete,
                             [this] { carnet_.deleteDive(); });
    previousDive_ =
        addCommand("prevDive", text("Carnet", "Previous dive"), "precedent", Qt::CTRL | Qt::Key_PageUp, [this] {
            finishEntry();
            carnet_.prevDive();
        });
    nextDive_ = addCommand("nextDive", text("Carnet", "Next dive"), "suivant", Qt::CTRL | Qt::Key_PageDown, [this] {
        finishEntry();
        carnet_.nextDive();
    });
    copy_ = addCommand("copy", text("Main", "Menu copy"), "", QKeySequence::Copy, [this] { copySelection(); });
    selectAll_ = addCommand("selectAll", text("Main", "Menu select all"), "", QKeySequence::SelectAll,
                            [this] { table_->selectAll(); });
    find_ = addCommand("find", text("Main", "Menu find"), "chercher", QKeySequence::Find, [this] {
        search_->setFocus(Qt::ShortcutFocusReason);
        search_->selectAll();
    });
    columns_ = table_->columnsMenu()->menuAction();
    columns_->setIcon(iconNamed(QStringLiteral("colonnes")));
}

void LogbookWindow::buildToolBar() {
    addToolBar(toolBar_);
    setContextMenuPolicy(Qt::NoContextMenu);
    toolBar_->setCommand(QStringLiteral("saveDocument"), [this] { Q_EMIT saveRequested(); });
    toolBar_->setCommand(QStringLiteral("imprimer"), [this] { printLogbook(); });
    toolBar_->setCommand(QStringLiteral("newDive"), [this] { carnet_.newDive(); });
    toolBar_->setCommand(QStringLiteral("deleteDive"), [this] { carnet_.deleteDive(); });
    toolBar_->setWidget(QStringLiteral("rechercher"), search_);
    toolBar_->setValidation([this](const QString& identifier) { return validateToolbarItem(carnet_, identifier); });
    toolBar_->rebuild();
    customise_ = toolBar_->action(QLatin1StringView(toolCustomise));

    const QString keys = newDive_->shortcut().toString(QKeySequence::NativeText);
    table_->setPlaceholder(textWith("Carnet", "No dives yet", keys));
}

void LogbookWindow::provideCommand(const QString& identifier, std::function<void()> command) {
    toolBar_->setCommand(identifier, command);
    toolBar_->rebuild();
    provided_[identifier] = std::move(command);
    if (editWindow_) {
        giveToEditWindow(identifier);
    }
}

void LogbookWindow::addImport(const QString& title, const std::function<void()>& command) {
    auto* action = new QAction(title, this);
    connect(action, &QAction::triggered, this, command);
    furtherImports_.append(action);
}

void LogbookWindow::giveToEditWindow(const QString& identifier) {
    if (editToolbarHas(identifier)) {
        editWindow_->setCommand(identifier, provided_.at(identifier));
    }
}

DiveEditWindow& LogbookWindow::editWindow() {
    if (!editWindow_) {
        editWindow_ = std::make_unique<DiveEditWindow>(carnet_, desktop_);
        for (const auto& command : provided_) {
            giveToEditWindow(command.first);
        }
    }
    return *editWindow_;
}

void LogbookWindow::showEditWindow() {
    if (!editWindow_) {  // afterwards it listens itself
        editWindow().bringToFront();
    }
}

RenumberWindow& LogbookWindow::renumberWindow() {
    if (!renumberWindow_) {
        renumberWindow_ = new RenumberWindow(carnet_, this);
    }
    return *renumberWindow_;
}

void LogbookWindow::finishEntry() {
    if (editWindow_) {
        editWindow_->finishEditing();
    }
}

void LogbookWindow::commitEditing() {
    if (editWindow_ && editWindow_->isVisible()) {
        finishEntry();
        carnet_.storeEntries();
    }
}

void LogbookWindow::printLogbook() {
    carnet_.deselectAll();
    const PrintSettings settings = Carnet::defaultPrintingSettings(true);
    QPrinter printer;
    if (runPrintDialog(this, settings, printer) && !printTable(printer, *table_, settings, carnet_.displayName()) &&
        printer.printerState() == QPrinter::Error) {
        desktop_.alerts.fail({text("Main", "Printing failed"), printer.outputFileName()});
    }
}

void LogbookWindow::copySelection() {
    ProgressWindow progress(this, text("Carnet", "Copying"));
    const QString rows = table_->selectionAsText(progress.progress());
    if (!rows.isNull()) {
        QGuiApplication::clipboard()->setText(rows);
    }
}

void LogbookWindow::showRowMenu(const QPoint& place) {
    QMenu menu(this);
    menu.addActions({editDive_, newDive_, insertDive_, deleteDive_});
    menu.addSeparator();
    menu.addActions({copy_, selectAll_});
    menu.exec(table_->viewport()->mapToGlobal(place));
}

void LogbookWindow::updateState() {
    count_->setText(carnet_.stateText());
    found_->setText(carnet_.foundText());
    toolBar_->validate();
    const bool anySelected = carnet_.selectedRow() >= 0;
    editDive_->setEnabled(anySelected);
    insertDive_->setEnabled(anySelected);
    deleteDive_->setEnabled(anySelected);
    copy_->setEnabled(anySelected);
    selectAll_->setEnabled(carnet_.count() > 0);
    previousDive_->setEnabled(carnet_.canGoBack());
    nextDive_->setEnabled(carnet_.canGoForward());
}

QString LogbookWindow::ownMenuTitle() const {
    return text("Carnet", "Menu dive");
}

QList<QAction*> LogbookWindow::ownMenuActions() {
    QList<QAction*> actions{newDive_, editDive_, insertDive_, deleteDive_, nullptr, previousDive_, nextDive_};
    for (const char* identifier : {"profil", "profilData", "synthese", "statistics"}) {
        if (QAction* action = toolBar_->action(QLatin1StringView(identifier))) {
            if (actions.back() == nextDive_) {
                actions.append(nullptr);
            }
            actions.append(action);
        }
    }
    return actions;
}

QList<QAction*> LogbookWindow::viewActions() {
    return {columns_, customise_};
}

QList<QAction*> LogbookWindow::editActions() {
    return {copy_, selectAll_, nullptr, find_};
}

QList<QAction*> LogbookWindow::importActions() {
    QList<QAction*> actions;
    for (const char* identifier : {"importUDCF", "importUDDF"}) {
        if (QAction* action = toolBar_->action(QLatin1StringView(identifier))) {
            actions.append(action);
        }
    }
    return actions + furtherImports_;
}

QList<QWidget*> LogbookWindow::furtherWindows() {
    QList<QWidget*> windows;
    if (editWindow_) {
        windows.append(editWindow_.get());
    }
    if (renumberWindow_) {
        windows.append(renumberWindow_);
    }
    return windows;
}

}  // namespace tavrel
