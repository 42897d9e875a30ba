#include "cli/commandrunner.h"

namespace tavrel {

namespace {

TEST_F(CommandLine, entersEveryKindOfControl) {
    done("new \"dive logbook\" a.carnet");
    QStringList arguments = words("add a.carnet");
    for (const auto& [name, entry] :
         namedValues("profondeurField=18,5|lowGF=30|meteo=5|visibilite=TableView good|typePlongee=under ICE|"
                     "rebreather=hCCR|ppO2=1,3 bar|nocturne=yes|deco_Level_6_sw=1|difficulte=5|date=2024-05-03|"
                     "heure=10:30|profilProfondeur=0,5.5,12|GAZ_Flag=0, 1,7|PRESS_Data=|runtime=é ß 潜水|"
                     "site=|notes=a=b")) {
        arguments.append(QString::fromStdString(name) + u'=' + entry);
    }
    EXPECT_EQ(done(arguments), QString());
    expectValues(0,
                 "profondeur=18.5|lowGF=30|meteo=5|visibilite=2|typePlongee=10|rebreather=4|ppO2=2|nocturne=1|"
                 "deco_Level_6_sw=1|difficulte=5|date=2024-05-03T00:00:00Z|heure=2001-01-01T10:30:00Z|"
                 "profilProfondeur=0,5.5,12|GAZ_Flag=0,1,7|PRESS_Data=0|runtime=é ß 潜水|notes=a=b");
}

TEST_F(LogbookCommands, changesFindsAndRemovesDives) {
    for (const char* add : {"add a.carnet o2Mix=32 lieu=Nice", "add a.carnet o2Mix=32 lieu=Cassis",
                            "add a.carnet o2Mix=32 lieu=Bandol", "add a.carnet o2Mix=32 lieu=Port-Cros"}) {
        done(add);
    }
    done("set a.carnet 1 temps=50 o2Mix=0 date=2023-01-31T23:59:58Z");
    expectValues(1, "temps=50|o2Mix=21|lieu=Cassis|date=2023-01-31T23:59:58Z");

    EXPECT_TRUE(done("find a.carnet lieu AS").contains(u"One dive found"));
    const QString found = done("find a.carnet lieu n");
    EXPECT_TRUE(found.contains(u"Nice") && found.contains(u"Bandol") && !found.contains(u"Cassis"));
    EXPECT_TRUE(found.contains(u"2 dives found"));
    EXPECT_TRUE(done(words("find a.carnet lieu") << QString()).contains(u"0 dives found"));

    done("delete a.carnet 3 0 3");
    done("renumber a.carnet 10");
    expectRefusals({{"renumber a.carnet 2147483647", 1, "2147483646"}});
    ASSERT_EQ(dives().size(), 2U);
    expectValues(0, "lieu=Cassis");
    expectValues(1, "noPlongee=11");

    const QString table = done("show a.carnet --columns lieu,o2Mix,PRESS_Data");
    const QStringList lines = table.split(u'\n');
    ASSERT_EQ(lines.size(), 5) << table.toStdString();
    EXPECT_TRUE(lines[0].contains(u"o2Mix"));
    EXPECT_EQ(lines[2].indexOf(u"21"), lines[3].indexOf(u"32")) << table.toStdString();
}

TEST_F(LogbookCommands, endsWithTheReasonAndChangesNothing) {
    done("add a.carnet lieu=Nice");
    done("new DiversDocs a.documents");
    QDir(path(QString())).mkdir(QStringLiteral("folder"));
    const QByteArray before = bytes();
    writeContents(path(QStringLiteral("cut.carnet")), before.chopped(7));
    expectRefusals({
        {"shew a.carnet", 2, "shew"},
        {"show missing.carnet", 1, "missing.carnet"},
        {"show folder", 1, "folder"},
        {"show cut.carnet", 1, "cut.carnet"},
        {"show cut.carnet --json", 1, "cut.carnet"},
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
        {"add a.carnet meteo=Sunny", 2, "Sunny"},
        {"add a.carnet profilProfondeur=0,deep", 2, "deep"},
        {"add a.carnet ASC_Flag=0,,1", 2, "ASC_Flag"},
        {"add a.documents photocopy=cut.carnet", 1, "cut.carnet"},
        {"form a.documents --new photocopy=missing.png", 1, "missing.png"},
        {"set a.carnet 0", 2, "ENTRIES"},
        {"set a.carnet one lieu=Nice", 2, "one"},
        {"set a.carnet 1 lieu=Nice", 1, "1"},
        {"set a.carnet -1 lieu=Nice", 1, "-1"},
        {"delete a.carnet 0 1", 1, "1"},
        {"find a.carnet ordi x", 2, "ordi"},
    });
    EXPECT_EQ(bytes(), before);
    EXPECT_EQ(QDir(path(QString())).entryList(QDir::Files | QDir::Hidden),
              words("a.carnet a.carnet~ a.documents cut.carnet"));
}

TEST_F(LogbookCommands, readsTheSettingsAndLeavesThemAlone) {
    const QByteArray written("[General]\ncountry%20code=MLT\ntank%20volume=15\n");
    writeSettings(written);
    done("add a.carnet lieu=Gozo");
    expectValues(0, "countryCode=MLT|volumeBloc=15");
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

TEST_F(LogbookCommands, tellsWhatAFileHoldsInJson) {
    EXPECT_EQ(json("show a.carnet --json")[u"version"].toInt(), 25);
    done("add a.carnet lieu=Marseille profondeur=32.5 temps=41 tempEau=101 date=2024-05-03");
    const QJsonObject file = json("show a.carnet --json");
    ASSERT_EQ(file[u"records"].toArray().size(), 1);
    EXPECT_EQ(at(file, "class records.0.noPlongee records.0.tempEau records.0.profondeur records.0.date"),
              u"Plongee|1|-50|32.5|2024-05-03T00:00:00Z");
    EXPECT_EQ(file[u"type"].toString(), u"Dive logbook");
    EXPECT_EQ(file[u"records"][0].toObject().size(), 134);

    EXPECT_TRUE(done("inspect a.carnet").contains(u"Plongee, version 25: 1 objects"));
    const QJsonObject tree = json("inspect a.carnet --json");
    ASSERT_EQ(tree[u"groups"].toArray().size(), 1);
    EXPECT_EQ(at(tree, "byteOrder system groups.0.1.0.classes.0.0"), u"little|1000|NSMutableArray");
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
