#include "app/testapplication.h"

#include "app/tavreldocuments.h"
#include "app/windowmenus.h"

#include <QFile>

namespace tavrel {

const RecordLayout& Coin::layout() {
    static constexpr Item items[] = {{"name", member<&Coin::name>}};
    static constexpr RecordLayout layout = recordLayout<Coin>("Coin", 1, items);
    return layout;
}

DocumentTypes testDocumentTypes() {
    const auto makeWindow = [](Document& document, Desktop& desktop) {
        return std::make_unique<TestWindow>(document, desktop);
    };
    const auto produce = [](Carnet& carnet) -> Expected<QByteArray> { return QByteArray::number(carnet.count()); };
    const ExportType counted{QStringLiteral("Counted"), produce};
    const auto showExport = [](DocumentWindow& window, const FileTaken& isTaken) {
        static_cast<TestWindow&>(window).isTaken = isTaken;
    };
    const auto takesIn = [](const QString& file) { return file.endsWith(QStringLiteral(".log")); };
    const auto takeIn = [](DocumentWindow& window, const QString& file) {
        static_cast<TestWindow&>(window).takenIn.append(file);
    };
    return {{carnetDescription().kind, Title("Main", "Carnet de plongee"), "newCarnetDocumentMenuAction",
             [=](Desktop& desktop) { return std::make_unique<Carnet>(desktop, std::vector{counted}); }, makeWindow,
             showExport, takesIn, takeIn},
            {{literal("Budget"), "Coin", "budget"},
             Title("Main", "Materiel"),
             "newBudgetDocumentMenuAction",
             [](Desktop& desktop) { return std::make_unique<Purse>(desktop); },
             makeWindow}};
}

QString TestApplication::savedLogbook(const QString& name, int dives) {
    Carnet carnet(desktop());
    for (int dive = 0; dive < dives; ++dive) {
        carnet.addDive();
    }
    const QString file = path(name);
    EXPECT_TRUE(carnet.saveAs(file));
    return file;
}

WholeProgram::WholeProgram()
    : documents(desktop.desktop(), fileDialogs, tavrelDocuments(fileDialogs)), delegate(desktop.desktop()) {
    QObject::connect(&documents, &MyDocumentController::windowOpened, &documents,
                     [this](auto* window) { new WindowMenus(documents, delegate, *window); });
}

DocumentWindow* WholeProgram::openSample(const QString& ending) {
    const QString name = QStringLiteral("sample.") + ending;
    const QString copy = desktop.path(name);
    EXPECT_TRUE(QFile::exists(copy) || QFile::copy(QStringLiteral(TAVREL_SOURCE_FOLDER "/samples/") + name, copy));
    return documents.openFile(copy);
}

}  // namespace tavrel
