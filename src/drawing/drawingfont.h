#pragma once

#include <QFont>

namespace tavrel {

/// The font of all texts of drawings, for whoever lays them out; the size in points of the drawing. Without hinting a
/// text is as long at every scale, relative to the drawing.
QFont drawingFont(double size, bool bold = false);

}  // namespace tavrel
