#pragma once

#include "base/texts.h"
#include "desktop/setting.h"
#include "records/date.h"
#include "records/record.h"
#include "records/recordlayout.h"

#include <QColor>
#include <QLocale>
#include <QString>
#include <Qt>

#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace tavrel {

class Clock;

/// How a cell is drawn beyond its text. Without a background the cell shows the table's own; without a text colour it
/// is written in black where it has a background, and in the table's own colour of text where it has none.
struct CellStyle {
    bool bold = false;
    std::optional<QColor> text;
    std::optional<QColor> background;

    bool operator==(const CellStyle&) const = default;
};

/// What a cell of a table shows.
struct Cell {
    QString text;
    QString image;  ///< the name of an icon shown instead of text; empty for none
    QString words;  ///< what the cell says where an image cannot be seen; empty: its text
    CellStyle style;
    bool keepsColour = false;  ///< the text takes the colour of the cell above, which was drawn before it

    const QString& inWords() const { return words.isEmpty() ? text : words; }
};

/// What the cells of a table follow besides their record, read once for a reload of the table: the day, the user's
/// locale, and in a derived struct the settings of one type of document.
struct TableStyle {
    TableStyle() = default;
    explicit TableStyle(const Clock& clock, const QLocale& locale = QLocale());
    virtual ~TableStyle() = default;
    TableStyle(const TableStyle&) = default;
    TableStyle& operator=(const TableStyle&) = default;

    QDateTime now;
    QLocale locale;
    QString dateFormat;  ///< the locale's short format with all digits of the year
};

/// Refines a cell, which shows the field's plain value already.
using CellHook = void (*)(const Record& record, const TableStyle& style, Cell& cell);

/// The width of a column of days: as many digits as the longest day of the year takes in the user's locale.
inline constexpr int widthOfDays = 0;

/// A column of a table. One that shows a field plainly needs only the field and its words.
struct Column {
    const char* field;  ///< of the record; at once the column's identifier and what it sorts by
    Title title;
    int width = 10;  ///< in digits at first; or widthOfDays
    Qt::AlignmentFlag alignment = Qt::AlignLeft;
    CellHook cell = nullptr;               ///< made by cellHook<>
    const Setting<bool>* shown = nullptr;  ///< the setting that shows it; null: it always shows
    bool shownAtFirst = true;
};

namespace bookdetail {

template <class>
struct CellHookTraits;
template <class Class, class Style>
struct CellHookTraits<void (*)(const Class&, const Style&, Cell&)> {
    template <void (*hook)(const Class&, const Style&, Cell&)>
    static void call(const Record& record, const TableStyle& style, Cell& cell) {
        hook(static_cast<const Class&>(record), static_cast<const Style&>(style), cell);
    }
};

}  // namespace bookdetail

/// The hook of a column from a function over its own record and style:
/// void stateCell(const Materiel& item, const TableStyle& style, Cell& cell), as cellHook<stateCell>.
template <auto hook>
inline constexpr CellHook cellHook = &bookdetail::CellHookTraits<decltype(hook)>::template call<hook>;

/// The plain text of a field: texts as they are, whole numbers, decimals as the shortest text that restores them, days
/// in the locale's short format with all digits of the year; 1 January 1900 00:00:00 and no date are empty. Series and
/// pictures have no text.
QString plainText(const Record& record, const Field& field, const TableStyle& style);

}  // namespace tavrel
