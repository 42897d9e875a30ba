#pragma once

#include <QFont>

namespace tavrel {

/// The system's font of fixed pitch in the size of another, for figures that stand in columns.
QFont fixedPitch(const QFont& sized);

}  // namespace tavrel
