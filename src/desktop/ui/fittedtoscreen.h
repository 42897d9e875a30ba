#pragma once

class QWidget;

namespace tavrel {

/// The widget itself where it needs no more than that height, else an area in which it scrolls.
QWidget* scrolledBeyond(int height, QWidget* contents);

/// Puts the contents of a window, whose layout is complete, into an area that scrolls, where they need more room than
/// its screen has.
void fitToScreen(QWidget& window);

}  // namespace tavrel
