#pragma once

#include <functional>

class QWidget;

namespace tavrel {

/// Steps through the pages of a window with Ctrl+Tab and Ctrl+Page Down, back with Ctrl+Shift+Tab and Ctrl+Page Up. The
/// step given is 1 or -1.
void addPageKeys(QWidget& window, const std::function<void(int step)>& go);

}  // namespace tavrel
