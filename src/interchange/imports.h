#pragma once

#include "base/progress.h"
#include "base/texts.h"
#include "interchange/standard/founddive.h"
#include "interchange/standard/sourcereading.h"
#include "logbook/carnet.h"

#include <QByteArrayView>

#include <span>

namespace tavrel {

enum class ImportFormat {
    udcf,      ///< Universal Dive Computer Format
    uddf,      ///< Universal Dive Data Format
    handheld,  ///< the file of the companion logbook on a telephone
};

/// What an import did: how many dives it took over, and, when it ended before the last, at which dive of the file and
/// why. The dives taken are in the logbook in either case.
struct ImportResult {
    int taken = 0;
    int stoppedAt = 0;  ///< the dive of the file, counted from 1, that stopped the import; 0 when none did
    QString why;
    bool cancelled = false;

    // What is remarkable about the dives taken, and those that were not.
    int withoutDate = 0;
    int implausible = 0;       ///< deeper than anyone dived
    int twice = 0;             ///< in the logbook already, or twice in the file
    int leftOut = 0;           ///< in groups of the file that the format's import passes over
    int skipped = 0;           ///< not taken because they are there twice
    bool renumbered = false;   ///< numbered on, as their numbers in the file repeat or are in use
    QString damage;            ///< where the file is damaged, line:column; dives behind it may be missing
    bool readsBetter = false;  ///< the file is of a newer version, which is read by its meaning on the other road

    /// Adds up what a dive taken is remarkable for.
    void count(const FoundDive& dive);
    bool isWhole() const { return stoppedAt == 0 && !cancelled; }
    /// All of it as sentences for the user.
    QString message() const;
};

/// What is told of a file that is damaged at a place.
QString damageText(const QString& place);

/// Appends the dives of a file to the logbook as one undo step. Each goes through the logbook's form, with all its
/// corrections: the form is cleared, filled and built from, and holds the last dive afterwards, with no dive selected.
/// Fails, with the logbook as it was, when the file cannot be read at all. Reports the progress in thousandths.
Expected<ImportResult> readUDCF(Carnet& carnet, const QString& file, const Progress& progress = {});
Expected<ImportResult> readUDDF(Carnet& carnet, const QString& file, const Progress& progress = {});
Expected<ImportResult> readFromiPhoneFile(Carnet& carnet, const QString& file, const Progress& progress = {});

/// The import from bytes.
Expected<ImportResult> importDives(Carnet& carnet, QByteArrayView bytes, ImportFormat format,
                                   const Progress& progress = {});

struct DiveSource;

/// A format's own import, as menus and the command line know it.
struct LogbookImport {
    ImportFormat format;
    SourceKind kind;  ///< what its files are told to be by their contents
    const DiveSource* source;
    const char* name;       ///< "udcf"
    Title title;            ///< of the dialog that asks for a file
    Title files;            ///< what its files are called
    const char* extension;  ///< of files beside txt and xml; null: none
    Title command;          ///< in the menu
    const char* toolItem;   ///< the toolbars' identifier; null: it stands in the menu alone
    Expected<ImportResult> (*read)(Carnet& carnet, const QString& file, const Progress& progress);
};
/// All of them, in the order of the menu.
std::span<const LogbookImport> logbookImports();
const LogbookImport& importOf(ImportFormat format);

}  // namespace tavrel
