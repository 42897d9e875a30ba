#include "cli/calccommand.h"

#include "calculators/calculators.h"

#include <CLI/CLI.hpp>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

#include <sstream>

namespace tavrel {

namespace {

struct Outcome {
    int code;
    std::string out, error;
    QJsonObject json() const { return QJsonDocument::fromJson(QByteArray::fromStdString(out)).object(); }
};

Outcome calc(std::vector<const char*> arguments) {
    std::ostringstream out, error;
    Console console{out, error};
    CLI::App app;
    addCalcCommand(app, console);
    arguments.insert(arguments.begin(), {"tavrel-cli", "calc"});
    const int code = runCommandLine(app, static_cast<int>(arguments.size()), arguments.data(), console);
    return {code, out.str(), error.str()};
}

TEST(CalcCommand, printsTheResultTextOrOneJsonObject) {
    const std::pair<std::vector<const char*>, const char*> cases[] = {
        {{"mod", "--o2", "32"}, "MOD : 33.8 m\n"},
        {{"mod", "--o2=32", "--ppo2", "1,60"}, "MOD : 40.0 m\n"},
        {{"mod", "--o2", "32", "--ppo2", ""}, "MOD : 33.8 m\n"},
        {{"trimix-min-depth", "--o2", "17"}, "The values are not valid.\n"},
        {{"cns", "--ppo2", "1.6", "--time", "30"}, "ppO₂ 1.60 bar, CNS clock 66.6 %\n"},
        {{"cns", "--ppo2", "0,7", "--time", "100", "--json"}, "{\"cns\": 18}\n"},
        {{"cns", "--time=", "--ppo2=1.6", "--json"}, "{\"cns\": 0}\n"},
        {{"mod", "--json"}, "{\"mod\": \"inf\"}\n"},
        {{"blend", "--json"}, "{\"oxygen\": 0, \"topUp\": \"nan\"}\n"},
        {{"trimix-min-depth", "--o2", "16", "--json"}, "{\"valid\": true, \"depth\": 0}\n"},
        {{"trimix-min-depth", "--json"}, "{\"valid\": false}\n"},
        {{"soda-time", "--weight", "2.5", "--capacity", "100", "--production", "1.6", "--json"},
         "{\"hours\": 2, \"minutes\": 36}\n"},
        {{"convert", "--from", "celsius", "--value", "-40"}, "-40 °C\n-40 °F\n233.14999999999998 K\n"},
        {{"convert", "--from", "kelvin", "--value", "-.5", "--json"},
         "{\"celsius\": -273.65, \"fahrenheit\": -460.57, \"kelvin\": -0.5}\n"},
    };
    for (const auto& [arguments, out] : cases) {
        const Outcome outcome = calc(arguments);
        EXPECT_EQ(outcome.code, 0) << arguments[0] << outcome.error;
        EXPECT_EQ(outcome.out, out);
    }
}

TEST(CalcCommand, everyCalculatorAnswersInJson) {
    for (const Calculator& each : calculators()) {
        std::vector<const char*> arguments{each.command, "--json"};
        if (each.id == CalculatorId::Conversions) {
            arguments.insert(arguments.end(), {"--from", "psi"});
        }
        const Outcome outcome = calc(arguments);
        EXPECT_EQ(outcome.code, 0) << each.command << outcome.error;
        EXPECT_FALSE(outcome.json().isEmpty()) << outcome.out;
    }
}

TEST(CalcCommand, rowsCarryTheirColour) {
    const Outcome outcome = calc({"scr-flow", "--o2", "5", "--consumption", "1", "--fraction", "0", "--json"});
    const QJsonArray flows = outcome.json()[u"rows"].toArray();
    ASSERT_EQ(flows.size(), 11);
    EXPECT_EQ(flows[0][u"colour"].toString().toStdString(), "black");
    EXPECT_EQ(flows[2][u"colour"].toString().toStdString(), "unchanged");
    EXPECT_EQ(flows[3][u"colour"].toString().toStdString(), "red");
    EXPECT_EQ(flows[10][u"consumption"].toDouble(), 1.8);
}

TEST(CalcCommand, gpsConvertsEitherWay) {
    const Outcome decimal = calc({"gps", "--direction", "wgs84-ed50", "--lon", "-2.35", "--lat", "48.85", "--log"});
    EXPECT_EQ(decimal.code, 0);
    EXPECT_EQ(decimal.out.substr(0, decimal.out.find('\n')), "-2.348617");
    EXPECT_NE(decimal.error.find("lng WGS -> ED = -2.350000\n"), std::string::npos);
    const auto object = calc({"gps", "--sexagesimal", "--lon", "-1 30 0", "--lat", "48 50 12.5", "--json"}).json();
    EXPECT_NEAR(object[u"longitude"].toDouble(), -0.50103, 1e-5);
    EXPECT_EQ(object[u"text"][1].toString().toStdString(), "WGS84 48° 50' 9.044''");
    EXPECT_EQ(object[u"report"][2].toString().toStdString(), "  longitude : -1 ° 30 ' 0.000 ''");
}

TEST(CalcCommand, refusesWrongUsageWithCodeTwo) {
    const std::vector<std::vector<const char*>> wrong{
        {},
        {"depth"},
        {"mod", "--depth", "3"},
        {"convert", "--value", "3"},
        {"convert", "--from", "fathoms"},
        {"gps", "--direction", "north"},
        {"gps", "--sexagesimal", "--direction", "ed50-wgs84"},
        {"gps", "--sexagesimal", "--lon", "1 2 3 4"},
        {"gps", "--lat", "48 23 12"},
        {"gps", "--lat", "--json"},
        {"ead", "--o2", "--depth=30"},
        {"convert", "--from", "psi", "--value", "--json"},
    };
    for (const auto& arguments : wrong) {
        const Outcome outcome = calc(arguments);
        EXPECT_EQ(outcome.code, exitWrongUsage) << (arguments.empty() ? "" : arguments[0]);
        EXPECT_EQ(outcome.out, "");
        EXPECT_NE(outcome.error, "");
    }
    EXPECT_EQ(calc({"mod", "--help"}).code, 0);
}

}  // namespace

}  // namespace tavrel
