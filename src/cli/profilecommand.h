#pragma once

namespace CLI {
class App;
}

namespace tavrel {

struct Console;

/// "profile": the summary, the geometry and the series of a dive's profile, and replacing series by texts.
void addProfileCommand(CLI::App& app, Console& console);

}  // namespace tavrel
