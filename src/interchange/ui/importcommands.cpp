#include "interchange/ui/importcommands.h"

#include "base/texts.h"
#include "desktop/alerts.h"
#include "desktop/ui/progresswindow.h"
#include "interchange/ui/importwindow.h"

#include <QAction>

namespace tavrel {

namespace {

/// What the files of any import may be called.
const QStringList commonExtensions{QStringLiteral("txt"), QStringLiteral("xml")};

}  // namespace

ImportCommands::ImportCommands(Carnet& carnet, LogbookWindow& window, Desktop& desktop, FileDialogs& fileDialogs)
    : QObject(&window), carnet_(carnet), window_(window), desktop_(desktop), fileDialogs_(fileDialogs) {
    for (const LogbookImport& each : logbookImports()) {
        window.addImport(each.command, each.toolItem, [this, format = each.format] { chooseAndImport(format); });
    }
    window.addImport({"Interchange", "Import dives command"}, nullptr, [this] { importDives(); });
    window.importActions().constLast()->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_I));
}

void ImportCommands::importDives() {
    QStringList extensions;
    for (const LogbookImport& each : logbookImports()) {
        if (each.extension) {
            extensions << QString::fromLatin1(each.extension);
        }
    }
    extensions << commonExtensions << QStringLiteral("csv") << QStringLiteral("tsv")
               << QString::fromLatin1(carnetDescription().kind.extension);
    const QStringList files = fileDialogs_.filesToOpen(&window_, text("Interchange", "Import dives"),
                                                       {{text("Interchange", "Dive files"), extensions}}, false);
    if (!files.isEmpty()) {
        showDivesOf(files.constLast());
    }
}

void ImportCommands::showDivesOf(const QString& file) {
    // What is being edited goes to its own dive before the list changes.
    if (!window_.leaveEditing(Settling::leaving)) {
        return;
    }
    (new ImportWindow(
         carnet_, desktop_, file, [this] { return window_.leaveEditing(Settling::leaving); }, &window_))
        ->show();
}

void ImportCommands::chooseAndImport(ImportFormat format) {
    const LogbookImport& chosen = importOf(format);
    QStringList extensions = commonExtensions;
    if (chosen.extension) {
        extensions << QString::fromLatin1(chosen.extension);
    }
    const QStringList files =
        fileDialogs_.filesToOpen(&window_, text(chosen.title), {{text(chosen.files), extensions}}, false);
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
        return importOf(format).read(carnet_, file, progress.progress());
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
