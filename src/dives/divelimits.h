#pragma once

#include <QtGlobal>

namespace tavrel {

/// Metres above the sea; an altitude higher than that is taken for a slip.
inline constexpr qint32 highestAltitude = 4000;

}  // namespace tavrel
