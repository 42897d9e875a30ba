#pragma once

#include "cli/commandline.h"

namespace tavrel {

/// Adds the commands that work on documents: show, new, add, set, delete, renumber and find. A command changes the file
/// as a whole or, when it fails, not at all.
void addDocumentCommands(CLI::App& app, Console& console);

}  // namespace tavrel
