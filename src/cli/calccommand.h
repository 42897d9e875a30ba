#pragma once

#include "cli/commandline.h"

namespace tavrel {

/// Adds "calc" with a command per calculator: options named after the page's inputs, an option left out being an empty
/// field. Each prints the page's result text, or with --json one object with the unrounded figures.
void addCalcCommand(CLI::App& app, Console& console);

}  // namespace tavrel
