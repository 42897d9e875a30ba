#pragma once

#include <iosfwd>

namespace CLI {
class App;
}

namespace tavrel {

/// Where commands write, and how the program will end. A command that fails writes the reason to `error` and sets
/// `exitCode`.
struct Console {
    std::ostream& out;
    std::ostream& error;
    int exitCode = 0;
};

inline constexpr int exitFailed = 1;
inline constexpr int exitWrongUsage = 2;

/// Parses the arguments and runs the command among them. Returns the exit code: 0 done (help and version included), 1
/// failed, 2 wrong usage.
int runCommandLine(CLI::App& app, int argc, const char* const* argv, Console& console);

}  // namespace tavrel
