#include "app/windowmenus.h"

#include "app/appdelegate.h"
#include "app/mydocumentcontroller.h"
#include "app/picklisteditors.h"
#include "base/paths.h"
#include "base/texts.h"
#include "desktop/ui/bringtofront.h"
#include "desktop/ui/icons.h"
#include "desktop/ui/menuwords.h"

#include <QApplication>
#include <QMenuBar>

#include <algorithm>

namespace tavrel {

namespace {

bool isAccessKey(QChar letter) {
    return letter.unicode() < 128 && letter.isLetterOrNumber();
}

/// The letter behind a single ampersand; null when there is none.
QChar accessKeyOf(const QString& title) {
    for (qsizetype at = title.indexOf(u'&'); at >= 0 && at + 1 < title.size(); at = title.indexOf(u'&', at + 2)) {
        if (title[at + 1] != u'&') {
            return title[at + 1].toLower();
        }
    }
    return {};
}

bool isFirst(const QString&, qsizetype at) {
    return at == 0;
}
bool startsWord(const QString& title, qsizetype at) {
    return at == 0 || title[at - 1].isSpace();
}
/// Of "to" and "Backup" the second is what a title is about.
bool startsTitleWord(const QString& title, qsizetype at) {
    return startsWord(title, at) && title[at].isUpper();
}

bool isAny(const QString&, qsizetype) {
    return true;
}

}  // namespace

void assignMnemonics(const QList<QAction*>& actions) {
    QString taken;
    for (const QAction* action : actions) {
        taken.append(accessKeyOf(action->text()));
    }
    // First letters go first, so that no one else takes the only good one of a title.
    for (const auto fits : {isFirst, startsTitleWord, startsWord, isAny}) {
        for (QAction* action : actions) {
            const QString title = action->text();
            for (qsizetype at = 0; at < title.size() && accessKeyOf(action->text()).isNull(); ++at) {
                if (fits(title, at) && isAccessKey(title[at]) && !taken.contains(title[at], Qt::CaseInsensitive)) {
                    taken.append(title[at]);
                    action->setText(title.left(at) + u'&' + title.mid(at));
                }
            }
        }
    }
    for (const QAction* action : actions) {
        if (action->menu()) {
            assignMnemonics(action->menu()->actions());
        }
    }
}

WindowMenus::WindowMenus(MyDocumentController& documents, AppDelegate& delegate, DocumentWindow& window)
    : QObject(&window), context_{documents, delegate, window} {
    addMenus();
    const Document& document = window.document();
    connect(&document, &Document::fileChanged, this, &WindowMenus::updateEnabled);
    connect(&document, &Document::changedStateChanged, this, &WindowMenus::updateEnabled);
    // A further window may be made late, so it gets the shortcuts when it is entered.
    connect(qApp, &QApplication::focusChanged, this, &WindowMenus::shareShortcuts);
    updateEnabled();
}

void WindowMenus::addMenus() {
    QMenuBar& bar = *context_.window.menuBar();
    for (const MenuName name : {MenuName::file, MenuName::edit, MenuName::view, MenuName::own, MenuName::calculators,
                                MenuName::lists, MenuName::window, MenuName::help}) {
        const QString title = name == MenuName::own ? context_.window.ownMenuTitle() : text(menuTitle(name));
        auto* menu = new QMenu(title, &bar);
        if (!title.isEmpty()) {
            fill(*menu, name);
        }
        const QList<QAction*> actions = menu->actions();
        if (std::all_of(actions.begin(), actions.end(), [](const QAction* each) { return each->isSeparator(); })) {
            delete menu;
            continue;
        }
        assignMnemonics(actions);
        bar.addMenu(menu);
    }
    assignMnemonics(bar.actions());
}

void WindowMenus::fill(QMenu& menu, MenuName name) {
    const QLatin1StringView recordClass(context_.documents.typeOf(context_.window).recordClass);
    for (const MenuEntry& entry : menuEntries()) {
        const QLatin1StringView wanted(entry.recordClass);
        if (entry.menu == name && (wanted.isEmpty() || wanted == recordClass)) {
            add(menu, entry);
        }
    }
}

void WindowMenus::add(QMenu& menu, const MenuEntry& entry) {
    switch (entry.part) {
        case MenuPart::command:
            if (!entry.run) {
                return;
            }
            if (QAction* own = context_.window.commandAction(QLatin1StringView(entry.name))) {
                menu.addAction(own);
                return setUp(own, entry);
            }
            connect(addCommand(menu, entry), &QAction::triggered, this, [this, run = entry.run] { run(context_); });
            return;
        case MenuPart::separator:
            menu.addSeparator();
            return;
        case MenuPart::newDocuments:
            return addNewDocuments(*addSubmenu(menu, entry));
        case MenuPart::recentDocuments: {
            QMenu* recent = addSubmenu(menu, entry);
            connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentDocuments(*recent); });
            return fillRecentDocuments(*recent);
        }
        case MenuPart::imports:
            if (const QList<QAction*> imports = context_.window.importActions(); !imports.isEmpty()) {
                QMenu* submenu = addSubmenu(menu, entry);
                addActions(*submenu, imports);
                assignMnemonics(submenu->actions());
            }
            return;
        case MenuPart::undo:
        case MenuPart::redo:
            return addStep(menu, entry);
        case MenuPart::editActions:
            return addActions(menu, context_.window.editActions());
        case MenuPart::viewActions:
            return addActions(menu, context_.window.viewActions());
        case MenuPart::ownActions:
            return addActions(menu, context_.window.ownMenuActions());
        case MenuPart::calculators:
            return addCalculatorActions(menu, [this](CalculatorId id) { context_.delegate.showCalculator(id); });
        case MenuPart::editors:
            return addEditors(menu);
        case MenuPart::windows:
            connect(&menu, &QMenu::aboutToShow, this, [this, target = &menu] { fillWindows(*target); });
            return;
    }
}

