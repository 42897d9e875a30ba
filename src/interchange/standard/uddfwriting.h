#pragma once

#include "base/failure.h"
#include "base/progress.h"
#include "dives/plongee.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <vector>

namespace tavrel {

/// What a UDDF file says beside its dives.
struct UddfHeader {
    QDateTime moment;  ///< of writing
    QString owner;     ///< may be empty
};

/// The dives as UDDF 3.2.3, in the order given: valid against its schema whatever the dives hold, and all that UDDF has
/// a place for. Positions in ED50 become WGS84, which is all that UDDF knows. A dive without a date starts on the first
/// day of the year 1, which readers take for none. The progress counts dives; fails when it cancels.
Expected<QByteArray> writeUddf(const RecordList& dives, const UddfHeader& header, const Progress& progress = {});

}  // namespace tavrel
