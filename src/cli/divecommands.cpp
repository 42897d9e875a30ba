#include "cli/divecommands.h"

#include "base/texts.h"
#include "cli/session.h"
#include "desktop/commonsettings.h"
#include "dives/consumption.h"
#include "dives/divespan.h"
#include "dives/statistics.h"
#include "dives/statisticsreport.h"
#include "logbook/divefigures.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <ostream>

namespace tavrel {

namespace {

struct DiveArguments {
    std::string file;
    int row = 0;
    bool withoutPrevious = false;
    bool json = false;
};

/// Opens the logbook and does the work with it.
template <class Work>
void withLogbook(const DiveArguments& arguments, Console& console, Work work) {
    Session session(console);
    Expected<void> done = session.open(pathArgument(arguments.file));
    if (done) {
        done = session.logbook().and_then([&](Carnet* carnet) { return work(session, *carnet); });
    }
    if (!done) {
        fail(console, done.error());
    }
}

/// A text of the windows, whose lines end in "\r".
void printLines(Console& console, QString text) {
    print(console, text.replace(u'\r', u'\n'));
}

// Gas and oxygen of one dive.

void writeJson(JsonWriter& json, const std::optional<AuxiliaryGas>& gas) {
    if (!gas) {
        json.null();
        return;
    }
    json.beginObject();
    json.member(u"available", gas->available);
    json.member(u"used", gas->used);
    json.member(u"text", gas->text);
    json.key(u"gauge");
    json.beginObject();
    json.member(u"maximum", gas->maximum);
    json.member(u"value", gas->value);
    json.member(u"ticks", gas->ticks);
    json.endObject();
    json.endObject();
}

void printGas(const GasReadings& readings, bool usUnits, bool asJson, Console& console) {
    const Consumption gas = calculVolumeAirConsomme(readings);
    const QString report = consumptionReport(readings, gas, usUnits);
    const auto auxiliaries = auxiliaryGases(readings);
    const OxygenExposure oxygen = oxygenExposure(readings);
    if (!asJson) {
        printLines(console, report);
        for (std::size_t tank = 0; tank < readings.tanks.size(); ++tank) {
            print(console,
                  textWith("Cli", "Pressure drop line", tank + 1, pressureDropText(pressureDrop(readings, tank))));
        }
        for (const auto& auxiliary : auxiliaries) {
            if (auxiliary) {
                printLines(console, auxiliary->text);
            }
        }
        print(console, oxygen.text);
        return;
    }
    JsonWriter json = jsonOn(console);
    json.beginObject();
    json.member(u"available", gas._volumeDisponible);
    json.member(u"used", gas._volumeConsomme);
    json.member(u"perMinute", gas._pressionParMinute);
    json.member(u"sac", gas._sac);
    json.member(u"sacBar", gas._sacBar);
    json.member(u"averageDepth", readings.averageDepth);
    json.member(u"pressureDrop", pressureDrop(readings, 0));
    json.member(u"pressureDrop2", pressureDrop(readings, 1));
    json.member(u"report", report);
    json.key(u"auxiliary");
    json.beginArray();
    for (const auto& auxiliary : auxiliaries) {
        writeJson(json, auxiliary);
    }
    json.endArray();
    json.key(u"cns");
    json.beginObject();
    json.member(u"ppO2", oxygen.ppO2);
    json.member(u"percent", oxygen.percent);
    json.member(u"text", oxygen.text);
    json.endObject();
    json.endObject();
    json.flush();
    console.out << '\n';
}

void runGas(const DiveArguments& arguments, Console& console) {
    withLogbook(arguments, console, [&](Session& session, Carnet& carnet) {
        return session.checkRow(arguments.row).map([&] {
            Desktop& desktop = session.desktop.desktop();
            printGas(gasReadingsOf(*carnet.recordAt(arguments.row), desktop),
                     desktop.preferences.get(settings::usUnits), arguments.json, console);
        });
    });
}

// Statistics.

void writeJson(JsonWriter& json, const Statistics& statistics) {
    json.beginObject();
    json.member(u"total", statistics.total());
    json.key(u"counts");
    json.beginObject();
    for (const StatCountName& name : statCountNames()) {
        json.member(QString::fromLatin1(name.key), statistics.count(name.count));
    }
    json.endObject();
    json.key(u"shares");
    json.beginObject();
    for (const StatCountName& name : statCountNames()) {
        json.member(QString::fromLatin1(name.key), statistics.share(name.count));
    }
    json.endObject();
    json.member(u"prof max", statistics.deepest());
    json.member(u"temps max", statistics.longest());
    json.member(u"total profondeur", statistics.totalDepth());
    json.member(u"total temps", statistics.totalTime());
    json.member(u"average depth", statistics.averageDepth());
    json.member(u"average time", statistics.averageTime());
    json.member(u"temperature min", statistics.coldest());
    json.member(u"temperature max", statistics.warmest());
    json.member(u"temperature mean", statistics.meanTemperature());
    json.key(u"texts");
    json.beginObject();
    for (const StatText& each : statistics.texts()) {
        json.member(each.field, each.text);
    }
    json.endObject();
    json.endObject();
}

void runStats(const DiveArguments& arguments, Console& console) {
    withLogbook(arguments, console, [&](Session& session, Carnet& carnet) -> Expected<void> {
        const PreviousTotals previous = PreviousTotals::read(session.desktop.desktop().preferences);
        const Statistics statistics(divesIn(carnet.records()), arguments.withoutPrevious ? nullptr : &previous);
        if (!arguments.json) {
            printLines(console, statisticsReport(statistics, carnet.displayName()).text());
            return {};
        }
        JsonWriter json = jsonOn(console);
        writeJson(json, statistics);
        json.flush();
        console.out << '\n';
        return {};
    });
}

}  // namespace

void addDiveCommands(CLI::App& app, Console& console) {
    const auto arguments = std::make_shared<DiveArguments>();
    const auto add = [&](const char* name, const char* help) {
        CLI::App* command = app.add_subcommand(name, help);
        command->add_option("FILE", arguments->file, "The logbook")->required();
        command->add_flag("--json", arguments->json, "One JSON object, unrounded");
        return command;
    };
    CLI::App* gas = add("gas", "Gas consumption and oxygen clock of a dive");
    gas->add_option("--row", arguments->row, "The dive's row, from 0")->required();
    gas->callback([arguments, &console] { runGas(*arguments, console); });

    CLI::App* stats = add("stats", "Statistics of all dives and of those before the logbook");
    stats->add_flag("--without-previous", arguments->withoutPrevious, "Leaves out the dives before the logbook");
    stats->callback([arguments, &console] { runStats(*arguments, console); });
}

}  // namespace tavrel
