#pragma once

class QWidget;

namespace tavrel {

/// Keeps the mouse wheel from changing a value that the user did not choose to edit: without the keyboard focus the
/// widget leaves the wheel to whatever scrolls around it, and the wheel does not give it the focus.
void guardAgainstWheel(QWidget* widget);

}  // namespace tavrel
