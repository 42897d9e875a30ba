#pragma once

#include "desktop/ui/filedialogs.h"
#include "interchange/imports.h"
#include "logbook/ui/logbookwindow.h"

#include <QObject>

namespace tavrel {

/// The imports of a logbook's window: ask for one file, read it with progress, and tell at the end how many dives came
/// in and what stopped the import. Belongs to the window, whose toolbars and import menu get the commands.
class ImportCommands : public QObject {
    Q_OBJECT

public:
    ImportCommands(Carnet& carnet, LogbookWindow& window, Desktop& desktop, FileDialogs& fileDialogs);

    void importUDCF() { chooseAndImport(ImportFormat::udcf); }
    void importUDDF() { chooseAndImport(ImportFormat::uddf); }

    void importFile(const QString& file, ImportFormat format);

    /// Asks for a file of any kind that holds dives, and opens the window that shows them.
    void importDives();
    void showDivesOf(const QString& file);

private:
    void chooseAndImport(ImportFormat format);

    Carnet& carnet_;
    LogbookWindow& window_;
    Desktop& desktop_;
    FileDialogs& fileDialogs_;
};

}  // namespace tavrel
