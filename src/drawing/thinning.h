#pragma once

#include <QPainterPath>
#include <QPointF>

#include <vector>

namespace tavrel {

/// A line through many points as a path that looks the same: of the points that follow each other within a column of
/// that width at most four stay, the first, the highest, the lowest and the last. Points that are no numbers are left
/// out.
QPainterPath thinnedPath(const std::vector<QPointF>& points, double column);

}  // namespace tavrel
