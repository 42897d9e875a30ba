#include "cli/commandrunner.h"

namespace tavrel {

namespace {

TEST_F(CommandLine, addsDivesThroughTheForm) {
    EXPECT_EQ(done("new \"Carnet de plongee\" a.carnet"), QString());
    EXPECT_EQ(done("add a.carnet lieu=Marseille profondeur=32.5 temps=41 tempEau=101"), QString());
    done("add a.carnet notes=a=b site= heMix=87");
    expectValues({{0, "noPlongee", "1"},
                  {0, "lieu", "Marseille"},
                  {0, "profondeur", "32.5"},
                  {0, "tempEau", "-50"},
                  {0, "typePlongee", "8"},
                  {1, "noPlongee", "2"},
                  {1, "notes", "a=b"},
                  {1, "heMix", "0"}});
}

TEST_F(CommandLine, entersEveryKindOfControl) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"profondeurField=18,5", "profondeur", "18.5"},
        {"lowGF=30", "lowGF", "30"},
        {"meteo=5", "meteo", "5"},
        {"visibilite=TableView good", "visibilite", "2"},
        {"typePlongee=under ICE", "typePlongee", "10"},
        {"rebreather=hCCR", "rebreather", "4"},
        {"ppO2=1,3 bar", "ppO2", "2"},
        {"nocturne=yes", "nocturne", "1"},
        {"deco_Level_6_sw=1", "deco_Level_6_sw", "1"},
        {"difficulte=5", "difficulte", "5"},
        {"date=2024-05-03", "date", "2024-05-03T00:00:00Z"},
        {"heure=10:30", "heure", "2001-01-01T10:30:00Z"},
        {"profilProfondeur=0,5.5,12", "profilProfondeur", "0,5.5,12"},
        {"GAZ_Flag=0, 1,7", "GAZ_Flag", "0,1,7"},
        {"PRESS_Data=", "PRESS_Data", "0"},
        {"runtime=é ß 潜水", "runtime", "é ß 潜水"},
    };
    done("new \"dive logbook\" a.carnet");
    QStringList arguments = words("add a.carnet");
    for (const auto& [entry, field, value] : cases) {
        arguments.append(QString::fromUtf8(entry));
    }
    done(arguments);
    for (const auto& [entry, field, value] : cases) {
        expectValues({{0, field, value}});
    }
}

TEST_F(CommandLine, changesFindsAndRemovesDives) {
    done("new Plongee a.carnet");
    for (const char* add : {"add a.carnet o2Mix=32 lieu=Nice", "add a.carnet o2Mix=32 lieu=Cassis",
                            "add a.carnet o2Mix=32 lieu=Bandol", "add a.carnet o2Mix=32 lieu=Port-Cros"}) {
        done(add);
    }
    done("set a.carnet 1 temps=50 o2Mix=0 date=2023-01-31T23:59:58Z");
    expectValues({{1, "temps", "50"}, {1, "o2Mix", "21"}, {1, "lieu", "Cassis"}, {1, "date", "2023-01-31T23:59:58Z"}});

    EXPECT_TRUE(done("find a.carnet lieu AS").contains(u"One dive found"));
    const QString found = done("find a.carnet lieu n");
    EXPECT_TRUE(found.contains(u"Nice") && found.contains(u"Bandol") && !found.contains(u"Cassis"));
    EXPECT_TRUE(found.contains(u"2 dives found"));
    EXPECT_TRUE(done(words("find a.carnet lieu") << QString()).contains(u"0 dives found"));

    done("delete a.carnet 3 0 3");
    done("renumber a.carnet 10");
    ASSERT_EQ(dives().size(), 2U);
    expectValues({{0, "lieu", "Cassis"}, {1, "noPlongee", "11"}});

    const QString table = done("show a.carnet --columns lieu,o2Mix,PRESS_Data");
    const QStringList lines = table.split(u'\n');
    ASSERT_EQ(lines.size(), 5) << table.toStdString();
    EXPECT_TRUE(lines[0].contains(u"o2Mix"));
    EXPECT_EQ(lines[2].indexOf(u"21"), lines[3].indexOf(u"32")) << table.toStdString();
    EXPECT_EQ(done("show a.carnet").split(u'\n').size(), 5);
}

