#include "cli/commandrunner.h"
#include "interchange/xml/xmltree.h"

namespace tavrel {

namespace {

const QString sampleFolder = QStringLiteral(TAVREL_SAMPLE_FOLDER "/");

TEST_F(CommandLine, exportsTheSampleLogbookInEveryFormat) {
    const std::pair<const char*, const char*> cases[] = {
        {"udcf", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<PROFILE UDCF=\"1\">\n"},
        {"uddf", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<uddf version=\"2.2.0\">\n"},
        {"csv-semicolon", "\"Dive #\";\"Date\";\"Location\";"},
        {"csv-comma", "Dive #,Date,Location,"},
        {"tsv", "Dive #\tDate\tLocation\t"},
        {"profiles-csv", "Dive #,Point,Depth,ASC,SLOW,CEIL,SURF,GAS,PRESS\n"},
    };
    language = QStringLiteral("fr_FR.UTF-8");
    for (const auto& [format, start] : cases) {
        const QString target = path(QString::fromLatin1(format));
        done({QStringLiteral("export"), sampleFolder + QStringLiteral("sample.carnet"), target,
              QStringLiteral("--format"), QString::fromLatin1(format)});
        EXPECT_TRUE(contentsOf(target).startsWith(start))
            << format << ": " << contentsOf(target).left(80).toStdString();
    }
    const auto tree = XmlTree::parse(contentsOf(path(QStringLiteral("udcf"))));
    ASSERT_TRUE(tree);
    EXPECT_EQ(tree->root().last("ADDINFO").last("TOTALDIVES").text(),
              QString::number(tree->root().last("REPGROUP").children("DIVE").count()));
}

TEST_F(CommandLine, importsTheSampleFilesTellingTheirFormat) {
    done({QStringLiteral("new"), QStringLiteral("Carnet de plongee"), QStringLiteral("a.carnet")});
    const char* const files[] = {"sample.udcf", "sample-2.uddf", "sample-3.uddf", "sample-handheld.xml"};
    for (const char* file : files) {
        EXPECT_TRUE(done({QStringLiteral("import"), QStringLiteral("a.carnet"), sampleFolder + QLatin1String(file)})
                        .endsWith(QStringLiteral("imported.\n")))
            << file;
    }
    struct Case {
        std::size_t row;
        const char* field;
        const char* value;
    };
    const Case cases[] = {
        {0, "lieu", "Port-Cros - Pointe du Vaisseau"},
        {0, "date", "2019-06-22T09:40:00Z"},
        {1, "pressionFin", "60"},
        {1, "tempEau", "18"},
        {2, "notes", "Lac d'Annecy, le Roc de Chère : une lotte sous le surplomb à 25 m."},
        {2, "temps", "41"},
        {3, "temps", "45"},
        {4, "profondeur", "16.8"},
        {5, "noPlongee", "6"},
        {5, "date", "2011-05-03T10:15:00Z"},
    };
    for (const Case& it : cases) {
        EXPECT_EQ(value(QStringLiteral("a.carnet"), it.row, it.field), QString::fromUtf8(it.value))
            << it.row << ' ' << it.field;
    }
}

TEST_F(CommandLine, showsWhatAFileHoldsAndTakesItOnce) {
    done({QStringLiteral("new"), QStringLiteral("Carnet de plongee"), QStringLiteral("a.carnet")});
    const QString file = QStringLiteral(TAVREL_TEST_DATA "/exchange/stages.uddf");
    EXPECT_EQ(done({QStringLiteral("import"), QStringLiteral("a.carnet"), file, QStringLiteral("--dry-run"),
                    QStringLiteral("--json")})
                  .trimmed(),
              QStringLiteral("{\"dives\": [{\"date\": \"2019-08-01\", \"time\": \"07:05\", \"depth\": 60.2, "
                             "\"minutes\": 70, \"o2\": 18, \"he\": 45, \"samples\": 71, \"duplicate\": false, "
                             "\"doubts\": []}, {\"date\": \"2019-08-02\", \"time\": \"23:59\", \"depth\": 12, "
                             "\"minutes\": 30, \"o2\": 21, \"he\": 0, \"samples\": 0, \"duplicate\": false, "
                             "\"doubts\": [\"no samples\"]}], \"lost\": [\"waypoint/tankpressure (dives: 1)\"]}"));
    EXPECT_TRUE(dives(QStringLiteral("a.carnet")).empty()) << "only shown";
    done({QStringLiteral("import"), QStringLiteral("a.carnet"), file});
    EXPECT_EQ(done({QStringLiteral("import"), QStringLiteral("a.carnet"), file}),
              QStringLiteral("0 dives were imported. Already there and left out: 2.\n"));
    EXPECT_EQ(dives(QStringLiteral("a.carnet")).size(), 2U);
}

TEST_F(CommandLine, saysWhyAnImportOrExportFailed) {
    done({QStringLiteral("new"), QStringLiteral("Carnet de plongee"), QStringLiteral("a.carnet")});
    writeContents(
        path(QStringLiteral("half.udcf")),
        "<PROFILE><REPGROUP><DIVE><SAMPLES/><GASES><MIX><TANK/></MIX></GASES></DIVE><DIVE/></REPGROUP></PROFILE>");
    writeContents(path(QStringLiteral("notes.txt")), "no dives here");
    struct Case {
        const char* words;
        int code;
        const char* reason;
    };
    const Case cases[] = {
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
    };
    for (const Case& it : cases) {
        const Outcome outcome = run(QString::fromUtf8(it.words).split(u' '));
        EXPECT_EQ(outcome.code, it.code) << it.words;
        EXPECT_EQ(outcome.out, QString()) << it.words;
        EXPECT_TRUE(outcome.error.contains(QLatin1String(it.reason)))
            << it.words << ": " << outcome.error.toStdString();
    }
    EXPECT_EQ(dives(QStringLiteral("a.carnet")).size(), 1U) << "what was taken before the stop is saved";
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("b"))));
}

}  // namespace

}  // namespace tavrel
