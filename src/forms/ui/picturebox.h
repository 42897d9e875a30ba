#pragma once

#include "forms/ui/formcontrol.h"

#include <memory>

namespace tavrel {

/// The widget of a picture: shown as large as its place allows, and at its own size in a window; chosen from a file,
/// dropped or pasted; exported, copied and removed. What could not be taken or shown is said below it.
std::unique_ptr<FormControl> makePictureControl(FormStateBase& state, int index);

}  // namespace tavrel
