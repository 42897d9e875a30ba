#pragma once

#include "desktop/preferences.h"
#include "interchange/standard/founddive.h"

namespace tavrel {

// A logbook's numbers are in the units of the user's setting; files that are read and written by their meaning hold
// metres and degrees Celsius.

/// Takes dives out of a file into the logbook's units, unless they are in these already.
void toLogbookUnits(const Preferences& preferences, FoundDives& found);
/// The dives of a logbook in a file's units.
RecordList inFileUnits(const Preferences& preferences, const RecordList& dives);

}  // namespace tavrel
