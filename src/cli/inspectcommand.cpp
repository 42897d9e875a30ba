#include "cli/inspectcommand.h"

#include "archive/typedstreamtree.h"
#include "base/safefile.h"
#include "base/texts.h"
#include "cli/session.h"

#include <CLI/CLI.hpp>
#include <QByteArrayView>

#include <memory>

namespace tavrel {

namespace {

void printSummary(const StreamSummary& summary, Console& console) {
    print(console, summary.littleEndian ? text("Cli", "Little-endian") : text("Cli", "Big-endian"));
    print(console, textWith("Cli", "System version", qint64{summary.systemVersion}));
    print(console, textWith("Cli", "Groups", summary.groups));
    print(console, textWith("Cli", "Objects", summary.objects));
    print(console, textWith("Cli", "References", summary.references));
    print(console, text("Cli", "Classes"));
    for (const auto& each : summary.classes) {
        print(console, textWith("Cli", "Class line", each.name, qint64{each.version}, each.objects));
    }
}

Expected<void> inspect(QByteArrayView bytes, bool json, Console& console) {
    if (json) {
        JsonWriter writer = jsonOn(console);
        return writeStreamJson(writer, bytes).map([&] { console.out << '\n'; });
    }
    return inspectStream(bytes).map([&](const StreamSummary& summary) { printSummary(summary, console); });
}

}  // namespace

void addInspectCommand(CLI::App& app, Console& console) {
    struct Arguments {
        std::string file;
        bool json = false;
    };
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand("inspect", "Tells what a typed stream holds");
    command->add_option("FILE", arguments->file, "Any typed stream")->required();
    command->add_flag("--json", arguments->json, "The whole tree, as one JSON object");
    command->callback([arguments, &console] {
        const QString path = pathArgument(arguments->file);
        const auto bytes = FileBytes::open(path);
        if (!bytes) {
            fail(console, bytes.error());
        } else if (const auto done = inspect(bytes->bytes(), arguments->json, console); !done) {
            fail(console, openingFailure(path, done.error()));
        }
    });
}

}  // namespace tavrel
