#include "base/localzone.h"
#include "base/texts.h"
#include "cli/calccommand.h"
#include "cli/commandline.h"
#include "cli/divecommands.h"
#include "cli/documentcommands.h"
#include "cli/helptexts.h"
#include "cli/inspectcommand.h"
#include "cli/interchangecommands.h"
#include "cli/picturecommand.h"
#include "cli/profilecommand.h"
#include "cli/shellfilecommand.h"
#include "cli/viewcommands.h"

#include <CLI/CLI.hpp>
#include <QGuiApplication>

#include <cstdio>
#include <exception>
#include <iostream>

int main(int argc, char** argv) try {
    std::ios::sync_with_stdio(false);
    tavrel::readLocalZoneOnce();
    // Texts and file names are UTF-8 in every locale. In a bare environment the toolkit says so on standard error,
    // which belongs to the commands.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    // Drawing needs fonts, but no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    tavrel::setTextLanguage();
    CLI::App app("Tavrel on the command line: the documents and calculators of the divers' application", "tavrel-cli");
    app.set_version_flag("--version", "tavrel-cli " TAVREL_VERSION);
    app.footer("Exit codes: 0 done, 1 failed (the reason on standard error, the file as it was), 2 wrong usage.");
    tavrel::Console console{std::cout, std::cerr};
    tavrel::addRunOptions(app, console);
    tavrel::addDocumentCommands(app, console);
    tavrel::addViewCommands(app, console);
    tavrel::addPictureCommand(app, console);
    tavrel::addInspectCommand(app, console);
    tavrel::addInterchangeCommands(app, console);
    tavrel::addDiveCommands(app, console);
    tavrel::addCalcCommand(app, console);
    tavrel::addProfileCommand(app, console);
    tavrel::addShellFileCommand(app, console);
    tavrel::translateHelp(app);
    return tavrel::runCommandLine(app, argc, argv, console);
} catch (const std::exception& error) {
    std::fprintf(stderr, "tavrel-cli: %s\n", error.what());
    return tavrel::exitFailed;
}
