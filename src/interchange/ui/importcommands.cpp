#include "interchange/ui/importcommands.h"

#include "base/texts.h"
#include "desktop/alerts.h"
#include "desktop/ui/progresswindow.h"
#include "interchange/ui/importwindow.h"

#include <QAction>

namespace tavrel {

namespace {

/// How a format is asked for and read.
struct FormatCommand {
    Title title;
    Title files;
    QStringList extensions;
    Expected<ImportResult> (*read)(Carnet&, const QString&, const Progress&);
};

const FormatCommand& commandOf(ImportFormat format) {
    const auto extensions = [](const char* own) {
        QStringList all{QStringLiteral("txt"), QStringLiteral("xml")};
        return own ? all << QString::fromLatin1(own) : all;
    };
    static const FormatCommand udcf{Title("Carnet", "Import UDCF"), Title("Carnet", "UDCF files"), extensions("udcf"),
                                    readUDCF};
    static const FormatCommand uddf{Title("Carnet", "Import UDDF"), Title("Carnet", "UDDF files"), extensions("uddf"),
                                    readUDDF};
    static const FormatCommand handheld{Title("Carnet", "Import handheld"), Title("Carnet", "Handheld files"),
                                        extensions(nullptr), readFromiPhoneFile};
    switch (format) {
        case ImportFormat::uddf:
            return uddf;
        case ImportFormat::handheld:
            return handheld;
        case ImportFormat::udcf:
            break;
    }
    return udcf;
}

}  // namespace

ImportCommands::ImportCommands(Carnet& carnet, LogbookWindow& window, Desktop& desktop, FileDialogs& fileDialogs)
    : QObject(&window), carnet_(carnet), window_(window), desktop_(desktop), fileDialogs_(fileDialogs) {
    window.provideCommand(QStringLiteral("importUDCF"), [this] { importUDCF(); });
    window.provideCommand(QStringLiteral("importUDDF"), [this] { importUDDF(); });
    window.addImport(text("Carnet", "Import handheld"), [this] { importHandheld(); });
    window.addImport(text("Interchange", "Import dives command"), [this] { importDives(); });
    window.importActions().constLast()->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_I));
}

void ImportCommands::importDives() {
    const QStringList files = fileDialogs_.filesToOpen(
        &window_, text("Interchange", "Import dives"),
        {{text("Interchange", "Dive files"),
          {QStringLiteral("uddf"), QStringLiteral("udcf"), QStringLiteral("xml"), QStringLiteral("csv"),
           QStringLiteral("tsv"), QStringLiteral("txt"), QString::fromLatin1(carnetDescription().kind.extension)}}},
        false);
    if (!files.isEmpty()) {
        showDivesOf(files.constLast());
    }
}

void ImportCommands::showDivesOf(const QString& file) {
    // What is being edited goes to its own dive before the list changes.
    if (!window_.leaveEditing(Settling::leaving)) {
        return;
    }
    (new ImportWindow(carnet_, desktop_, file, &window_))->show();
}

void ImportCommands::chooseAndImport(ImportFormat format) {
    const FormatCommand& command = commandOf(format);
    const QStringList files =
        fileDialogs_.filesToOpen(&window_, text(command.title), {{text(command.files), command.extensions}}, false);
    if (!files.isEmpty()) {
        importFile(files.constLast(), format);
    }
}

void ImportCommands::importFile(const QString& file, ImportFormat format) {
    if (!window_.leaveEditing(Settling::leaving)) {
        return;
    }
    const auto result = [&] {
        ProgressWindow progress(&window_, text("Carnet", "Importing"));
        return commandOf(format).read(carnet_, file, progress.progress());
    }();
    if (!result) {
        desktop_.alerts.fail(result.error());
        return;
    }
    if (result->taken > 0) {
        carnet_.selectLastDive(carnet_.count() - 1, false);
    }
    // A file that the other road reads better is offered to it, with what came in left to undo.
    if (result->readsBetter) {
        const QStringList answers{text("Interchange", "Import dives command"), text("Main", "No")};
        if (desktop_.alerts.ask(result->message(), answers) == 0) {
            carnet_.undoStack().undo();
            showDivesOf(file);
        }
        return;
    }
    desktop_.alerts.tell(result->message());
}

}  // namespace tavrel
