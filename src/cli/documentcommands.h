#pragma once

#include "cli/commandline.h"

#include <string>
#include <vector>

namespace tavrel {

class BookForm;

/// Enters every "field=value" into the form; a failure when a file among them cannot be read. What the form does not
/// have is wrong usage.
Expected<void> enterAll(BookForm& form, const std::vector<std::string>& entries);

/// Adds the commands that work on documents: show, new, add, set, delete, renumber, find and sort. A command changes
/// the file as a whole or, when it fails, not at all.
void addDocumentCommands(CLI::App& app, Console& console);

}  // namespace tavrel
