#include "app/tavreldocuments.h"

#include "interchange/exports.h"
#include "interchange/ui/importcommands.h"
#include "logbook/carnet.h"
#include "logbook/ui/logbookwindow.h"

namespace tavrel {

namespace {

std::unique_ptr<Document> newCarnet(Desktop& desktop) {
    return std::make_unique<Carnet>(desktop, logbookExportTypes());
}

QList<ExportFormat> carnetExports(Document&) {
    QList<ExportFormat> formats;
    for (const LogbookExport& each : logbookExports()) {
        formats.append({QString::fromUtf8(each.typeName), QString::fromLatin1(each.extension)});
    }
    return formats;
}

}  // namespace

DocumentTypes tavrelDocuments(FileDialogs& fileDialogs) {
    const auto newLogbookWindow = [&fileDialogs](Document& document, Desktop& desktop) {
        auto& carnet = static_cast<Carnet&>(document);
        auto window = std::make_unique<LogbookWindow>(carnet, desktop);
        new ImportCommands(carnet, *window, desktop, fileDialogs);
        return window;
    };
    return {{Carnet::kind, Title("Main", "Carnet de plongee"), "newCarnetDocumentMenuAction", newCarnet,
             newLogbookWindow, carnetExports}};
}

}  // namespace tavrel