QAction* WindowMenus::addCommand(QMenu& menu, const MenuEntry& entry) {
    QAction* action = menu.addAction(iconNamed(QLatin1StringView(entry.icon)), text(entry.title));
    action->setObjectName(QLatin1StringView(entry.name));
    setUp(action, entry);
    return action;
}

void WindowMenus::setUp(QAction* action, const MenuEntry& entry) {
    if (*entry.shortcut) {
        action->setShortcuts(QKeySequence::listFromString(QLatin1StringView(entry.shortcut)));
    }
    if (entry.everywhere) {
        shared_.append(action);
    }
    commands_.emplace_back(action, &entry);
}

void WindowMenus::addStep(QMenu& menu, const MenuEntry& entry) {
    QUndoStack& stack = context_.window.document().undoStack();
    const bool isUndo = entry.part == MenuPart::undo;
    QAction* action = addCommand(menu, entry);
    const auto showStep = [&menu, action, isUndo, word = text(entry.title)](const QString& step) {
        const Title key = isUndo ? Title("Main", "Undo step") : Title("Main", "Redo step");
        action->setText(step.isEmpty() ? word : menuWords(textWith(key, Fallback{word}, step)));
        assignMnemonics(menu.actions());
    };
    connect(action, &QAction::triggered, &stack, isUndo ? &QUndoStack::undo : &QUndoStack::redo);
    connect(&stack, isUndo ? &QUndoStack::undoTextChanged : &QUndoStack::redoTextChanged, action, showStep);
    connect(&stack, isUndo ? &QUndoStack::canUndoChanged : &QUndoStack::canRedoChanged, action, &QAction::setEnabled);
    showStep(isUndo ? stack.undoText() : stack.redoText());
    action->setEnabled(isUndo ? stack.canUndo() : stack.canRedo());
}

void WindowMenus::addNewDocuments(QMenu& menu) {
    for (const DocumentType& type : context_.documents.types()) {
        QAction* action = menu.addAction(text(type.title));
        action->setObjectName(QLatin1StringView(type.newAction));
        connect(action, &QAction::triggered, this, [this, &type] { context_.documents.newDocumentOfType(type); });
    }
    // The platform's plain new document is one of the default type, which is the first.
    QAction* plainNew = menu.actions().constFirst();
    plainNew->setShortcut(QKeySequence(QStringLiteral("Ctrl+N")));
    shared_.append(plainNew);
    assignMnemonics(menu.actions());
}

void WindowMenus::addEditors(QMenu& menu) {
    for (const PickListEditorDescription& editor : pickListEditors) {
        QAction* action = menu.addAction(text(editor.first.title()));
        action->setObjectName(QLatin1StringView(editor.action));
        connect(action, &QAction::triggered, this, [this, &editor] { context_.delegate.showEditor(editor); });
    }
}

QMenu* WindowMenus::addSubmenu(QMenu& menu, const MenuEntry& entry) {
    QMenu* submenu = menu.addMenu(iconNamed(QLatin1StringView(entry.icon)), text(entry.title));
    submenu->setObjectName(QLatin1StringView(entry.name));
    return submenu;
}

void WindowMenus::addActions(QMenu& menu, const QList<QAction*>& actions) {
    for (QAction* action : actions) {
        action ? menu.addAction(action) : static_cast<void>(menu.addSeparator());
    }
}

void WindowMenus::fillRecentDocuments(QMenu& menu) {
    menu.clear();
    for (const QString& file : context_.documents.recentDocuments().files()) {
        QAction* action = menu.addAction(menuWords(shownName(file)));
        action->setToolTip(shownPath(file));
        action->setStatusTip(shownPath(file));
        connect(action, &QAction::triggered, this, [this, file] { context_.documents.openFile(file); });
    }
    menu.setToolTipsVisible(true);
    menu.addSeparator();
    QAction* clear = menu.addAction(text("Main", "Menu clear recent"));
    clear->setObjectName(QStringLiteral("clearRecentDocuments"));
    clear->setEnabled(menu.actions().size() > 2);
    connect(clear, &QAction::triggered, this, [this] { context_.documents.recentDocuments().clear(); });
    assignMnemonics(menu.actions());
}

void WindowMenus::fillWindows(QMenu& menu) {
    qDeleteAll(windowActions_);
    windowActions_.clear();
    for (DocumentWindow* window : context_.documents.windows()) {
        QAction* action = menu.addAction(menuWords(window->document().displayName()));
        action->setCheckable(true);
        action->setChecked(window == &context_.window);
        connect(action, &QAction::triggered, window, [window] { bringToFront(window); });
        windowActions_.append(action);
    }
}

void WindowMenus::updateEnabled() {
    for (const auto& [action, entry] : commands_) {
        if (entry->isEnabled) {
            action->setEnabled(entry->isEnabled(context_));
        }
    }
}

void WindowMenus::shareShortcuts() {
    for (QWidget* further : context_.window.furtherWindows()) {
        for (QAction* action : shared_) {
            if (!further->actions().contains(action)) {
                further->addAction(action);
            }
        }
    }
}

}  // namespace tavrel
