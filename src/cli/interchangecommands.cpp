#include "cli/interchangecommands.h"

#include "base/texts.h"
#include "cli/session.h"
#include "interchange/exports.h"
#include "interchange/imports.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <map>
#include <memory>
#include <ostream>
#include <vector>

namespace tavrel {

namespace {

struct Arguments {
    std::string file;
    std::string other;  ///< what is imported, or written
    std::string format;
    bool force = false;
};

using Reader = Expected<ImportResult> (*)(Carnet&, const QString&, const Progress&);

/// By the name of the format; without one the file tells.
const std::map<std::string, Reader>& readers() {
    static const std::map<std::string, Reader> byName{
        {"", readDives}, {"udcf", readUDCF}, {"uddf", readUDDF}, {"handheld", readFromiPhoneFile}};
    return byName;
}

/// Saves the dives that came in also when one of them stopped the import; the stop still is a failure.
Expected<void> importInto(Session& session, Carnet& carnet, const Arguments& arguments, Console& console) {
    const auto result = readers().at(arguments.format)(carnet, pathArgument(arguments.other), {});
    if (!result) {
        return tl::unexpected(result.error());
    }
    if (result->taken > 0) {
        if (auto saved = session.save(); !saved) {
            return saved;
        }
        console.fileSaved = true;
    }
    if (!result->isWhole()) {
        return failure(result->message());
    }
    print(console, result->message());
    return {};
}

Expected<void> exportFrom(Carnet& carnet, const Arguments& arguments, Console& console) {
    const auto& exports = logbookExports();
    const auto chosen = std::find_if(exports.begin(), exports.end(),
                                     [&](const LogbookExport& it) { return it.name == arguments.format; });
    const QString type = QString::fromLatin1(chosen->typeName);
    const QString target = pathArgument(arguments.other);
    if (target == u"-" || target == u"/dev/stdout") {
        return carnet.dataRepresentationOfType(type).map(
            [&](const QByteArray& bytes) { console.out.write(bytes.data(), bytes.size()); });
    }
    return carnet.exportAs(target, type);
}

template <class Work>
void withLogbook(const Arguments& arguments, Console& console, Expected<void> (Session::*open)(const QString&),
                 Work work) {
    Session session(console);
    session.byForce = arguments.force;
    const auto done = (session.*open)(pathArgument(arguments.file))
                          .and_then([&] { return session.logbook(); })
                          .and_then([&](Carnet* carnet) { return work(session, *carnet); });
    if (!done) {
        fail(console, done.error());
    }
}

}  // namespace

void addInterchangeCommands(CLI::App& app, Console& console) {
    const auto arguments = std::make_shared<Arguments>();
    const auto addFile = [&](CLI::App* command) {
        command->add_option("FILE", arguments->file, "The logbook")->required();
    };

    CLI::App* importing = app.add_subcommand(
        "import",
        "Appends the dives of a file to a logbook. A dive that cannot be taken ends the import: the dives before it\n"
        "are kept and saved, the reason is told, and the exit code is 1.");
    addFile(importing);
    importing->add_option("SOURCE", arguments->other, "The file with the dives")->required();
    importing->add_flag("--force", arguments->force, forceHelp);
    importing->add_option("--format", arguments->format, "What SOURCE is; told by its contents when not given")
        ->check(CLI::IsMember({"udcf", "uddf", "handheld"}));
    importing->callback([arguments, &console] {
        withLogbook(*arguments, console, &Session::openToChange,
                    [&](Session& session, Carnet& carnet) { return importInto(session, carnet, *arguments, console); });
    });

    std::vector<std::string> formats;
    for (const LogbookExport& it : logbookExports()) {
        formats.emplace_back(it.name);
    }
    CLI::App* exporting = app.add_subcommand(
        "export", "Writes a logbook in another format; TARGET is written as a whole or, on a failure, not at all.");
    addFile(exporting);
    exporting->add_option("TARGET", arguments->other, "The file to write; - is the standard output")->required();
    exporting->add_option("--format", arguments->format, "The format")->required()->check(CLI::IsMember(formats));
    exporting->callback([arguments, &console] {
        withLogbook(*arguments, console, &Session::open,
                    [&](Session&, Carnet& carnet) { return exportFrom(carnet, *arguments, console); });
    });
}

}  // namespace tavrel
