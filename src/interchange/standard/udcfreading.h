#pragma once

#include "base/progress.h"
#include "interchange/standard/founddive.h"
#include "interchange/xml/xmltree.h"

namespace tavrel {

/// Whether the file's dives stand in the elements of UDCF, in upper or lower case, whatever the root is called.
bool isUdcf(XmlElement root);

/// The dives of a UDCF file, of this program's own exports in its elements, or of the companion handheld, by the
/// meaning of the elements: every group, decimals, the true dive time, place and site apart, alarms and switches. The
/// progress counts dives; cancelled, the dives read so far come back.
FoundDives readUdcf(XmlElement root, const Progress& progress = {});

}  // namespace tavrel
