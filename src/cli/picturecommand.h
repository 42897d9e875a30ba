#pragma once

#include "cli/commandline.h"

namespace tavrel {

/// Adds the command that gives back a stored picture as a file.
void addPictureCommand(CLI::App& app, Console& console);

}  // namespace tavrel
