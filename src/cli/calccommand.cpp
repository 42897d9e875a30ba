#include "cli/calccommand.h"

#include "base/jsonwriter.h"
#include "base/numbers.h"
#include "calculators/calculatorpage.h"
#include "calculators/conversions.h"
#include "calculators/gps.h"
#include "calculators/gpsreport.h"
#include "calculators/nitrox.h"
#include "dives/oxygenclock.h"

#include <CLI/CLI.hpp>
#include <QRegularExpression>

#include <map>
#include <memory>
#include <ostream>

namespace tavrel {

namespace {

void print(Console& console, const JsonWriter& json) {
    console.out << json.text() << '\n';
}

CLI::App* addCalculator(CLI::App& calc, CalculatorId id) {
    return calc.add_subcommand(calculator(id).command, text(calculator(id).title).toStdString());
}

void addJsonFlag(CLI::App* command, bool& json) {
    command->add_flag("--json", json, "One JSON object, unrounded");
}

// The pages with a table of inputs.

QString colourName(RowColour colour) {
    switch (colour) {
        case RowColour::Red:
            return QStringLiteral("red");
        case RowColour::Black:
            return QStringLiteral("black");
        case RowColour::Unchanged:
            break;
    }
    return QStringLiteral("unchanged");
}

JsonWriter jsonOf(const CalculatorPage& page, const CalculatorResult& result) {
    JsonWriter json;
    json.beginObject();
    for (const CalculatorFigure& figure : result.figures) {
        json.key(QString::fromLatin1(figure.key));
        std::visit([&](auto value) { json.value(value); }, figure.value);
    }
    if (page.rowFieldLetter) {
        json.key(u"rows");
        json.beginArray();
        for (const CalculatorRow& row : result.rows) {
            json.beginObject();
            json.member(u"consumption", row.consumption);
            json.member(u"value", row.value);
            json.member(u"colour", colourName(row.colour));
            json.endObject();
        }
        json.endArray();
    }
    json.endObject();
    return json;
}

/// The partial pressures of the menu, for help.
QString ppO2Choices() {
    QStringList titles;
    for (const double ppO2 : ppO2Menu) {
        titles << ppO2Title(ppO2);
    }
    return titles.join(QStringLiteral(", "));
}

/// The value that an option was given. One without would take the name of the next option for it, in silence.
QString valueOf(const std::string& argument) {
    if (argument.starts_with("--")) {
        wrongUsage(textWith("Cli", "Option for value", fromArgument(argument)));
    }
    return fromArgument(argument);
}

double inputValue(const CalculatorInput& input, const std::string& argument) {
    const QString value = valueOf(argument);
    // The menu's items are a convenience of the window: here any partial pressure counts, and none is no choice.
    if (input.kind == CalculatorInputKind::PpO2Menu && !startsWithNumber(value)) {
        return ppO2OfMenuIndex(-1);
    }
    return doubleValue(value);
}

void addPage(CLI::App& calc, const CalculatorPage& page, Console& console) {
    struct Arguments {
        std::vector<std::string> inputs;
        bool json = false;
    };
    auto arguments = std::make_shared<Arguments>();
    arguments->inputs.resize(page.inputs.size());
    CLI::App* command = addCalculator(calc, page.id);
    for (std::size_t position = 0; position < page.inputs.size(); ++position) {
        const CalculatorInput& input = page.inputs[position];
        std::string help = withoutMnemonic(text(input.label)).toStdString() + ", " + input.unit;
        if (input.kind == CalculatorInputKind::PpO2Menu) {
            help += toArgument(textWith("Cli", "Usual values", ppO2Choices(), ppO2Title(ppO2OfMenuIndex(-1))));
        }
        command->add_option("--" + std::string(input.option), arguments->inputs[position], help)->type_name("NUMBER");
    }
    addJsonFlag(command, arguments->json);
    command->callback([&page, &console, arguments] {
        std::vector<double> values;
        for (std::size_t position = 0; position < page.inputs.size(); ++position) {
            values.push_back(inputValue(page.inputs[position], arguments->inputs[position]));
        }
        const CalculatorResult result = page.evaluate(values);
        if (arguments->json) {
            print(console, jsonOf(page, result));
            return;
        }
        print(console, result.text);
        for (const CalculatorRow& row : result.rows) {
            print(console, row.text);
        }
    });
}

// Unit conversions.

void addConversions(CLI::App& calc, Console& console) {
    struct Arguments {
        std::string from;
        std::string value;
        bool json = false;
    };
    auto arguments = std::make_shared<Arguments>();
    CLI::App* command = addCalculator(calc, CalculatorId::Conversions);
    std::vector<std::string> names;
    for (const ConversionTab& tab : conversionTabs()) {
        for (const ConversionUnit& unit : tab.units) {
            names.emplace_back(unit.name);
        }
    }
    command->add_option("--from", arguments->from, "The unit of the value")
        ->type_name("")
        ->required()
        ->check(CLI::IsMember(names));
    command->add_option("--value", arguments->value, "The value")->type_name("");
    addJsonFlag(command, arguments->json);
    command->callback([&console, arguments] {
        const FoundUnit source = conversionUnit(fromArgument(arguments->from));
        const std::span<const ConversionUnit> units = source.tab->units;
        const std::vector<double> values =
            source.tab->convert(units[source.position].tag, doubleValue(valueOf(arguments->value)));
        JsonWriter json;
        json.beginObject();
        for (std::size_t unit = 0; unit < units.size(); ++unit) {
            json.member(QString::fromLatin1(units[unit].name), values[unit]);
        }
        json.endObject();
        if (arguments->json) {
            print(console, json);
            return;
        }
        for (std::size_t unit = 0; unit < units.size(); ++unit) {
            print(console, shortestText(values[unit]) + u' ' + QString::fromUtf8(units[unit].symbol));
        }
    });
}

// The oxygen clock.

void addCns(CLI::App& calc, Console& console) {
    struct Arguments {
        std::string ppO2;
        std::string time;
        bool json = false;
    };
    auto arguments = std::make_shared<Arguments>();
    CLI::App* command = calc.add_subcommand("cns", text("Carnet", "Figure oxygen clock").toStdString());
    command->add_option("--ppo2", arguments->ppO2, "Oxygen partial pressure, bar")->type_name("NUMBER");
    command->add_option("--time", arguments->time, "Time, min")->type_name("NUMBER");
    addJsonFlag(command, arguments->json);
    command->callback([&console, arguments] {
        const double ppO2 = doubleValue(valueOf(arguments->ppO2));
        const double percent = calculSncClock(ppO2, doubleValue(valueOf(arguments->time)));
        if (arguments->json) {
            JsonWriter json;
            json.beginObject();
            json.member(u"cns", percent);
            json.endObject();
            print(console, json);
            return;
        }
        print(console, textWith("Carnet", "CNS", ppO2, percent));
    });
}

// Positions.

JsonWriter jsonOf(const GeographicPosition& position, const GpsOutput& output, const QStringList* report) {
    JsonWriter json;
    json.beginObject();
    json.member(u"longitude", position.longitude);
    json.member(u"latitude", position.latitude);
    json.member(u"altitude", position.altitude);
    json.key(u"text");
    json.beginArray();
    for (const QString& field : {output.longitude, output.latitude, output.altitude}) {
        json.value(field);
    }
    json.endArray();
    if (report) {
        json.key(u"report");
        json.beginArray();
        for (const QString& line : *report) {
            json.value(line);
        }
        json.endArray();
    }
    json.endObject();
    return json;
}

// "D M S", or with their signs as on a chart: 48°23'12.5".
QStringList angleParts(const QString& argument) {
    static const QRegularExpression separators(QStringLiteral("[\\s°′″'\"]+"));
    return argument.split(separators, Qt::SkipEmptyParts);
}

// What no field takes would be left out without a word, and the position be kilometres off.
void checkAngle(const std::string& argument, bool sexagesimal) {
    const QStringList parts = angleParts(valueOf(argument));
    if (sexagesimal ? parts.size() > 3 : parts.size() > 1 && startsWithNumber(parts[1])) {
        const Title sentence = sexagesimal ? Title("Cli", "Not sexagesimal") : Title("Cli", "Not decimal degrees");
        wrongUsage(textWith(sentence, fromArgument(argument)));
    }
}

SexagesimalAngle angleOf(const QString& argument) {
    QStringList parts = angleParts(argument);
    parts.resize(3);
    return {doubleValue(parts[0]), doubleValue(parts[1]), doubleValue(parts[2])};
}

struct GpsArguments {
    bool sexagesimal = false;
    std::string direction;
    std::string longitude;
    std::string latitude;
    std::string altitude;
    bool json = false;
    bool log = false;
};

constexpr const char* towardsEd50 = "wgs84-ed50";
constexpr const char* towardsWgs84 = "ed50-wgs84";

void runSexagesimal(const GpsArguments& arguments, Console& console) {
    const SexagesimalConversion conversion =
        convertSexagesimal(angleOf(fromArgument(arguments.longitude)), angleOf(fromArgument(arguments.latitude)),
                           doubleValue(valueOf(arguments.altitude)));
    const GpsOutput output = outputOf(conversion);
    const QStringList report = reportLines(gpsReport(conversion));
    if (arguments.json) {
        print(console, jsonOf(conversion.wgs84, output, &report));
        return;
    }
    for (const QString& line : {output.longitude, output.latitude, output.altitude, report.join(u'\n')}) {
        print(console, line);
    }
}

void runDecimal(const GpsArguments& arguments, Console& console) {
    const auto direction =
        arguments.direction == towardsEd50 ? DatumDirection::Wgs84ToEd50 : DatumDirection::Ed50ToWgs84;
    const DecimalConversion conversion = convertDecimal(
        direction, {doubleValue(fromArgument(arguments.longitude)), doubleValue(fromArgument(arguments.latitude)),
                    doubleValue(valueOf(arguments.altitude))});
    if (arguments.log) {
        for (const QString& line : conversion.log) {
            console.error << line.toStdString() << '\n';
        }
    }
    const GpsOutput output = outputOf(conversion);
    if (arguments.json) {
        print(console, jsonOf(conversion.position, output, nullptr));
        return;
    }
    for (const QString& line : {output.longitude, output.latitude, output.altitude}) {
        print(console, line);
    }
}

void addGps(CLI::App& calc, Console& console) {
    auto arguments = std::make_shared<GpsArguments>();
    CLI::App* command = addCalculator(calc, CalculatorId::Gps);
    CLI::Option* sexagesimal = command->add_flag("--sexagesimal", arguments->sexagesimal,
                                                 "ED50 to WGS84 from \"degrees minutes seconds\", with a report; "
                                                 "the parts are added, so west and south each takes its minus sign");
    CLI::Option* direction =
        command->add_option("--direction", arguments->direction, "Decimal degrees: ed50-wgs84 (default) or wgs84-ed50")
            ->type_name("")
            ->check(CLI::IsMember({towardsWgs84, towardsEd50}));
    command->add_option("--lon", arguments->longitude, "Longitude, positive to the east")->type_name("");
    command->add_option("--lat", arguments->latitude, "Latitude, positive to the north")->type_name("");
    command->add_option("--alt", arguments->altitude, "Height above the ellipsoid, m")->type_name("");
    CLI::Option* log = command->add_flag("--log", arguments->log, "The decimal converter's steps on standard error");
    sexagesimal->excludes(direction, log);
    addJsonFlag(command, arguments->json);
    command->callback([&console, arguments] {
        checkAngle(arguments->longitude, arguments->sexagesimal);
        checkAngle(arguments->latitude, arguments->sexagesimal);
        if (arguments->sexagesimal) {
            runSexagesimal(*arguments, console);
        } else {
            runDecimal(*arguments, console);
        }
    });
}

}  // namespace

void addCalcCommand(CLI::App& app, Console& console) {
    CLI::App* calc = app.add_subcommand("calc", "Diving calculators");
    requireOneCommand(*calc, {"Cli", "Calculator required"});
    for (const CalculatorPage& page : calculatorPages()) {
        addPage(*calc, page, console);
    }
    addConversions(*calc, console);
    addCns(*calc, console);
    addGps(*calc, console);
}

}  // namespace tavrel
