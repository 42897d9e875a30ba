#pragma once

#include "book/booktable.h"
#include "drawing/pages.h"

namespace tavrel {

/// The table on paper: its shown columns with their headings on each page, all rows, texts and colours as in its
/// window, at the settings' scale; what is wider than the page is made narrower. The title and the page's number stand
/// below. The paper's size, in points, is that of the orientation wanted.
Pages pagesOf(const BookTable& table, const QSizeF& paper, const PrintSettings& settings, const QString& title);

}  // namespace tavrel
