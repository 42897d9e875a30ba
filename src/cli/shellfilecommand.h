#pragma once

#include "cli/commandline.h"

namespace tavrel {

/// What a shell needs to know of a program, from its own declarations: a completion script for bash, a manual page
/// (section 1). Hidden commands and options stay out.
std::string bashCompletion(const CLI::App& app);
std::string manualPage(const CLI::App& app);

/// Adds the hidden command that prints either; the build runs it for what is installed.
void addShellFileCommand(CLI::App& app, Console& console);

}  // namespace tavrel
