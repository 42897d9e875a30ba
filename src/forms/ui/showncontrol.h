#pragma once

#include "forms/ui/formcontrol.h"

#include <memory>

namespace tavrel {

/// The widget of a control that shows more than it takes: written text, gauge, bar of a percentage, rating.
std::unique_ptr<FormControl> makeShownControl(FormStateBase& state, int index);

}  // namespace tavrel
