#pragma once

#include "interchange/xml/xmlwriter.h"
#include "logbook/carnet.h"

#include <string_view>

namespace tavrel {

/// The names by which the dives of UDCF and of UDDF differ.
struct DiveDateNames {
    std::string_view date, year, month, day, time, hour, minute;
};

/// The comments that open both formats below their root: the program's banner, its site, the moment.
void writeComments(XmlWriter& xml, std::string_view banner, const QDateTime& moment);

/// ADDINFO with the number of dives, then REPGROUP with a DIVE for each; the working profile takes the last one's.
Expected<void> writeDives(XmlWriter& xml, Carnet& carnet, const DiveDateNames& names);

}  // namespace tavrel
