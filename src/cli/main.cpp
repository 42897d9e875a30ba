#include "cli/calccommand.h"
#include "cli/commandline.h"
#include "platform/texts.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>

#include <cstdio>
#include <exception>
#include <iostream>

int main(int argc, char** argv) try {
    QCoreApplication application(argc, argv);
    tavrel::setTextLanguage();
    CLI::App app("Tavrel on the command line: the documents and calculators of the divers' application", "tavrel-cli");
    app.set_version_flag("--version", "tavrel-cli " TAVREL_VERSION);
    app.require_subcommand(1);
    tavrel::Console console{std::cout, std::cerr};
    tavrel::addCalcCommand(app, console);
    return tavrel::runCommandLine(app, argc, argv, console);
} catch (const std::exception& error) {
    std::fprintf(stderr, "tavrel-cli: %s\n", error.what());
    return tavrel::exitFailed;
}
