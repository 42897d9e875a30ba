#pragma once

#include "dives/plongee.h"

#include <QColor>
#include <QLocale>
#include <QString>

#include <optional>
#include <string_view>

namespace tavrel {

class Preferences;

/// The preferences and the locale that the cells of the logbook table follow, read once for a reload of the table.
struct TableStyle {
    static TableStyle read(const Preferences& preferences, const QLocale& locale = QLocale());

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

    QLocale locale;
    QString dateFormat;  ///< the locale's short format with all digits of the year
};

/// How a cell is drawn beyond its text. Without a background the cell shows the table's own; without a text colour it
/// is written in black where it has a background, and in the table's own colour of text where it has none.
struct CellStyle {
    bool bold = false;
    std::optional<QColor> text;
    std::optional<QColor> background;

    bool operator==(const CellStyle&) const = default;
};

/// The text of a cell of the column that shows the field of that name. Empty for the columns that show an image, for
/// series, and for a field that dives do not have.
QString cellText(const Plongee& dive, std::string_view field, const TableStyle& style);

/// The name of the image that the cell shows, empty for none: a wreck, or the rating of the dive.
QString cellImage(const Plongee& dive, std::string_view field);

/// What the cell says in words, images included: the wreck's name, the rating.
QString cellWords(const Plongee& dive, std::string_view field, const TableStyle& style);

/// The colours and font that the preferences give to a cell.
CellStyle cellStyle(const Plongee& dive, std::string_view field, const TableStyle& style);

}  // namespace tavrel
