#pragma once

#include "app/menucommands.h"

#include <QMenu>
#include <QObject>

namespace tavrel {

/// The menu bar of a document's window, made from the table of entries and from what the window offers. A menu without
/// anything in it is left out. Belongs to the window.
class WindowMenus : public QObject {
    Q_OBJECT

public:
    WindowMenus(MyDocumentController& documents, AppDelegate& delegate, DocumentWindow& window);

private:
    void addMenus();
    void fill(QMenu& menu, MenuName name);
    void add(QMenu& menu, const MenuEntry& entry);
    QAction* addCommand(QMenu& menu, const MenuEntry& entry);
    void setUp(QAction* action, const MenuEntry& entry);
    void addStep(QMenu& menu, const MenuEntry& entry);
    void addNewDocuments(QMenu& menu);
    void addEditors(QMenu& menu);
    QMenu* addSubmenu(QMenu& menu, const MenuEntry& entry);
    void addActions(QMenu& menu, const QList<QAction*>& actions);
    void fillRecentDocuments(QMenu& menu);
    void fillWindows(QMenu& menu);
    void updateEnabled();
    void shareShortcuts();

    MenuContext context_;
    std::vector<std::pair<QAction*, const MenuEntry*>> commands_;
    QList<QAction*> shared_;
    QList<QAction*> windowActions_;
};

/// Gives each action of a menu an access key of its own where its title names none: its first letter, else the first of
/// another word, else any letter that no other action of the menu has. Goes down into submenus.
void assignMnemonics(const QList<QAction*>& actions);

}  // namespace tavrel
