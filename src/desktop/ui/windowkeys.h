#pragma once

#include <functional>

class QWidget;

namespace tavrel {

/// Closes a window with the platform's keys for that, and with Escape.
void addCloseKeys(QWidget& window);

/// Steps through the pages of a window, which are numbered from 1, with Ctrl+Tab and Ctrl+Page Down, back with
/// Ctrl+Shift+Tab and Ctrl+Page Up; behind the last comes the first.
void addPageKeys(QWidget& window, int pages, const std::function<int()>& shown,
                 const std::function<void(int page)>& go);

}  // namespace tavrel
