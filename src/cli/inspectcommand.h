#pragma once

#include "cli/commandline.h"

namespace tavrel {

/// Adds "inspect": what any typed stream holds, a document of this program or not.
void addInspectCommand(CLI::App& app, Console& console);

}  // namespace tavrel
