#include "app/testapplication.h"

#include "app/tavreldocuments.h"
#include "app/windowmenus.h"
#include "recordbooks/recordbooks.h"

#include <QFile>

namespace tavrel {

DocumentTypes testDocumentTypes() {
    const auto makeWindow = [](Document& document, Desktop& desktop) {
        return std::make_unique<TestWindow>(document, desktop);
    };
    static constexpr LogbookExport counted[]{
        {"counted", "Counted", literal("Counted"), "txt",
         [](Carnet& carnet) -> Expected<QByteArray> { return QByteArray::number(carnet.count()); }}};
    const auto showExport = [](DocumentWindow& window, const FileTaken& isTaken) {
        static_cast<TestWindow&>(window).isTaken = isTaken;
    };
    const auto takesIn = [](const QString& file) { return file.endsWith(QStringLiteral(".log")); };
    const auto takeIn = [](DocumentWindow& window, const QString& file) {
        static_cast<TestWindow&>(window).takenIn.append(file);
    };
    return {{carnetDescription().kind, Title("Main", "Carnet de plongee"), "newCarnetDocumentMenuAction",
             [=](Desktop& desktop) { return std::make_unique<Carnet>(desktop, counted); }, makeWindow, showExport,
             takesIn, takeIn},
            {previBudget().kind, previBudget().title, previBudget().newAction, previBudget().make, makeWindow}};
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
