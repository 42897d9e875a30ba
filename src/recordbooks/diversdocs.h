#pragma once

#include "records/recordlayout.h"

namespace tavrel {

/// A paper of the diver's: attestation, licence, invoice …, with a copy of it as a picture.
struct DiversDocs : Record {
    qint32 type = 0;  ///< 0 attestation, 1 certification, 2 medical certificate, 3 invoice, 4 licence, 5 other
    QString titre;
    QString emetteur;       ///< who issued it
    Date date;              ///< of issue
    qint32 renouveler = 0;  ///< 0 or 1: it must be renewed
    Date dateRenouvellement;
    Image photocopy;
    QString notes;

    static const RecordLayout& layout();
};

}  // namespace tavrel
