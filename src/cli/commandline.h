#pragma once

#include "base/failure.h"
#include "base/jsonwriter.h"
#include "base/texts.h"

#include <QDateTime>
#include <QString>

#include <iosfwd>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace CLI {
class App;
}

namespace tavrel {

/// What the global options set for one run: the moment that counts as now, and settings over the user's own, by key.
struct RunOptions {
    std::optional<QDateTime> now;
    std::vector<std::pair<QString, QString>> preferences;
};

/// Where commands write, and how the program will end. A command that fails writes the reason to `error` and sets
/// `exitCode`.
struct Console {
    std::ostream& out;
    std::ostream& error;
    int exitCode = 0;
    RunOptions options = {};
    bool fileSaved = false;  ///< the command did what it was for, whatever becomes of its words
};

inline constexpr int exitFailed = 1;
inline constexpr int exitWrongUsage = 2;

/// A word of the command line as text; the other way for what CLI11 shows.
QString fromArgument(const std::string& argument);
std::string toArgument(const QString& text);

void print(Console& console, const QString& line);
/// Writes straight to the console's output; flush() hands over what is left.
JsonWriter jsonOn(Console& console);
/// Tells why a command could not be done, which ends the program with exitFailed.
void fail(Console& console, const Failure& failure);
/// Leaves a command that was asked for something that does not exist; the program ends with exitWrongUsage.
[[noreturn]] void wrongUsage(const QString& sentence);

/// Requires one of the commands under this one, checked last, so that a misspelt command is named. Without one the
/// sentence is said.
void requireOneCommand(CLI::App& app, const Title& sentence);

/// Adds the options of all commands: --now and --preference.
void addRunOptions(CLI::App& app, Console& console);

/// Parses the arguments and runs the command among them. Returns the exit code: 0 done (help and version included), 1
/// failed, 2 wrong usage.
int runCommandLine(CLI::App& app, int argc, const char* const* argv, Console& console);

}  // namespace tavrel
