#pragma once

#include "desktop/printsettings.h"
#include "drawing/drawing.h"
#include "drawing/styledtext.h"

#include <QPrinter>
#include <QString>

namespace tavrel {

/// Prints a drawing on one page, as large as fits between the page's margins; whether it came out.
bool printDrawing(QPrinter& printer, const Drawing& drawing);

/// Prints a text over as many pages as it takes, within the printer's margins and at the settings' scale, with the
/// pages' numbers; whether all came out.
bool printStyledText(QPrinter& printer, const StyledText& text, const PrintSettings& settings, const QString& title);

}  // namespace tavrel
