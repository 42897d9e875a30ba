#pragma once

#include <QRectF>
#include <QString>

class QPainter;

namespace tavrel {

/// Paints the icon of that name into the place, in the painter's coordinates: as lines where the painter
/// takes lines (paper, PDF, SVG), sharp at its pixels elsewhere. Nothing when there is none of that name.
void paintDrawingIcon(QPainter& painter, const QString& name, const QRectF& place);

}  // namespace tavrel
