#pragma once

#include "records/recordlayout.h"

namespace tavrel {

/// An intervention on a rebreather. Switches are 0 or 1.
struct Rebreather : Record {
    Date date;
    QString rebreatherTime;  ///< running time of the unit, as typed
    Date sofnoTime;          ///< absorbent time, held as a time of day
    qint32 sofnolime = 0;    ///< absorbent replaced
    qint32 disinfection = 0;
    qint32 battery = 0;         ///< replaced
    qint32 cells = 0;           ///< replaced
    qint32 nbCells = 0;         ///< how many
    qint32 injector = 0;        ///< serviced
    qint32 valve = 0;           ///< serviced
    qint32 oRing = 0;           ///< replaced
    qint32 electronicHead = 0;  ///< serviced
    qint32 scrubber = 0;        ///< serviced
    qint32 mpO2 = 0;            ///< partial pressure of oxygen checked
    float mpO2Value = 0;        ///< bar
    // Oxygen cells: fitted, and since when.
    qint32 cell1 = 0, cell2 = 0, cell3 = 0, cell4 = 0, cell5 = 0;
    Date cell1_in, cell2_in, cell3_in, cell4_in, cell5_in;
    QString notes;

    static const RecordLayout& layout();
};

/// When a cell that was fitted then reaches its end, with a life in months of 30.4375 days. The seconds of the life are
/// a 32-bit product, which wraps from 817 months on. No date gives none.
Date endOfCellLife(const Date& fitted, qint32 months);

}  // namespace tavrel