TEST_F(CommandLine, endsWithTheReasonAndChangesNothing) {
    done("new Plongee a.carnet");
    done("add a.carnet lieu=Nice");
    done("new DiversDocs a.documents");
    QDir(path(QString())).mkdir(QStringLiteral("folder"));
    const QByteArray before = bytes();
    writeContents(path(QStringLiteral("cut.carnet")), before.chopped(7));
    expectRefusals({
        {"", 2, "command"},
        {"shew a.carnet", 2, "shew"},
        {"show", 2, "FILE"},
        {"show missing.carnet", 1, "missing.carnet"},
        {"show folder", 1, "folder"},
        {"show cut.carnet", 1, "cut.carnet"},
        {"show cut.carnet --json", 1, "cut.carnet"},
        {"show a.carnet --json --columns lieu", 2, "--json"},
        {"inspect missing.carnet", 1, "missing.carnet"},
        {"inspect cut.carnet --json", 1, "cut.carnet"},
        {"show a.carnet --columns lieu,depth", 2, "depth"},
        {"new Cahier b.carnet", 2, "Dive logbook"},
        {"new \"Dive\xC2\xA0logbook\"", 2, "FILE"},
        {"new Plongee a.carnet", 1, "a.carnet"},
        {"add missing.carnet lieu=Nice", 1, "missing.carnet"},
        {"add a.carnet lieu=Nice depth=12", 2, "depth"},
        {"add a.carnet lieu", 2, "lieu"},
        {"add a.carnet =Nice", 2, "=Nice"},
        {"add a.carnet ftDepthField=m", 2, "ftDepthField"},
        {"add a.carnet meteo=12", 2, "meteo"},
        {"add a.carnet meteo=Sunny", 2, "Sunny"},
        {"add a.carnet difficulte=6", 2, "difficulte"},
        {"add a.carnet nocturne=perhaps", 2, "perhaps"},
        {"add a.carnet date=2024-02-30", 2, "2024-02-30"},
        {"add a.carnet date=2024-02-03x", 2, "2024-02-03x"},
        {"add a.carnet heure=25:00", 2, "25:00"},
        {"add a.carnet profilProfondeur=0,deep", 2, "deep"},
        {"add a.carnet ASC_Flag=0,,1", 2, "ASC_Flag"},
        {"add a.documents photocopy=cut.carnet", 1, "cut.carnet"},
        {"form a.documents --new photocopy=missing.png", 1, "missing.png"},
        {"set a.carnet 0", 2, "ENTRIES"},
        {"set a.carnet one lieu=Nice", 2, "one"},
        {"set a.carnet 1 lieu=Nice", 1, "1"},
        {"set a.carnet -1 lieu=Nice", 1, "-1"},
        {"delete a.carnet 0 1", 1, "1"},
        {"renumber a.carnet first", 2, "first"},
        {"find a.carnet ordi x", 2, "ordi"},
    });
    EXPECT_EQ(bytes(), before);
    EXPECT_EQ(QDir(path(QString())).entryList(QDir::Files | QDir::Hidden),
              words("a.carnet a.carnet~ a.documents cut.carnet"));
}

TEST_F(CommandLine, readsTheSettingsAndLeavesThemAlone) {
    const QByteArray written("[General]\ncountry%20code=MLT\ntank%20volume=15\n");
    writeSettings(written);
    done("new Plongee a.carnet");
    done("add a.carnet lieu=Gozo");
    expectValues({{0, "countryCode", "MLT"}, {0, "volumeBloc", "15"}});
    EXPECT_EQ(contentsOf(path(QStringLiteral("config/Tavrel/tavrel.ini"))), written);
    EXPECT_EQ(QDir(path(QStringLiteral("config/Tavrel"))).entryList(QDir::Files), words("tavrel.ini"));
}

TEST_F(CommandLine, speaksTheUsersLanguageAndWritesNumbersTheSameWay) {
    language = QStringLiteral("fr_FR.UTF-8");
    done("new \"Carnet de plongée\" a.carnet");
    done("add a.carnet profondeur=18.5 nocturne=oui");
    EXPECT_TRUE(done("find a.carnet lieu x").contains(u"0 plongées trouvées"));
    EXPECT_TRUE(done("show a.carnet --columns profondeur").contains(u"18.5"));
}

TEST_F(CommandLine, tellsWhatAFileHoldsInJson) {
    done("new Plongee a.carnet");
    EXPECT_EQ(json("show a.carnet --json")[u"version"].toInt(), 25);
    done("add a.carnet lieu=Marseille profondeur=32.5 temps=41 tempEau=101 date=2024-05-03");
    const QJsonObject file = json("show a.carnet --json");
    EXPECT_EQ(file[u"type"].toString(), u"Dive logbook");
    EXPECT_EQ(file[u"class"].toString(), u"Plongee");
    ASSERT_EQ(file[u"records"].toArray().size(), 1);
    const QJsonObject dive = file[u"records"].toArray()[0].toObject();
    EXPECT_EQ(dive.size(), 134);
    EXPECT_EQ(dive[u"noPlongee"].toInt(), 1);
    EXPECT_EQ(dive[u"tempEau"].toInt(), -50);
    EXPECT_EQ(dive[u"profondeur"].toDouble(), 32.5);
    EXPECT_EQ(dive[u"date"].toString(), u"2024-05-03T00:00:00Z");

    EXPECT_TRUE(done("inspect a.carnet").contains(u"Plongee, version 25: 1 objects"));
    const QJsonObject tree = json("inspect a.carnet --json");
    EXPECT_EQ(tree[u"byteOrder"].toString(), u"little");
    EXPECT_EQ(tree[u"system"].toInt(), 1000);
    ASSERT_EQ(tree[u"groups"].toArray().size(), 1);
    const QJsonValue root = tree[u"groups"][0][1][0];
    EXPECT_EQ(root[u"classes"][0][0].toString(), u"NSMutableArray");
}

TEST_F(CommandLine, makesTheSampleLogbookAnew) {
    const QString folder = QStringLiteral(TAVREL_SAMPLE_FOLDER);
    const Outcome made =
        run({folder + QStringLiteral("/dives.txt"), path(QStringLiteral("a.carnet"))}, QStringLiteral(TAVREL_SAMPLES));
    EXPECT_EQ(made.code, 0) << made.error.toStdString();
    EXPECT_EQ(bytes(), contentsOf(folder + QStringLiteral("/sample.carnet"))) << "samples/make-samples makes it anew";
}

}  // namespace

}  // namespace tavrel
