#include "logbook/divecells.h"

#include "logbook/logbooksettings.h"
#include "support/records.h"
#include "support/testdesktop.h"

namespace tavrel {

namespace {

/// Dives, and what is expected of each: "coeff=95,pmBm=1>95 (high)|>-", where the second holds nothing.
std::vector<std::pair<Plongee, QString>> expectations(const char* cases) {
    std::vector<std::pair<Plongee, QString>> dives;
    for (const QString& each : QString::fromUtf8(cases).split(u'|')) {
        const QByteArray fields = each.section(u'>', 0, 0).replace(u',', u'|').toUtf8();
        dives.emplace_back(fields.isEmpty() ? Plongee() : filled<Plongee>(fields), each.section(u'>', 1));
    }
    return dives;
}

Cell cellOf(const Plongee& dive, const char* field, const DiveTableStyle& style = {}) {
    Cell cell;
    if (const Field found = Plongee::layout().field(std::string_view(field)); !found.isNull()) {
        cell.text = plainText(dive, found, style);
    }
    describeDiveCell(dive, field, style, cell);
    return cell;
}

TEST(TableCells, nameWhatADiveHolds) {
    const std::pair<const char*, const char*> cases[] = {
        {"noPlongee", "noPlongee=-3>-3"},
        {"lieu", "lieu=Étel>Étel|>"},
        {"date", ">"},
        {"coeff",
         "coeff=95>95|>-|coeff=95,pmBm=3>95|coeff=95,pmBm=1>95 (high)|pmBm=1>High tide|coeff=45,pmBm=2>45 (low)|"
         "pmBm=2>Low tide"},
        {"tempEau", "tempEau=-50>-|tempEau=-1>-1\u00a0°C"},
        {"profondeur", "profondeur=18>18|profondeur=18.3>18.3"},
        {"temps", "temps=45>45"},
        {"deco", "deco=0>Computer|deco=3>Run time|deco=9>9"},
        {"visibilite", "visibilite=8>Exceptional|visibilite=6>Dreadful|visibilite=7>|visibilite=-2147483648>"},
        {"rebreather", "rebreather=4>hCCR|rebreather=5>5"},
        {"ppO2", "ppO2=10>0.7 bar|ppO2=5>1.6 bar|ppO2=11>..."},
        {"gaz",
         "gaz=1,o2Mix=32>Nx 32|decoO2_Level_1=98,gaz=1,o2Mix=32>Nx 32|"
         "deco_Level_1_sw=1,decoO2_Level_1=97,gaz=1,o2Mix=32>Nx 32|"
         "deco_Level_1_sw=1,decoO2_Level_1=98,gaz=1,o2Mix=32>O2|gaz=2,o2Mix=18,heMix=45>Tx 18/45|"
         "gaz=3,o2Mix=16,heMix=84>Heliox 16|gaz=4,o2Mix=28,heMix=30>Triox 28/30|gaz=5,o2Mix=15,heMix=28>Heliair 15/28"},
        // Air, and what it is decompressed with.
        {"gaz",
         "decoO2_Level_2=21>Air|decoO2_Level_1=22>Air / Nx|decoO2_Level_1=21,decoO2_Level_2=97>Air / Nx|"
         "decoO2_Level_1=98>Air / O2|decoO2_Level_1=22,decoO2_Level_2=100>Air / O2|"
         "decoO2_Level_1=100,decoO2_Level_2=23>Air / Nx / O2|decoO2_Level_1=50,decoO2_Level_2=100>Air / Nx / O2"},
        {"epaves", "epaves=Donator>"},
        {"profilProfondeur", ">"},
        {"no such field", ">"},
    };
    for (const auto& [field, dives] : cases) {
        for (const auto& [dive, text] : expectations(dives)) {
            EXPECT_EQ(cellOf(dive, field).text, text) << field;
        }
    }
}

TEST(TableCells, followUnitsAndLocale) {
    const QDateTime moment(QDate(1998, 3, 7), QTime(9, 5));
    Plongee dive{.date = Date::fromDateTime(moment), .profondeur = 18.5F, .temps = 45, .tempEau = 14};
    dive.heure = dive.date;
    const auto texts = [&](const char* fields, const DiveTableStyle& style) {
        return eachOf(fields, [&](const char* field) { return cellOf(dive, field, style).text; });
    };

    TestDesktop desktop;
    desktop.preferences.set(QStringLiteral("display units"), true);
    const auto french = DiveTableStyle(desktop.preferences, desktop.clock, QLocale(QLocale::French, QLocale::France));
    EXPECT_EQ(texts("date heure profondeur temps tempEau", french), u"07/03/1998|09:05|18.5 m|45 '|14\u00a0°C");

    desktop.preferences.set(QStringLiteral("us units"), true);
    const auto american =
        DiveTableStyle(desktop.preferences, desktop.clock, QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(texts("date profondeur tempEau", american), u"3/7/1998|18.5 ft|14\u00a0°F");

    desktop.preferences.set(QStringLiteral("display units"), false);
    EXPECT_EQ(texts("profondeur temps tempEau", DiveTableStyle(desktop.preferences, desktop.clock)),
              u"18.5|45|14\u00a0°F");
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

const QColor foreign = QColor::fromRgbF(0.725F, 1.0F, 0.674F);

TEST(TableCells, takeTheColoursOfTheRulesInTheirOrder) {
    DiveTableStyle style;
    const auto nameOf = [](const std::optional<QColor>& colour) {
        return colour ? colour->name() : QStringLiteral("-");
    };
    // The colour of the text, then of the background, "-" for the table's own, and whether it is bold.
    const auto expectLooks = [&](const char* field, const char* dives) {
        for (const auto& [dive, look] : expectations(dives)) {
            const CellStyle cell = cellOf(dive, field, style).style;
            EXPECT_EQ(
                nameOf(cell.text) + u' ' + nameOf(cell.background) + (cell.bold ? QStringLiteral(" bold") : QString()),
                look)
                << field << ' ' << dives;
        }
    };
    expectLooks("noPlongee", "countryCode=EGY>- -");
    expectLooks("tempEau", "tempEau=-50>- -");

    style.foreignInColor = true;
    style.foreignColor = foreign;
    style.countryCode = QStringLiteral("FRA");
    expectLooks("lieu", "countryCode=EGY>- #b9ffac|countryCode=FRA>- -");
    expectLooks("epaves", "countryCode=EGY,epaves=Thistlegorm>- -");
    expectLooks("inoubliable", "countryCode=EGY>- -");
    // With mixes uncoloured too, number and gas are put back.
    expectLooks("noPlongee", "countryCode=EGY>- -");
    expectLooks("gaz", "countryCode=EGY>- -");

    style.mixInColor = true;
    expectLooks("noPlongee",
                "gaz=1>#ffff00 #00b300 bold|gaz=5>#ffffff #996633 bold|"
                "decoO2_Level_1=98,gaz=1,rebreather=1>#ffffff #000000 bold|gaz=1,rebreather=1>#ffff00 #808080 bold|"
                "gaz=2,rebreather=4>#ffff00 #000000 bold|rebreather=5>#663300 - bold|countryCode=EGY>#663300 - bold");
    expectLooks("gaz",
                "gaz=1,rebreather=3>#ffff00 #00b300 bold|gaz=2,rebreather=3>#ffffff #996633 bold|"
                "decoO2_Level_1=100,rebreather=2>#ffff00 #000000|decoO2_Level_1=97,rebreather=1>- -|"
                "decoO2_Level_1=98>#ffffff #000000 bold");

    style.nightInColor = true;
    expectLooks("visibilite", "nocturne=1>#ffffff #00004d|countryCode=EGY>- -");
    expectLooks("lieu", "countryCode=EGY>- #b9ffac");
    style.nightInColor = false;
    expectLooks("visibilite", "countryCode=FRA,nocturne=1>- -");

    style.colouredText = QStringLiteral("Sables");
    expectLooks("lieu", "countryCode=EGY,lieu=Sables,site=Sables>- #b9ffac");
    style.textInColor = true;
    expectLooks("lieu", "countryCode=EGY,lieu=Sables,site=Sables>#ff0000 #b9ffac bold");
    expectLooks("site", "countryCode=EGY,lieu=Sables,site=Sables>- #b9ffac");
    style.colouredTheme = 1;
    expectLooks("lieu", "countryCode=EGY,lieu=Sables d'Or,site=Sables>- #b9ffac");
    expectLooks("site", "countryCode=EGY,lieu=Sables d'Or,site=Sables>#ff0000 #b9ffac bold");
    style.colouredTheme = 5;
    style.colouredText = QStringLiteral("Good");
    expectLooks("visibilite", "countryCode=FRA,visibilite=2>#ff0000 - bold|countryCode=FRA,visibilite=3>- -");

    style.lowTemperatureInColor = style.depthTimeInColor = true;
    style.lowTemperature = 10;
    style.lowTemperatureColor = style.timeColor = QColor::fromRgbF(0, 0, 0.3F);
    style.depthColor = QColor::fromRgbF(0.5F, 0.0F, 0.5F);
    expectLooks("tempEau", "countryCode=FRA,tempEau=9>#00004d -|countryCode=FRA,tempEau=10>- -");
    expectLooks("tempEau", "countryCode=FRA,tempEau=-50>#00004d -");
    expectLooks("profondeur", "countryCode=EGY>#800080 #b9ffac");
    expectLooks("temps", "countryCode=FRA>#00004d -");
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

}  // namespace

}  // namespace tavrel
