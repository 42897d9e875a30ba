#include "app/menucommands.h"

#include "app/appdelegate.h"
#include "app/mydocumentcontroller.h"
#include "base/paths.h"
#include "drawing/ui/printing.h"
#include "logbook/ui/convertunitswindow.h"

#include <QApplication>

namespace tavrel {

namespace {

using Context = MenuContext;
using Menu = MenuName;
using Part = MenuPart;

bool canRevert(Context& context) {
    const Document& document = context.window.document();
    return !document.file().isEmpty() && document.isChanged();
}

bool canRevertToBackup(Context& context) {
    const Document& document = context.window.document();
    return !document.file().isEmpty() && pathExists(document.backupFile());
}

bool canExport(Context& context) {
    return static_cast<bool>(context.documents.typeOf(context.window).showExport);
}

void quit(Context& context) {
    if (context.documents.closeAllDocuments()) {
        QApplication::quit();
    }
}

void convertUnits(Context& context) {
    ConvertUnitsWindow(static_cast<Carnet&>(context.window.document()), &context.window).exec();
}

const MenuEntry entries[] = {
    {Menu::file, Part::newDocuments, "new", Title("Main", "Menu new"), "", "nouveau"},
    {Menu::file, Part::command, "openDocument", Title("Main", "Menu open"), "Ctrl+O", "ouvrir",
     [](Context& context) { context.documents.openDocument(&context.window); }, nullptr, "", true},
    {Menu::file, Part::recentDocuments, "recent", Title("Main", "Menu open recent")},
    {Menu::file, Part::separator},
    {Menu::file, Part::command, "closeDocument", Title("Main", "Menu close"), "Ctrl+W", "fermer",
     [](Context& context) { context.documents.closeDocument(context.window); }},
    {Menu::file, Part::command, "saveDocument", Title("Main", "Save"), "Ctrl+S", "enregistrer",
     [](Context& context) { context.documents.saveDocument(context.window); }, nullptr, "", true},
    {Menu::file, Part::command, "saveDocumentAs", Title("Main", "Menu save as"), "Ctrl+Shift+S", "",
     [](Context& context) { context.documents.saveDocumentAs(context.window); }, nullptr, "", true},
    {Menu::file, Part::command, "revertDocumentToSaved", Title("Main", "Menu revert"), "", "",
     [](Context& context) { context.documents.revertDocument(context.window); }, canRevert},
    {Menu::file, Part::command, "revertDocumentToBackup", Title("Main", "Menu revert to backup"), "", "",
     [](Context& context) { context.documents.revertToBackup(context.window); }, canRevertToBackup},
    {Menu::file, Part::separator},
    {Menu::file, Part::imports, "import", Title("Main", "Menu import")},
    {Menu::file, Part::command, "exportDocument", Title("Main", "Menu export"), "", "",
     [](Context& context) { context.documents.exportDocument(context.window); }, canExport},
    {Menu::file, Part::separator},
    {Menu::file, Part::command, "runPageLayout", Title("Main", "Menu page setup"), "Ctrl+Shift+P", "",
     [](Context& context) { runPageLayout(&context.window, QPageLayout::Landscape); }},
    {Menu::file, Part::command, "printPreview", Title("Main", "Menu print preview"), "", "",
     [](Context& context) { context.window.previewDocument(); }},
    {Menu::file, Part::command, "printDocument", Title("Main", "Menu print"), "Ctrl+P", "imprimante",
     [](Context& context) { context.window.printDocument(); }},
    {Menu::file, Part::separator},
    {Menu::file, Part::command, "terminate", Title("Main", "Menu quit"), "Ctrl+Q", "quitter", quit, nullptr, "", true},

    {Menu::edit, Part::undo, "undo", Title("Main", "Undo"), "Ctrl+Z", "annuler", nullptr, nullptr, "", true},
    {Menu::edit, Part::redo, "redo", Title("Main", "Redo"), "Ctrl+Shift+Z; Ctrl+Y", "retablir", nullptr, nullptr, "",
     true},
    {Menu::edit, Part::separator},
    {Menu::edit, Part::editActions},
    {Menu::edit, Part::command, "convertUnits", Title("Main", "Menu convert units"), "", "", convertUnits, nullptr,
     "Plongee"},
    {Menu::edit, Part::separator},
    {Menu::edit, Part::command, "showPreferencePanel", Title("Main", "Menu preferences"), "Ctrl+,",
     "GeneralPreferences", [](Context& context) { context.documents.showPreferencePanel(); }, nullptr, "", true},

    {Menu::view, Part::viewActions},

    {Menu::own, Part::ownActions},
    {Menu::own, Part::separator},
    {Menu::own, Part::command, "sendRenumDivesNotification", Title("Main", "Menu renumber"), "", "",
     [](Context& context) { context.delegate.sendRenumDivesNotification(); }, nullptr, "Plongee"},

    {Menu::calculators, Part::calculators},

    {Menu::lists, Part::editors},

    {Menu::window, Part::command, "performMiniaturize", Title("Main", "Menu minimise"), "Ctrl+M", "",
     [](Context& context) { context.window.showMinimized(); }},
    {Menu::window, Part::command, "showPenseBeteWindow", Title("Main", "Memo"), "", "memo",
     [](Context& context) { context.documents.showPenseBeteWindow(); }},
    {Menu::window, Part::separator},
    {Menu::window, Part::windows},

    {Menu::help, Part::command, "about", Title("Main", "Menu about"), "", "tavrel",
     [](Context& context) { context.delegate.showAbout(&context.window); }},
};

}  // namespace

Title menuTitle(MenuName menu) {
    switch (menu) {
        case Menu::file:
            return Title("Main", "Menu file");
        case Menu::edit:
            return Title("Main", "Menu edit");
        case Menu::view:
            return Title("Main", "Menu view");
        case Menu::own:
            return {};
        case Menu::calculators:
            return Title("Main", "Menu calculators");
        case Menu::lists:
            return Title("Main", "Menu lists");
        case Menu::window:
            return Title("Main", "Menu window");
        case Menu::help:
            return Title("Main", "Menu help");
    }
    Q_UNREACHABLE();
    return {};
}

std::span<const MenuEntry> menuEntries() {
    return entries;
}

}  // namespace tavrel
