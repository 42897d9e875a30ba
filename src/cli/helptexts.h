#pragma once

namespace CLI {
class App;
}

namespace tavrel {

/// Puts all that --help and the manual page say of the program and its commands into the language of the texts. The
/// descriptions, as the commands declare them in English, are the keys of the table "Help"; one that the table lacks
/// stays as it is.
void translateHelp(CLI::App& app);

}  // namespace tavrel
