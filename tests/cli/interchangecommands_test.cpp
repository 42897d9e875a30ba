#include "cli/commandrunner.h"

namespace tavrel {

namespace {

TEST_F(LogbookCommands, importsTheSampleFilesTellingTheirFormat) {
    for (const char* import : {"import a.carnet " TAVREL_SAMPLE_FOLDER "/sample.udcf",
                               "import a.carnet " TAVREL_SAMPLE_FOLDER "/sample-2.uddf",
                               "import a.carnet " TAVREL_SAMPLE_FOLDER "/sample-3.uddf",
                               "import a.carnet " TAVREL_SAMPLE_FOLDER "/sample-handheld.xml"}) {
        EXPECT_TRUE(done(import).contains(QStringLiteral("imported."))) << import;
    }
    expectValues(0, "lieu=Port-Cros - Pointe du Vaisseau|date=2019-06-22T09:40:00Z");
    expectValues(1, "pressionFin=60|tempEau=18");
    expectValues(2, "notes=Lac d'Annecy, le Roc de Chère : une lotte sous le surplomb à 25 m.|temps=41");
    expectValues(4, "profondeur=16.8");
    expectValues(5, "noPlongee=6|date=2011-05-03T10:15:00Z");
}

TEST_F(LogbookCommands, showsWhatAFileHoldsAndTakesItOnce) {
    EXPECT_EQ(done("import a.carnet " TAVREL_TEST_DATA "/exchange/stages.uddf --dry-run --json"),
              u"{\"dives\": [{\"date\": \"2019-08-01\", \"time\": \"07:05\", \"depth\": 60.2, \"minutes\": 70, "
              "\"o2\": 18, \"he\": 45, \"samples\": 71, \"duplicate\": false, \"doubts\": []}, "
              "{\"date\": \"2019-08-02\", \"time\": \"23:59\", \"depth\": 12, \"minutes\": 30, "
              "\"o2\": 21, \"he\": 0, \"samples\": 0, \"duplicate\": false, \"doubts\": [\"no samples\"]}], "
              "\"lost\": [\"waypoint/tankpressure (dives: 1)\"]}\n");
    EXPECT_TRUE(dives().empty()) << "only shown";
    done("import a.carnet " TAVREL_TEST_DATA "/exchange/stages.uddf");
    EXPECT_EQ(done("import a.carnet " TAVREL_TEST_DATA "/exchange/stages.uddf"),
              u"0 dives were imported. Already there and left out: 2.\n");
    EXPECT_EQ(dives().size(), 2U);
}

TEST_F(LogbookCommands, keepsTheNumbersOfAFileOrSaysThatItDoesNot) {
    int day = 30;
    const auto numbered = [&](const QByteArray& numbers) {
        QByteArray file = "date,noPlongee\n";
        for (const QByteArray& number : numbers.split(' ')) {
            file += "2020-01-" + QByteArray::number(day--) + ',' + number + '\n';
        }
        writeContents(path(QStringLiteral("in.csv")), file);
        return done("import a.carnet in.csv");
    };
    EXPECT_EQ(numbered("203 202 201"), u"3 dives were imported.\n");
    expectValues(0, "noPlongee=203");
    EXPECT_EQ(numbered("108 107"), u"2 dives were imported.\n");
    expectValues(4, "noPlongee=107");
    for (const char* numbers : {"6 6", "202 7", "7 0"}) {
        EXPECT_TRUE(numbered(numbers).contains(u"they were numbered on")) << numbers;
    }
    expectValues(6, "noPlongee=205");
    EXPECT_EQ(numbered("0 0"), u"2 dives were imported.\n") << "no numbers to keep";
}

TEST_F(LogbookCommands, saysWhyAnImportOrExportFailed) {
    writeContents(
        path(QStringLiteral("half.udcf")),
        "<PROFILE><REPGROUP><DIVE><SAMPLES/><GASES><MIX><TANK/></MIX></GASES></DIVE><DIVE/></REPGROUP></PROFILE>");
    writeContents(path(QStringLiteral("notes.txt")), "no dives here");
    writeContents(path(QStringLiteral("cut.uddf")), "<uddf version='3'><profiledata><dive><divenumber>7");
    EXPECT_TRUE(done("import a.carnet cut.uddf --dry-run --json").contains(u"The file is damaged at 1:"));
    EXPECT_TRUE(done("import a.carnet cut.uddf --format uddf").contains(u"The file is damaged at 1:"));
    expectRefusals({
        {"import a.carnet half.udcf", 1, "One dive was imported. The import stopped at dive 2 of the file"},
        {"import a.carnet notes.txt", 1, "not XML"},
        {"import a.carnet missing.udcf", 1, "missing.udcf"},
        {"import missing.carnet half.udcf", 1, "missing.carnet"},
        {"import a.carnet half.udcf --format fit", 2, "fit"},
        {"import a.carnet", 2, "SOURCE"},
        {"export a.carnet b", 2, "--format"},
        {"export a.carnet b --format pdf", 2, "pdf"},
        {"export a.carnet missing/b --format tsv", 1, "missing/b"},
        {"export a.carnet ./a.carnet --format tsv", 1, "a.carnet"},
        {"export notes.txt b --format tsv", 1, "notes.txt"},
    });
    EXPECT_EQ(dives().size(), 1U) << "what was taken before the stop is saved";
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("b"))));
}

}  // namespace

}  // namespace tavrel
