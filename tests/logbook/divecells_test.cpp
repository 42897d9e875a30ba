#include "logbook/divecells.h"

#include "base/texts.h"
#include "logbook/divecolumns.h"
#include "logbook/logbooksettings.h"
#include "support/testdesktop.h"

#include <gtest/gtest.h>

#include <limits>

namespace tavrel {

namespace {

struct TextCase {
    const char* field;
    Plongee dive;
    const char* text;
};

Cell cellOf(const Plongee& dive, const char* field, const DiveTableStyle& style = {}) {
    Cell cell;
    if (const Field found = Plongee::layout().field(std::string_view(field)); !found.isNull()) {
        cell.text = plainText(dive, found, style);
    }
    describeDiveCell(dive, field, style, cell);
    return cell;
}

void expectTexts(const std::vector<TextCase>& cases, const DiveTableStyle& style) {
    for (const auto& [field, dive, expected] : cases) {
        EXPECT_EQ(cellOf(dive, field, style).text, QString::fromUtf8(expected)) << field;
    }
}

Plongee air(qint32 firstStop, qint32 secondStop) {
    return {.decoO2_Level_1 = firstStop, .decoO2_Level_2 = secondStop};
}

TEST(TableCells, nameWhatADiveHolds) {
    constexpr qint32 least = std::numeric_limits<qint32>::min();
    expectTexts(
        {
            {"noPlongee", {.noPlongee = -3}, "-3"},
            {"lieu", {.lieu = QStringLiteral("Étel")}, "Étel"},
            {"lieu", {}, ""},
            {"date", {}, ""},
            {"coeff", {.coeff = 95}, "95"},
            {"coeff", {}, "-"},
            {"coeff", {.coeff = 95, .pmBm = 3}, "95"},
            {"coeff", {.coeff = 95, .pmBm = 1}, "95 (high)"},
            {"coeff", {.pmBm = 1}, "High tide"},
            {"coeff", {.coeff = 45, .pmBm = 2}, "45 (low)"},
            {"coeff", {.pmBm = 2}, "Low tide"},
            {"tempEau", {.tempEau = -50}, "-"},
            {"tempEau", {.tempEau = -1}, "-1\u00a0°C"},
            {"profondeur", {.profondeur = 18.0F}, "18"},
            {"profondeur", {.profondeur = 18.3F}, "18.3"},
            {"temps", {.temps = 45}, "45"},
            {"deco", {.deco = 0}, "Computer"},
            {"deco", {.deco = 3}, "Run time"},
            {"deco", {.deco = 9}, "9"},
            {"visibilite", {.visibilite = 8}, "Exceptional"},
            {"visibilite", {.visibilite = 6}, "Dreadful"},
            {"visibilite", {.visibilite = 7}, ""},
            {"visibilite", {.visibilite = least}, ""},
            {"rebreather", {.rebreather = 4}, "hCCR"},
            {"rebreather", {.rebreather = 5}, "5"},
            {"ppO2", {.ppO2 = 10}, "0.7 bar"},
            {"ppO2", {.ppO2 = 5}, "1.6 bar"},
            {"ppO2", {.ppO2 = 11}, "..."},
            {"gaz", {.gaz = 1, .o2Mix = 32}, "Nx 32"},
            {"gaz", {.decoO2_Level_1 = 98, .gaz = 1, .o2Mix = 32}, "Nx 32"},
            {"gaz", {.deco_Level_1_sw = 1, .decoO2_Level_1 = 97, .gaz = 1, .o2Mix = 32}, "Nx 32"},
            {"gaz", {.deco_Level_1_sw = 1, .decoO2_Level_1 = 98, .gaz = 1, .o2Mix = 32}, "O2"},
            {"gaz", {.gaz = 2, .o2Mix = 18, .heMix = 45}, "Tx 18/45"},
            {"gaz", {.gaz = 3, .o2Mix = 16, .heMix = 84}, "Heliox 16"},
            {"gaz", {.gaz = 4, .o2Mix = 28, .heMix = 30}, "Triox 28/30"},
            {"gaz", {.gaz = 5, .o2Mix = 15, .heMix = 28}, "Heliair 15/28"},
            {"gaz", air(0, 21), "Air"},
            {"gaz", air(22, 0), "Air / Nx"},
            {"gaz", air(21, 97), "Air / Nx"},
            {"gaz", air(98, 0), "Air / O2"},
            {"gaz", air(22, 100), "Air / O2"},
            {"gaz", air(100, 23), "Air / Nx / O2"},
            {"gaz", air(50, 100), "Air / Nx / O2"},
            {"epaves", {.epaves = QStringLiteral("Donator")}, ""},
            {"profilProfondeur", {}, ""},
            {"no such field", {}, ""},
        },
        {});
}

TEST(TableCells, followUnitsAndLocale) {
    const QDateTime moment(QDate(1998, 3, 7), QTime(9, 5));
    Plongee dive{.date = Date::fromDateTime(moment), .profondeur = 18.5F, .temps = 45, .tempEau = 14};
    dive.heure = dive.date;

    TestDesktop desktop;
    desktop.preferences.set(QStringLiteral("display units"), true);
    const auto french = DiveTableStyle(desktop.preferences, desktop.clock, QLocale(QLocale::French, QLocale::France));
    expectTexts({{"date", dive, "07/03/1998"},
                 {"heure", dive, "09:05"},
                 {"profondeur", dive, "18.5 m"},
                 {"temps", dive, "45 '"},
                 {"tempEau", dive, "14\u00a0°C"}},
                french);

    desktop.preferences.set(QStringLiteral("us units"), true);
    const auto american =
        DiveTableStyle(desktop.preferences, desktop.clock, QLocale(QLocale::English, QLocale::UnitedStates));
    expectTexts({{"date", dive, "3/7/1998"}, {"profondeur", dive, "18.5 ft"}, {"tempEau", dive, "14\u00a0°F"}},
                american);

    desktop.preferences.set(QStringLiteral("display units"), false);
    expectTexts({{"profondeur", dive, "18.5"}, {"temps", dive, "45"}, {"tempEau", dive, "14\u00a0°F"}},
                DiveTableStyle(desktop.preferences, desktop.clock));
}

TEST(TableCells, showImagesWithWordsBehindThem) {
    const char* ratings[] = {"", "coeur", "point", "croix", "death", ""};
    for (int rating = 0; rating < 6; ++rating) {
        const Plongee dive{.inoubliable = rating};
        EXPECT_EQ(cellOf(dive, "inoubliable").image, QString::fromUtf8(ratings[rating]));
        EXPECT_EQ(cellOf(dive, "inoubliable").words.isEmpty(), *ratings[rating] == 0) << rating;
    }
    EXPECT_EQ(cellOf({.epaves = QStringLiteral("Donator")}, "epaves").image, u"epave");
    EXPECT_EQ(cellOf({.epaves = QStringLiteral("Donator")}, "epaves").words, u"Donator");
    EXPECT_EQ(cellOf({.epaves = QStringLiteral("")}, "epaves").image, QString());
    EXPECT_EQ(cellOf({.epaves = QStringLiteral("Donator")}, "lieu").image, QString());
}

// Colours as name of the text's, then of the background's; "-" for the table's own.
struct StyleCase {
    const char* field;
    Plongee dive;
    const char* text;
    const char* background;
    bool bold = false;
};

const QColor foreign = QColor::fromRgbF(0.725F, 1.0F, 0.674F);
const QColor purple = QColor::fromRgbF(0.5F, 0.0F, 0.5F);

std::optional<QColor> named(const char* name) {
    static const std::map<std::string, QColor> colors{
        {"yellow", QColor::fromRgbF(1, 1, 0)},
        {"white", QColor::fromRgbF(1, 1, 1)},
        {"black", QColor::fromRgbF(0, 0, 0)},
        {"red", QColor::fromRgbF(1, 0, 0)},
        {"green", QColor::fromRgbF(0, 0.7F, 0)},
        {"brown", QColor::fromRgbF(0.6F, 0.4F, 0.2F)},
        {"grey", QColor::fromRgbF(0.5F, 0.5F, 0.5F)},
        {"bark", QColor::fromRgbF(0.4F, 0.2F, 0)},
        {"night", QColor::fromRgbF(0, 0, 0.3F)},
        {"foreign", foreign},
        {"purple", purple},
    };
    return *name == '-' ? std::nullopt : std::optional(colors.at(name));
}

void expectStyles(const char* what, const std::vector<StyleCase>& cases, const DiveTableStyle& style) {
    int number = 0;
    for (const auto& expected : cases) {
        const CellStyle cell = cellOf(expected.dive, expected.field, style).style;
        EXPECT_EQ(cell.text, named(expected.text)) << what << ' ' << number;
        EXPECT_EQ(cell.background, named(expected.background)) << what << ' ' << number;
        EXPECT_EQ(cell.bold, expected.bold) << what << ' ' << number;
        ++number;
    }
}

TEST(TableCells, takeTheColoursOfTheRulesInTheirOrder) {
    const Plongee home{.countryCode = QStringLiteral("FRA")};
    const Plongee abroad{.countryCode = QStringLiteral("EGY"), .epaves = QStringLiteral("Thistlegorm")};
    DiveTableStyle style;
    expectStyles("plain", {{"noPlongee", abroad, "-", "-"}, {"tempEau", {.tempEau = -50}, "-", "-"}}, style);

    style.foreignInColor = true;
    style.foreignColor = foreign;
    style.countryCode = QStringLiteral("FRA");
    expectStyles("foreign",
                 {{"lieu", abroad, "-", "foreign"},
                  {"lieu", home, "-", "-"},
                  {"epaves", abroad, "-", "-"},
                  {"inoubliable", abroad, "-", "-"},
                  // With mixes uncoloured too, number and gas are put back.
                  {"noPlongee", abroad, "-", "-"},
                  {"gaz", abroad, "-", "-"}},
                 style);

    style.mixInColor = true;
    expectStyles("mix",
                 {{"noPlongee", {.gaz = 1}, "yellow", "green", true},
                  {"noPlongee", {.gaz = 5}, "white", "brown", true},
                  {"noPlongee", {.decoO2_Level_1 = 98, .gaz = 1, .rebreather = 1}, "white", "black", true},
                  {"noPlongee", {.gaz = 1, .rebreather = 1}, "yellow", "grey", true},
                  {"noPlongee", {.gaz = 2, .rebreather = 4}, "yellow", "black", true},
                  {"noPlongee", {.rebreather = 5}, "bark", "-", true},
                  {"noPlongee", abroad, "bark", "-", true},
                  {"gaz", {.gaz = 1, .rebreather = 3}, "yellow", "green", true},
                  {"gaz", {.gaz = 2, .rebreather = 3}, "white", "brown", true},
                  {"gaz", {.decoO2_Level_1 = 100, .rebreather = 2}, "yellow", "black"},
                  {"gaz", {.decoO2_Level_1 = 97, .rebreather = 1}, "-", "-"},
                  {"gaz", {.decoO2_Level_1 = 98}, "white", "black", true}},
                 style);

    style.nightInColor = true;
    expectStyles("night",
                 {{"visibilite", {.nocturne = 1}, "white", "night"},
                  {"visibilite", abroad, "-", "-"},
                  {"lieu", abroad, "-", "foreign"}},
                 style);
    style.nightInColor = false;
    expectStyles("no night", {{"visibilite", {.countryCode = home.countryCode, .nocturne = 1}, "-", "-"}}, style);

    style.colouredText = QStringLiteral("Sables");
    Plongee there = abroad;
    there.lieu = there.site = style.colouredText;
    expectStyles("text off", {{"lieu", there, "-", "foreign"}}, style);
    style.textInColor = true;
    expectStyles("text", {{"lieu", there, "red", "foreign", true}, {"site", there, "-", "foreign"}}, style);
    there.lieu += QStringLiteral(" d'Or");
    style.colouredTheme = 1;
    expectStyles("site", {{"lieu", there, "-", "foreign"}, {"site", there, "red", "foreign", true}}, style);
    style.colouredTheme = 5;
    style.colouredText = QStringLiteral("Good");
    expectStyles("visibility",
                 {{"visibilite", {.countryCode = home.countryCode, .visibilite = 2}, "red", "-", true},
                  {"visibilite", {.countryCode = home.countryCode, .visibilite = 3}, "-", "-"}},
                 style);

    style.lowTemperatureInColor = style.depthTimeInColor = true;
    style.lowTemperature = 10;
    style.lowTemperatureColor = style.timeColor = *named("night");
    style.depthColor = purple;
    expectStyles("numbers",
                 {{"tempEau", {.countryCode = home.countryCode, .tempEau = 9}, "night", "-"},
                  {"tempEau", {.countryCode = home.countryCode, .tempEau = 10}, "-", "-"},
                  {"tempEau", {.countryCode = home.countryCode, .tempEau = -50}, "night", "-"},
                  {"profondeur", abroad, "purple", "foreign"},
                  {"temps", home, "night", "-"}},
                 style);
}

TEST(TableCells, readTheirStyleFromThePreferences) {
    TestDesktop desktop;
    auto& preferences = desktop.preferences;
    const auto plain = DiveTableStyle(preferences, desktop.clock);
    EXPECT_TRUE(plain.depthTimeInColor);
    EXPECT_EQ(plain.depthColor, QColor(Qt::blue));
    EXPECT_FALSE(plain.foreignColor.isValid());
    EXPECT_FALSE(plain.mixInColor || plain.foreignInColor || plain.nightInColor || plain.usUnits);

    for (const char* key :
         {"mix in color", "foreign in color", "nocturnes in color", "color item", "low temperature in color"}) {
        preferences.set(QString::fromUtf8(key), true);
    }
    preferences.set(QStringLiteral("low temperature value"), QStringLiteral("12 degrees"));
    preferences.set(QStringLiteral("coloured theme"), 2);
    preferences.set(settings::foreignColor, foreign);
    const auto style = DiveTableStyle(preferences, desktop.clock);
    EXPECT_TRUE(style.mixInColor && style.foreignInColor && style.nightInColor && style.textInColor);
    EXPECT_TRUE(style.lowTemperatureInColor);
    EXPECT_EQ(style.lowTemperature, 12);
    EXPECT_EQ(style.colouredTheme, 2);
    EXPECT_EQ(style.foreignColor.name(), foreign.name());
}

TEST(DiveColumns, haveTitlesAndFields) {
    for (const char* language : {"fr", "en"}) {
        setTextLanguage(QString::fromUtf8(language));
        for (const auto& column : diveColumns()) {
            EXPECT_NE(column.title.text(), u"error !") << column.field;
            EXPECT_TRUE(Plongee::layout().find(column.field)) << column.field;
        }
    }
}

}  // namespace

}  // namespace tavrel
