#pragma once

class QWidget;

namespace tavrel {

/// Shows a window in front of the others, whatever it was before.
void bringToFront(QWidget* window);

}  // namespace tavrel
