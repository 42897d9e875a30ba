#pragma once

#include "book/booktable.h"
#include "drawing/pages.h"

#include <vector>

namespace tavrel {

/// What of a book's table goes to paper, in the order of its window.
struct TablePart {
    struct Chosen {
        int column;        ///< of BookTable
        double width = 0;  ///< in digits; 0: as its contents need
    };

    RecordList records;
    std::vector<Chosen> columns;
    bool isAsOnScreen = false;  ///< with the decimal sign of the language
};

/// All records, with the columns that the settings show.
TablePart wholeTable(const BookBase& book);

/// The table on pages: columns with their headings on each, texts, icons and colours as in its window. Columns take the
/// width of the page: narrow ones are widened, and such as are a little too wide are made smaller; where even that does
/// not do, columns go to further pages.
Pages pagesOf(const BookBase& book, TablePart part, const Paper& paper);

}  // namespace tavrel
