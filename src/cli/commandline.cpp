#include "cli/commandline.h"

#include <CLI/CLI.hpp>

namespace tavrel {

int runCommandLine(CLI::App& app, int argc, const char* const* argv, Console& console) {
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& stopped) {
        return app.exit(stopped, console.out, console.error) == 0 ? 0 : exitWrongUsage;
    }
    return console.exitCode;
}

}  // namespace tavrel
