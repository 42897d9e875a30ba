#pragma once

#include "cli/commandline.h"

namespace tavrel {

/// Adds "import", which appends the dives of a file to a logbook, and "export", which writes a logbook in another
/// format.
void addInterchangeCommands(CLI::App& app, Console& console);

}  // namespace tavrel
