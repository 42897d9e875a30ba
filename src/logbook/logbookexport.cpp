#include "logbook/logbookexport.h"

#include "logbook/carnet.h"

namespace tavrel {

Expected<QByteArray> LogbookExport::produceFrom(const Carnet& carnet, const RecordList& dives,
                                                const QStringList& columns) const {
    if (hasColumns()) {
        return produceColumns(dives, columns, carnet.progress());
    }
    Carnet chosen(carnet.desktop());
    chosen.replaceList(dives);
    chosen.setProgress(carnet.progress());
    return produce(chosen);
}

}  // namespace tavrel
