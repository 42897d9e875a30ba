#pragma once

#include "base/texts.h"
#include "documents/ui/documentwindow.h"

#include <span>

namespace tavrel {

class AppDelegate;
class MyDocumentController;

/// What a command of a document window's menus works on.
struct MenuContext {
    MyDocumentController& documents;
    AppDelegate& delegate;
    DocumentWindow& window;
};

enum class MenuName { file, edit, view, own, calculators, lists, window, help };

/// What stands at a place of a menu: a command, or what the application or the document fills in.
enum class MenuPart {
    command,
    separator,
    newDocuments,     ///< submenu of the types of documents
    recentDocuments,  ///< submenu of the documents opened last
    imports,          ///< submenu of the document's imports
    undo,
    redo,
    editActions,
    viewActions,
    ownActions,
    calculators,
    editors,
    windows,  ///< the windows of the open documents
};

/// A place of a menu.
struct MenuEntry {
    MenuName menu;
    MenuPart part;
    const char* name = "";  ///< of the action, for those who look for it
    Title title = {};
    const char* shortcut = "";  ///< several are parted by semicolons
    const char* icon = "";
    void (*run)(MenuContext&) = nullptr;
    bool (*isEnabled)(MenuContext&) = nullptr;  ///< asked when the document's file or state changes; null: always
    const char* recordClass = "";               ///< stands in the menus of one type of document only; empty: of all
    bool everywhere = false;                    ///< its shortcut works in the document's further windows too
};

/// The title of a menu of the menu bar; null for the document's own, which names itself.
Title menuTitle(MenuName menu);

/// All menus from left to right, each from top to bottom.
std::span<const MenuEntry> menuEntries();

}  // namespace tavrel
