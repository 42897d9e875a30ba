#pragma once

#include "logbook/carnet.h"

#include <span>
#include <string_view>

namespace tavrel {

// What a logbook can be exported to. Each builds the bytes of the whole file, dives in logbook order. The exports that
// write profiles first clear the selection of the table. The dive in the form stays as it is. Numbers and dates never
// depend on the locale. The logbook's progress is told of the dives, and cancels.

/// UDCF: the whole logbook as one group of dives, metric. A sampling code outside 0 to 7 repeats the interval of the
/// dive before, 10 s at first.
Expected<QByteArray> exportUDCFFormat(Carnet& carnet);

/// UDDF: a header whose gas is that of the first dive, then the dives in the elements of UDCF. Fails for an empty
/// logbook, which has no first dive.
Expected<QByteArray> exportUDDFFormat(Carnet& carnet);

/// The dive list as text in Mac OS Roman, a line for each dive: the header ends with "\r", the lines with "\n". Values
/// stand as they are, nothing is escaped. Fails, naming dive and character, where a text does not fit the character
/// set.
Expected<QByteArray> exportTextCSVFormat(Carnet& carnet, std::string_view separator, std::string_view ends);

/// All profiles as text in Mac OS Roman, a line for each point. A flag or pressure stands empty in dives whose series
/// is not as long as the depths. The surface flag stands under "CEIL" and the ceiling flag under "SURF".
Expected<QByteArray> exportProfileCSVFormat(Carnet& carnet, std::string_view separator);

/// UDDF 3.2.3, valid against its schema, with all that UDDF has a place for.
Expected<QByteArray> exportStandardUddf(Carnet& carnet);

/// All of them, in the order in which their types are tried.
std::span<const LogbookExport> logbookExports();

}  // namespace tavrel
