#pragma once

#include "drawing/drawing.h"
#include "profile/profilegeometry.h"

namespace tavrel {

/// The picture of a profile, with its data table, title and description. It is the geometry painted, except where that
/// could not be read: labels and icons that would cover each other or leave the view stand aside or are thinned out,
/// and a line has no more points than can be told apart.
Drawing profileDrawing(const ProfileDive& dive, const ProfileStyle& style);
/// The same for a geometry that is made already. Letters are so many times as large as usual, for a picture that is
/// shown small: 1 to 2.
Drawing profileDrawing(const ProfileGeometry& geometry, const ProfileDive& dive, const ProfileStyle& style,
                       double letters = 1);

}  // namespace tavrel
