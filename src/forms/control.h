#pragma once

#include "base/texts.h"
#include "desktop/picklists.h"

#include <optional>
#include <span>

namespace tavrel {

/// An item of a pop-up menu or radio group. The record stores the tag; the menu shows the items in the order given.
struct Choice {
    int tag;
    Title title;
};

enum class ControlKind {
    text,
    wholeNumber,
    decimal,
    combo,     ///< text with a list of choices
    popUp,     ///< one of its choices, by tag
    radio,     ///< the same, all choices in sight
    onOff,     ///< a switch: tag 0 or 1
    slider,    ///< a tag between two bounds
    rating,    ///< a tag between two bounds, shown as so many stars with its word
    date,      ///< the day of a Date
    time,      ///< the time of day of a Date
    longText,  ///< text of many lines
    readOnly,  ///< text that the program writes
    gauge,     ///< a level from 0 to a maximum, hidden when it has none
    progress,  ///< a percentage that the program works out, as a bar
    picture,   ///< an image, chosen from a file, dropped or pasted
    button,    ///< an action of the form; edited() is sent when it is pressed
    view,      ///< room for a view that the document's window puts there
};

/// What the text of a control leads to outside the program.
enum class Opens { nothing, mail, web, phone };

/// One control of a form, declared once. Its state, its loading and building, and its widget all come from here.
struct Control {
    const char* name;  ///< "profondeurField"; in a row of controls % stands for the place
    ControlKind kind = ControlKind::text;
    const char* field = "";  ///< key of the record's field; empty: derived
    Title label = {};
    Title unit = {};  ///< shown behind the control
    Title tip = {};
    const char* clearedText = "";  ///< the text of a cleared form
    int clearedTag = 0;            ///< the tag of a cleared form
    std::span<const Choice> choices = {};
    int minimum = 0, maximum = 0;  ///< bounds of a slider or rating
    /// Numbers beyond these are stored all the same, with a hint beside them.
    std::optional<double> usualMinimum = {}, usualMaximum = {};
    std::optional<int> notGiven = {};       ///< the number that stands for none
    std::optional<PickList> pickList = {};  ///< the shared list of a combo
    int ownList = -1;                       ///< the list of a combo that its document owns, by the document's number
    int width = 0;                          ///< in characters; 0: by kind
    std::span<const Title> captions = {};   ///< of a caption that the program writes: the words that it may be
    bool beside = false;                    ///< stands behind the control before it instead of under a label
    bool emptyAt1900 = false;               ///< of a date: 1 January 1900 stands for none and shows as empty
    Opens opens = Opens::nothing;           ///< what a text opens on a click with the control key
    bool fixedPitch = false;                ///< of a long text: a table of figures
    bool alignRight = false;                ///< of a text: numbers kept as typed, prices and quantities
};

enum class GroupLayout {
    pairs,    ///< label and control, side by side, in a number of columns
    columns,  ///< a grid: each row of controls is a column under its label
    rows,     ///< a grid: each row of controls is a line behind its label
};

/// The place of a group that takes the whole width of its page, below the groups before it.
inline constexpr int wholeWidth = -1;

/// A titled group of a form's page; the controls added after it belong to it.
struct Group {
    int page = 0;  ///< from 1
    Title title = {};
    GroupLayout layout = GroupLayout::pairs;
    int columns = 1;      ///< of a pairs layout
    int placeColumn = 0;  ///< column of the page, under its groups so far; or wholeWidth
};

}  // namespace tavrel
