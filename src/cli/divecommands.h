#pragma once

#include "cli/commandline.h"

namespace tavrel {

/// What dives tell: "gas" and "stats".
void addDiveCommands(CLI::App& app, Console& console);

}  // namespace tavrel
