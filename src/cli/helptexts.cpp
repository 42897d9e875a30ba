#include "cli/helptexts.h"

#include "base/texts.h"

#include <CLI/CLI.hpp>

#include <string>

namespace tavrel {

namespace {

std::string translated(const std::string& english) {
    // A description may be broken into lines for the terminal; the key is one line.
    const QString key = QString::fromStdString(english).simplified();
    return key.isEmpty() ? english
                         : text("Help", key.toUtf8().constData(), QString::fromStdString(english)).toStdString();
}

void translateCommand(CLI::App& command) {
    command.description(translated(command.get_description()));
    command.footer(translated(command.get_footer()));
    command.group(translated(command.get_group()));
    for (CLI::Option* option : command.get_options()) {
        option->description(translated(option->get_description()));
        option->group(translated(option->get_group()));
    }
    for (CLI::App* below : command.get_subcommands({})) {
        translateCommand(*below);
    }
}

}  // namespace

void translateHelp(CLI::App& app) {
    // The commands share the program's formatter.
    for (const char* label : {"Usage", "Positionals", "OPTIONS", "SUBCOMMAND", "REQUIRED", "TEXT", "NUMBER"}) {
        app.get_formatter()->label(label, translated(label));
    }
    translateCommand(app);
}

}  // namespace tavrel
