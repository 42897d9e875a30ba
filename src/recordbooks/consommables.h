#pragma once

#include "records/recordlayout.h"

namespace tavrel {

/// A part or consumable in stock.
struct Consommables : Record {
    QString reference;
    QString marque;
    QString utilisation;
    float stock = 0;
    float reserve = 0;        ///< the level at which to order again
    QString rangement;        ///< where it is kept
    qint32 noInventaire = 0;  ///< 1: not counted at inventories
    Date dateInventaire;      ///< of the last one
    float progress = 0;       ///< never stored; the column of this name shows what stockLevel() gives
    QString notes;

    static const RecordLayout& layout();

    /// The stock in tenths of the reserve, a reserve of 0 counting as 1.
    float stockLevel() const { return stock * 10.0F / (reserve == 0 ? 1.0F : reserve); }
};

}  // namespace tavrel
