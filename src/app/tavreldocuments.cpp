#include "app/tavreldocuments.h"

#include "book/ui/bookwindow.h"
#include "catalogue/documenttypes.h"
#include "interchange/ui/importcommands.h"
#include "logbook/carnet.h"
#include "logbook/ui/logbookwindow.h"

namespace tavrel {

namespace {

QList<ExportFormat> formatsOf(const CatalogueType& type) {
    QList<ExportFormat> formats;
    for (const LogbookExport& each : type.exports) {
        formats.append({QString::fromUtf8(each.typeName), QString::fromLatin1(each.extension)});
    }
    return formats;
}

std::unique_ptr<DocumentWindow> newWindow(Document& document, Desktop& desktop, FileDialogs& fileDialogs) {
    if (auto* carnet = dynamic_cast<Carnet*>(&document)) {
        auto window = std::make_unique<LogbookWindow>(*carnet, desktop);
        new ImportCommands(*carnet, *window, desktop, fileDialogs);
        return window;
    }
    return std::make_unique<BookWindow>(static_cast<BookBase&>(document), desktop);
}

}  // namespace

DocumentTypes tavrelDocuments(FileDialogs& fileDialogs) {
    DocumentTypes types;
    for (const CatalogueType& type : documentTypes()) {
        types.push_back(
            {type, type.book->title, type.book->newAction, type.make,
             [&fileDialogs](Document& document, Desktop& desktop) { return newWindow(document, desktop, fileDialogs); },
             [&type](Document&) { return formatsOf(type); }});
    }
    return types;
}

}  // namespace tavrel
