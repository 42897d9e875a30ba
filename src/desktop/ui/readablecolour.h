#pragma once

#include <QColor>

namespace tavrel {

/// The colour made lighter on a dark background, or darker on a light one, until it can be read there: to a contrast of
/// 4.5 to 1 on dark ones and of 3 to 1 on light ones, where bright colours would otherwise lose their hue (by the
/// definitions of contrast and relative luminance of WCAG 2.1). A colour that can be read stays as it is.
QColor readableOn(const QColor& background, const QColor& color);

/// Shows hints in empty fields in the colour of texts at half its strength, now and whenever the desktop's colours
/// change: some desktops leave them black on their dark ones. Lives as long as the application.
void keepPlaceholdersReadable();

}  // namespace tavrel
