#pragma once

#include "interchange/imports.h"
#include "interchange/standard/sourcereading.h"
#include "logbook/carnet.h"

#include <QByteArrayView>

namespace tavrel {

// The front door: a file's dives are found first, with what is doubtful about them, and taken over when the user has
// chosen. Nothing in the logbook changes before.

/// The dives of a file, with their doubts, and those marked that the logbook holds already. A table's columns mean what
/// its headings mean. The progress is in thousandths; cancelled, the reading fails.
Expected<Source> findDives(const Carnet& carnet, QByteArrayView bytes, const Progress& progress = {});

/// What the headings of tables mean: the titles of the form where one stands for one field alone, and before them what
/// the user chose, which is remembered by heading.
TableColumns tableColumns(const Preferences& preferences);
void rememberTableColumns(Preferences& preferences, const TableColumns& chosen);

/// Notes the doubts of found dives, takes their numbers into the logbook's units, and marks those that it holds
/// already.
void judge(const Carnet& carnet, FoundDives& found);

/// What the file holds and a dive does not, each with the count of dives.
QStringList lostItemLines(const FoundDives& found);

struct TakeChoices {
    bool skipDuplicates = true;
    bool renumberByDate = false;  ///< puts all dives of the logbook in the order of their dates and numbers them on
    bool keepLostTexts = false;   ///< words that have no field of their own go to the notes
};

/// Appends found dives as one undo step. They keep their numbers where each has one that no other dive has, in the file
/// or the logbook; else all are numbered on.
ImportResult takeDives(Carnet& carnet, FoundDives found, const TakeChoices& choices);

/// What a format's own import would bring, as found dives, with the logbook left as it was; and
/// that import itself, where dives that the logbook holds already may be left out.
Expected<FoundDives> previewOwnImport(Carnet& carnet, const QString& file, ImportFormat format);
Expected<ImportResult> runOwnImport(Carnet& carnet, const QString& file, ImportFormat format,
                                    const TakeChoices& choices);

}  // namespace tavrel
