#pragma once

#include "cli/commandline.h"

namespace tavrel {

/// Adds the commands that show a document as its windows do: table, form, card and render. They change no document.
void addViewCommands(CLI::App& app, Console& console);

}  // namespace tavrel
