#include "cli/interchangecommands.h"

#include "base/numbers.h"
#include "base/safefile.h"
#include "base/texts.h"
#include "cli/session.h"
#include "desktop/commonsettings.h"
#include "desktop/preferences.h"
#include "interchange/exports.h"
#include "interchange/lossreport.h"
#include "interchange/standard/csvtext.h"
#include "interchange/standardimport.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <optional>
#include <ostream>
#include <vector>

namespace tavrel {

namespace {

struct InterchangeArguments {
    std::string file;
    std::string other;  ///< what is imported, or written
    std::string format;
    bool dryRun = false;
    bool json = false;
    bool skipDuplicates = false;
    bool keepDuplicates = false;
    bool byDate = false;
    bool keepTexts = false;
    bool report = false;
    bool force = false;
    std::vector<std::string> columns;
};

/// The road on which any file is read by its meaning.
constexpr const char* byMeaning = "standard";

/// The roads on which a file can be read: that one, and each format's own import.
std::vector<std::string> roads() {
    std::vector<std::string> names{byMeaning};
    for (const LogbookImport& each : logbookImports()) {
        names.emplace_back(each.name);
    }
    return names;
}

/// What a file is read as when nobody says it: what came before version 3 of UDDF by the format's own import.
std::optional<ImportFormat> ownImportOf(SourceKind kind) {
    for (const LogbookImport& each : logbookImports()) {
        if (each.kind == kind) {
            return each.format;
        }
    }
    return std::nullopt;
}

/// The dives found, or the format by whose import they are taken.
struct Reading {
    std::optional<ImportFormat> format;
    FoundDives found;
};

Expected<Reading> readingOf(Carnet& carnet, const InterchangeArguments& arguments) {
    const QString path = pathArgument(arguments.other);
    for (const LogbookImport& each : logbookImports()) {
        if (arguments.format == each.name) {
            return Reading{each.format, {}};
        }
    }
    const bool forced = arguments.format == byMeaning;
    return FileBytes::open(path)
        .and_then([&](const FileBytes& file) {
            return findDives(carnet, file.bytes()).map_error([&](const Failure& reason) {
                return openingFailure(path, reason);
            });
        })
        .and_then([&](Source&& source) -> Expected<Reading> {
            if (!source.columns.empty() && !holdsDay(source.columns)) {
                return failure(textWith("Interchange", "Table without date", path));
            }
            const auto format = forced ? std::nullopt : ownImportOf(source.kind);
            return Reading{format, format ? FoundDives() : std::move(source.found)};
        });
}

/// What the dives lack of the file, and what the file may lack.
QStringList lostLines(const FoundDives& found) {
    const QStringList lines = lostItemLines(found);
    return found.damage.isEmpty() ? lines : lines + QStringList(damageText(found.damage));
}

void writeFound(const FoundDives& found, JsonWriter json) {
    json.beginObject();
    json.key(u"dives");
    json.beginArray();
    for (const FoundDive& it : found.dives) {
        const QDateTime start = startOf(it.dive);
        const BreathedGas gas = breathedGas(it.dive);
        json.beginObject();
        json.member(u"date", start.date().toString(Qt::ISODate));
        json.member(u"time", start.time().toString(QStringLiteral("HH:mm")));
        json.member(u"depth", it.dive.profondeur);
        json.member(u"minutes", it.dive.temps);
        json.member(u"o2", gas.oxygen);
        json.member(u"he", gas.helium);
        json.member(u"samples", static_cast<qint64>(it.dive.hasProfile() ? it.dive.profilProfondeur.size() : 0));
        json.member(u"duplicate", it.duplicate);
        json.key(u"doubts");
        json.beginArray();
        for (const Doubt doubt : it.doubts) {
            json.value(doubtName(doubt));
        }
        json.endArray();
        json.endObject();
    }
    json.endArray();
    json.key(u"lost");
    json.beginArray();
    for (const QString& line : lostLines(found)) {
        json.value(line);
    }
    json.endArray();
    json.endObject();
    json.flush();
}

void printFound(const FoundDives& found, const QString& length, Console& console) {
    for (const FoundDive& it : found.dives) {
        const QDateTime start = startOf(it.dive);
        const BreathedGas gas = breathedGas(it.dive);
        QStringList cells{
            start.isValid() ? start.toString(QStringLiteral("yyyy-MM-dd HH:mm")) : QStringLiteral("----------------"),
            shortestText(it.dive.profondeur) + length,
            QString::number(it.dive.temps) + QStringLiteral(" min"),
            QStringLiteral("%1/%2").arg(gas.oxygen).arg(gas.helium),
            it.dive.lieu + (it.dive.site.isEmpty() || it.dive.lieu.isEmpty() ? QString() : QStringLiteral(", ")) +
                it.dive.site,
            it.remarks().join(QStringLiteral("; ")),
        };
        print(console, cells.join(QStringLiteral("  ")).trimmed());
    }
    for (const QString& line : lostLines(found)) {
        print(console, line);
    }
}

Expected<void> previewInto(Carnet& carnet, const InterchangeArguments& arguments, Console& console) {
    return readingOf(carnet, arguments)
        .and_then([&](Reading&& reading) {
            return reading.format ? previewOwnImport(carnet, pathArgument(arguments.other), *reading.format)
                                  : Expected<FoundDives>(std::move(reading.found));
        })
        .map([&](const FoundDives& found) {
            if (!arguments.json) {
                const bool usUnits = carnet.desktop().preferences.get(settings::usUnits);
                return printFound(found, usUnits ? QStringLiteral(" ft") : QStringLiteral(" m"), console);
            }
            writeFound(found, jsonOn(console));
            console.out << '\n';
        });
}

/// Saves the dives that came in also when one of them stopped the import; the stop still is a failure.
Expected<void> importInto(Session& session, Carnet& carnet, const InterchangeArguments& arguments, Console& console) {
    if (arguments.dryRun) {
        return previewInto(carnet, arguments, console);
    }
    auto reading = readingOf(carnet, arguments);
    if (!reading) {
        return tl::unexpected(reading.error());
    }
    const TakeChoices choices{!arguments.keepDuplicates && (arguments.skipDuplicates || !reading->format),
                              arguments.byDate, arguments.keepTexts};
    const auto result = reading->format ? runOwnImport(carnet, pathArgument(arguments.other), *reading->format, choices)
                                        : Expected<ImportResult>(takeDives(carnet, std::move(reading->found), choices));
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

Expected<void> exportFrom(Carnet& carnet, const InterchangeArguments& arguments, Console& console) {
    const auto exports = logbookExports();
    const auto chosen = std::find_if(exports.begin(), exports.end(),
                                     [&](const LogbookExport& it) { return it.name == arguments.format; });
    QStringList columns;
    for (const std::string& column : arguments.columns) {
        columns.append(QString::fromStdString(column));
    }
    if (!columns.isEmpty() && !chosen->hasColumns()) {
        return failure(text("Interchange", "No columns to choose"), QLatin1String(chosen->name));
    }
    const auto missing =
        std::find_if(columns.begin(), columns.end(), [](const QString& column) { return !csvItem(column); });
    if (missing != columns.end()) {
        return failure(textWith("Interchange", "No such column", *missing));
    }
    if (arguments.report) {
        return lossesOf(carnet, *chosen, carnet.records(), columns).map([&](const std::vector<FieldLoss>& losses) {
            for (const QString& line : lossLines(losses)) {
                print(console, line);
            }
        });
    }
    const QString target = pathArgument(arguments.other);
    const auto bytes =
        columns.isEmpty() ? chosen->produce(carnet) : chosen->produceFrom(carnet, carnet.records(), columns);
    if (bytes && (target == u"-" || target == u"/dev/stdout")) {
        console.out.write(bytes->data(), bytes->size());
        return {};
    }
    return carnet.writeExport(target, bytes);
}

template <class Work>
void withLogbook(const InterchangeArguments& arguments, Console& console,
                 Expected<void> (Session::*open)(const QString&), Work work) {
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
    const auto arguments = std::make_shared<InterchangeArguments>();
    const auto addFile = [&](CLI::App* command) {
        command->add_option("FILE", arguments->file, "The logbook")->required();
    };

    CLI::App* importing = app.add_subcommand(
        "import",
        "Appends the dives of a file to a logbook: UDDF 3, another logbook and, with --format standard, anything that\n"
        "holds dives are read by their meaning. In the other formats a dive that cannot be taken ends the import: the\n"
        "dives before it are kept and saved, the reason is told, and the exit code is 1.");
    addFile(importing);
    importing->add_option("SOURCE", arguments->other, "The file with the dives")->required();
    importing->add_flag("--force", arguments->force, forceHelp);
    importing->add_option("--format", arguments->format, "How SOURCE is read; told by its contents when not given")
        ->check(CLI::IsMember(roads()));
    CLI::Option* dryRun =
        importing->add_flag("--dry-run", arguments->dryRun, "Prints the dives that SOURCE holds and changes nothing");
    importing->add_flag("--json", arguments->json, "Prints them as JSON")->needs(dryRun);
    CLI::Option* skip = importing->add_flag("--skip-duplicates", arguments->skipDuplicates,
                                            "Leaves out dives that the logbook holds already; on for standard");
    importing->add_flag("--keep-duplicates", arguments->keepDuplicates, "Takes them too")->excludes(skip);
    importing->add_flag("--by-date", arguments->byDate, "Orders all dives by date and numbers them on");
    importing->add_flag("--keep-texts", arguments->keepTexts,
                        "Adds words that have no field of their own to the notes");
    importing->callback([arguments, &console] {
        // What is only shown needs no lock.
        withLogbook(*arguments, console, arguments->dryRun ? &Session::open : &Session::openToChange,
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
    exporting->add_option("--columns", arguments->columns, "The fields that a table gets columns for; all of them else")
        ->delimiter(',')
        ->allow_extra_args(false);
    exporting->add_flag("--report", arguments->report,
                        "Prints which fields the format would lose, and of how many dives; writes nothing");
    exporting->callback([arguments, &console] {
        withLogbook(*arguments, console, &Session::open,
                    [&](Session&, Carnet& carnet) { return exportFrom(carnet, *arguments, console); });
    });
}

}  // namespace tavrel
