#pragma once

#include "desktop/setting.h"

namespace tavrel::settings {

/// The first save of a file keeps its contents before, under its name and "~".
inline constexpr Setting<bool> keepsBackup{"keep backup", true, true};

}  // namespace tavrel::settings
