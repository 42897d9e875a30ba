#include "cli/commandrunner.h"

namespace tavrel {

namespace {

struct ViewCommands : CommandLine {
    using CommandLine::json;
    /// With preferences of this run.
    QJsonObject json(const char* command, std::initializer_list<const char*> preferences) const {
        QStringList arguments = words(command);
        for (const char* preference : preferences) {
            arguments << QStringLiteral("--preference") << QString::fromUtf8(preference);
        }
        return QJsonDocument::fromJson(done(arguments).toUtf8()).object();
    }
};

QJsonValue cell(const QJsonObject& table, qsizetype row, const char* column) {
    const auto place = table[u"columns"].toArray().toVariantList().indexOf(QString::fromUtf8(column));
    return table[u"rows"][row][place];
}

QString texts(const QJsonObject& table, const char* column) {
    return eachOf(
        numbers(0, int(table[u"rows"].toArray().size())),
        [&](int row) { return cell(table, row, column)[u"text"].toString(); }, u' ');
}

TEST_F(ViewCommands, tableShowsWhatTheWindowShows) {
    done("new Plongee a.carnet");
    done("add a.carnet lieu=Sete profondeur=20 epaves=Donator rebreather=1 gaz=Nitrox o2Mix=32 temps=30");
    const QJsonObject plain = json("table a.carnet --json");
    EXPECT_EQ(plain[u"columns"].toArray().size(), 14);  // the apparatus is hidden at first
    EXPECT_EQ(texts(plain, "profondeur"), u"20 m");
    EXPECT_EQ(plain[u"count"], QStringLiteral("One dive"));
    EXPECT_EQ(plain[u"rows"][0][11][u"image"], QStringLiteral("epave"));
    EXPECT_EQ(plain[u"rows"][0][2].toObject().keys(), words("text"));

    const QJsonObject other = json("table a.carnet --json", {"us units=1", "column site=0", "column scaph=1",
                                                             "mix in color=1", "depth color=#12ab00"});
    EXPECT_EQ(texts(other, "profondeur"), u"20 ft");
    EXPECT_EQ(texts(other, "rebreather"), u"SCR");
    EXPECT_FALSE(other[u"columns"].toArray().contains(QStringLiteral("site")));
    EXPECT_EQ(other[u"rows"][0][0][u"colour"], QStringLiteral("#ffff00"));
    EXPECT_EQ(cell(other, 0, "profondeur")[u"colour"], QStringLiteral("#12ab00"));
    EXPECT_EQ(texts(json("table a.carnet --json"), "profondeur"), u"20 m") << "nothing was stored";

    EXPECT_EQ(json("stats a.carnet --json", {R"(statistics values={"total temps": 70, "tek": 3})"})[u"total temps"],
              100);
    EXPECT_EQ(json("stats a.carnet --json")[u"total temps"], 30);
}

TEST_F(ViewCommands, formShowsWhatItWorksOut) {
    done("new Materiel m.materiel");
    done("add m.materiel noInspection=0 lastRevision=2020-01-01 nextRevision=2022-01-01 bloc=1");
    // 366 of 731 days.
    const QJsonObject inTime = json("form m.materiel --row 0 --json --now 2021-01-01T00:00:00");
    EXPECT_NEAR(inTime[u"controls"][u"tempsProgress"][u"value"].toDouble(), 100.0 * 366 / 731, 1e-9);
    EXPECT_EQ(at(inTime, "controls.pourcentageRevField.value controls.capaciteField.visible"), u"50 %|true");
    EXPECT_TRUE(inTime[u"controls"][u"delaiDepasseField"][u"colour"].isUndefined());
    const QJsonObject late = json("form m.materiel --row 0 bloc=0 --json --now 2022-01-01T00:00:00");
    EXPECT_EQ(at(late, "controls.delaiDepasseField.colour controls.capaciteField.visible"), u"#ff0000|false");
}

TEST_F(ViewCommands, formShowsEntriesAndStoresNothing) {
    done("new Plongee a.carnet");
    done("add a.carnet profondeur=20 rebreather=mCCR");
    const QByteArray before = bytes();
    const QJsonObject blank = json("form a.carnet --new --json --now 2019-05-03T10:30:00");
    EXPECT_EQ(at(blank, "controls.noPlongeeField.value controls.dateField.value"), u"2|2019-05-03");
    EXPECT_EQ(at(blank, "controls.flowField.enabled controls.flowField.visible"), u"false|true");

    const QJsonObject edited = json("form a.carnet --row 0 profondeur=33.5 rebreather=1 nocturne=yes --json");
    EXPECT_EQ(
        at(edited, "controls.profondeurField.value controls.rebreatherMatrix.value controls.nocturneSwitch.value"),
        u"33.5|1|1");
    EXPECT_EQ(at(edited, "controls.flowField.enabled controls.n2MixField.value"), u"true|0");
    EXPECT_EQ(bytes(), before);
    expectRefusals({{"form a.carnet --json", 2, "--row"},
                    {"form a.carnet --row 1 --json", 1, "1"},
                    {"form a.carnet --row 0 lieu", 2, "lieu"}});
}

TEST_F(ViewCommands, sortClicksTheHeadersAndSavesTheOrder) {
    done("new Budget b.budget");
    for (const char* add : {"prestation=Air", "prestation=Nitrox", "prestation=Gear"}) {
        done(words("add b.budget") << QString::fromLatin1(add));
    }
    done("sort b.budget prestation");
    EXPECT_EQ(texts(json("table b.budget --json"), "prestation"), u"Nitrox Gear Air");
    done("sort b.budget prestation prestation");
    EXPECT_EQ(texts(json("table b.budget --json"), "prestation"), u"Air Gear Nitrox");
    expectRefusals({{"sort b.budget nothing", 2, "nothing"}});
    EXPECT_TRUE(run("add b.budget supplement_5Field=lamp").error.startsWith(u"supplement_5Field: This label"));
    writeContents(path(QStringLiteral("old.budget")),
                  "<plist><array><dict><key>prestation</key><string>Air</string></dict></array></plist>");
    EXPECT_EQ(at(json("show old.budget --json"), "class version records.0.prestation"), u"Budget|1|Air");
}

TEST_F(ViewCommands, everyTypeIsMadeByAnyOfItsNames) {
    int made = 0;
    for (const auto& [name, classAndEnding] :
         namedValues("Carnet de plongee=Plongee carnet|Materiel=Materiel materiel|Epaves=Epaves epaves|"
                     "Compresseur=Compresseur compresseur|Rebreather=Rebreather rebreather|Budget=Budget budget|"
                     "Consommables=Consommables consommables|Entreprises=Entreprises entreprises|"
                     "Structures=Structures structures|Divers documents=DiversDocs documents|"
                     "Carnet de plongée=Plongee carnet|diversdocs=DiversDocs documents")) {
        const std::string file = std::to_string(++made) + '.' + classAndEnding.section(u' ', 1).toStdString();
        done(("new \"" + name + "\" " + file).c_str());
        done(("add " + file).c_str());
        const QJsonObject shown = json(("show --json " + file).c_str());
        EXPECT_EQ(shown[u"class"].toString(), classAndEnding.section(u' ', 0, 0)) << name;
        EXPECT_EQ(shown[u"records"].toArray().size(), 1) << name;
        EXPECT_EQ(json(("table --json " + file).c_str())[u"rows"].toArray().size(), 1) << name;
        EXPECT_FALSE(json(("form --row 0 --json " + file).c_str())[u"controls"].toObject().isEmpty()) << name;
    }
}

TEST_F(ViewCommands, cardsAndPagesComeFromTheSameRooms) {
    done("new Materiel m.materiel");
    done("add m.materiel marqueMatos=Alpha");
    done("add m.materiel marqueMatos=Beta");
    const QJsonObject card = json("card m.materiel --row 1 --json");
    const QString whole = card[u"text"].toString();
    EXPECT_TRUE(whole.contains(u"Beta") && !whole.contains(u"Alpha"));
    QString runs;
    for (const auto& each : card[u"runs"].toArray()) {
        runs += each.toObject()[u"text"].toString();
    }
    EXPECT_EQ(runs, whole);
    EXPECT_EQ(card[u"runs"][0][u"colour"], QStringLiteral("#00ff00"));
    EXPECT_FALSE(done("card m.materiel").contains(u'\r'));
    // Rows stand behind one "--row" or several, before the file's name or after it.
    for (const char* command : {"card --row 0 1 m.materiel", "card m.materiel --row 0 1",
                                "card --row 0 m.materiel --row 1", "card --row=0 --json --row 1 m.materiel"}) {
        const QString shown = done(command);
        EXPECT_TRUE(shown.contains(u"Alpha") && shown.contains(u"Beta")) << command;
    }
    EXPECT_FALSE(done("card --row 0 m.materiel").contains(u"Beta"));

    for (int row = 0; row < 70; ++row) {
        done("add m.materiel typeMatos=Fins");
    }
    done("new Plongee a.carnet");
    done("add a.carnet profondeur=20 temps=40");
    // The second page of the list stands in a file of its own.
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"render m.materiel list.pdf --what table", "list.pdf", "%PDF"},
        {"render m.materiel list.svg --what table", "list.svg", "<svg"},
        {"render m.materiel more.svg --what table", "more-2.svg", "<svg"},
        {"render --what card --row 1 m.materiel list.png", "list.png", "\x89PNG"},
        {"render a.carnet stats.svg --what stats", "stats.svg", "<text"},
        {"render a.carnet graphs.svg --what graphs", "graphs.svg", "<text"},
        {"render a.carnet card.svg --what card", "card.svg", "<text"},
    };
    for (const auto& [command, file, holds] : cases) {
        done(command);
        EXPECT_TRUE(contentsOf(path(QString::fromUtf8(file))).contains(holds)) << command;
    }
    expectRefusals({{"render m.materiel list.txt --what table", 2, ".pdf"},
                    {"render m.materiel list.png --what profile", 1, "m.materiel"},
                    {"render m.materiel list.png --what table --row 0", 2, "table"},
                    {"render a.carnet list.png --what profile --row 0 0", 2, "profile"}});

    // Nothing takes the document's place, whatever link leads to it.
    ASSERT_TRUE(QFile::copy(QStringLiteral(TAVREL_SAMPLE_FOLDER "/sample.documents"), path(QStringLiteral("d.png"))));
    ASSERT_TRUE(QFile::link(path(QStringLiteral("m.materiel")), path(QStringLiteral("x-2.svg"))));
    ASSERT_TRUE(QFile::link(path(QStringLiteral("d.png")), path(QStringLiteral("p.png"))));
    const QByteArray list = contentsOf(path(QStringLiteral("m.materiel")));
    const QByteArray pictures = contentsOf(path(QStringLiteral("d.png")));
    expectRefusals({{"render m.materiel x.svg --what table", 1, "own file"},
                    {"render d.png d.png --what table", 1, "own file"},
                    {"picture d.png --row 0 p.png", 1, "own file"}});
    EXPECT_EQ(contentsOf(path(QStringLiteral("m.materiel"))), list);
    EXPECT_EQ(contentsOf(path(QStringLiteral("d.png"))), pictures);
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("x.svg"))));
}

}  // namespace

}  // namespace tavrel
