#pragma once

#include "book/column.h"
#include "dives/plongee.h"

#include <QColor>
#include <QString>

#include <string_view>

namespace tavrel {

class Preferences;

/// The preferences that the cells of the logbook table follow.
struct DiveTableStyle : TableStyle {
    DiveTableStyle() = default;
    DiveTableStyle(const Preferences& preferences, const Clock& clock, const QLocale& locale = QLocale());

    bool displayUnits = false;
    bool usUnits = false;

    bool foreignInColor = false;
    bool mixInColor = false;
    bool nightInColor = false;
    bool textInColor = false;
    bool lowTemperatureInColor = false;
    bool depthTimeInColor = false;

    QString countryCode;    ///< home
    QString colouredText;   ///< compared whole
    int colouredTheme = 0;  ///< the column compared: 0 place, 1 site, any other visibility
    qint32 lowTemperature = 0;

    QColor foreignColor;
    QColor lowTemperatureColor;
    QColor depthColor;
    QColor timeColor;
};

/// Refines the cell of the column that shows the field of that name, whose plain text the cell holds: its words, its
/// image (a wreck, the rating of the dive) and the colours and font that the preferences give it.
void describeDiveCell(const Plongee& dive, std::string_view field, const DiveTableStyle& style, Cell& cell);

}  // namespace tavrel
