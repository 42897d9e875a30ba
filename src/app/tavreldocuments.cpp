#include "app/tavreldocuments.h"

#include "base/safefile.h"
#include "book/ui/bookwindow.h"
#include "catalogue/documenttypes.h"
#include "interchange/standard/sourcereading.h"
#include "interchange/ui/exportwindow.h"
#include "interchange/ui/importcommands.h"
#include "logbook/carnet.h"
#include "logbook/ui/logbookwindow.h"

namespace tavrel {

namespace {

std::unique_ptr<DocumentWindow> newWindow(Document& document, Desktop& desktop, FileDialogs& fileDialogs) {
    if (auto* carnet = dynamic_cast<Carnet*>(&document)) {
        auto window = std::make_unique<LogbookWindow>(*carnet, desktop);
        new ImportCommands(*carnet, *window, desktop, fileDialogs);
        return window;
    }
    return std::make_unique<BookWindow>(static_cast<BookBase&>(document), desktop);
}

void showExport(DocumentWindow& window, FileDialogs& fileDialogs, const FileTaken& isTaken) {
    (new ExportWindow(static_cast<Carnet&>(window.document()), fileDialogs, isTaken, &window))->open();
}

bool holdsDives(const QString& file) {
    const auto bytes = FileBytes::open(file);
    return bytes && kindOfStart(bytes->bytes()).has_value();
}

void importInto(DocumentWindow& window, const QString& file) {
    window.findChild<ImportCommands*>()->showDivesOf(file);
}

}  // namespace

DocumentTypes tavrelDocuments(FileDialogs& fileDialogs) {
    DocumentTypes types;
    for (const CatalogueType& type : documentTypes()) {
        const DocumentKind& kind = type;
        DocumentType& added = types.emplace_back(DocumentType{kind, type.book->title, type.book->newAction, type.make,
                                                              [&fileDialogs](Document& document, Desktop& desktop) {
                                                                  return newWindow(document, desktop, fileDialogs);
                                                              }});
        if (!type.exports.empty()) {
            added.showExport = [&fileDialogs](DocumentWindow& window, const FileTaken& isTaken) {
                showExport(window, fileDialogs, isTaken);
            };
        }
        if (!type.imports.empty()) {
            added.takesIn = holdsDives;
            added.takeIn = importInto;
        }
    }
    return types;
}

}  // namespace tavrel
