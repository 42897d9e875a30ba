#include "interchange/imports.h"

#include "interchange/exports.h"
#include "interchange/frenchlocale.h"
#include "support/records.h"
#include "support/testdesktop.h"

#include <QDir>

namespace tavrel {

namespace {

QByteArray udcf(const QByteArray& dives) {
    return "<PROFILE UDCF=\"1\"><REPGROUP>" + dives + "</REPGROUP></PROFILE>";
}

QByteArray uddf(const QByteArray& dives) {
    return "<uddf version='3.2.0' xmlns='http://www.example.org/uddf'><profiledata><repetitiongroup>" + dives +
           "</repetitiongroup></profiledata></uddf>";
}

QByteArray handheld(const QByteArray& dives) {
    return "<carnet><repgroup>" + dives + "</repgroup></carnet>";
}

QByteArray udcfDive(const QByteArray& elements, const QByteArray& mix = "<TANK/>",
                    const QByteArray& samples = "<DELTA>10.0</DELTA><D>0.0</D>") {
    return "<DIVE>" + elements + "<GASES><MIX>" + mix + "</MIX></GASES><SAMPLES>" + samples + "</SAMPLES></DIVE>";
}

struct Imports : testing::Test {
    ImportResult take(const QByteArray& bytes, const Progress& progress = {}) {
        const ImportFormat format = bytes.contains("<uddf")       ? ImportFormat::uddf
                                    : bytes.contains("<repgroup") ? ImportFormat::handheld
                                                                  : ImportFormat::udcf;
        const auto result = importDives(carnet, bytes, format, progress);
        EXPECT_TRUE(result) << (result ? "" : result.error().message().toStdString());
        return result.value_or(ImportResult());
    }
    const Plongee& taken(const QByteArray& bytes) {
        EXPECT_TRUE(take(bytes).isWhole());
        return *carnet.recordAt(carnet.count() - 1);
    }

    TestDesktop desktop;
    Carnet carnet{desktop.desktop(), logbookExports()};
};

QString localText(const Date& date) {
    return date.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

TEST_F(Imports, typeADiveOfUDCFIntoTheForm) {
    const FrenchLocale french;
    const Plongee& dive = taken(udcf(udcfDive(R"(<PLACE>old</PLACE><PLACE>Étretat - <b>A &amp; B</b></PLACE>
        <DATE><YEAR>1999</YEAR></DATE><TIME><HOUR>8</HOUR><MINUTE>44</MINUTE></TIME>
        <DATE><YEAR>2014</YEAR><MONTH>07</MONTH><DAY>32</DAY></DATE><TIME><HOUR>9</HOUR><MINUTE>05</MINUTE></TIME>
        <MAXDEPTH>99</MAXDEPTH><DIVETIME>99</DIVETIME><SURFACEINTERVAL>infinity</SURFACEINTERVAL>
        <TEMPERATURE>101</TEMPERATURE><TEMPERATURE> -4.9</TEMPERATURE><ALTITUDE>4001</ALTITUDE>)",
                                              R"(<O2>0.1</O2><O2>0.18</O2><N2>9</N2><HE>0.45</HE>
        <TANK><TANKVOLUME>12</TANKVOLUME><TANKVOLUME>15</TANKVOLUME><PSTART>200</PSTART><PEND>210</PEND></TANK><TANK/>)",
                                              R"(<DELTA>20</DELTA><DELTA>4.9</DELTA><SWITCH>1</SWITCH><D>0.0</D>
        <D>12.7</D><ALARM>deco</ALARM><D>12.9</D><D>13,5</D><D>-40</D><D>deep</D>)")));
    EXPECT_EQ(fieldsOf(dive, "noPlongee lieu site surface"), u"1; Étretat - A & B; ; --:--");
    EXPECT_EQ(localText(dive.date), u"2014-08-01 09:05:00");
    EXPECT_EQ(dive.heure.toDateTime().time(), QTime(9, 5));
    EXPECT_EQ(fieldsOf(dive, "tempEau altitude meteo courant visibilite typePlongee"), u"-4; 0; 7; 6; 7; 8");
    EXPECT_EQ(fieldsOf(dive, "temps samplingRate"), u"4; 5") << "the interval";
    EXPECT_EQ(dive.profondeur, 13.0F) << "the greatest depth without its fraction";
    EXPECT_EQ(fieldsOf(dive, "gaz o2Mix heMix volumeBloc pressionDepart pressionFin"), u"2; 18; 45; 15; 200; 210");
    Series depths;
    depths.append(std::array{0.0F, 12.7F, 12.9F, 13.0F, -40.0F, 0.0F});
    EXPECT_EQ(dive.profilProfondeur, depths);
    for (const auto flags :
         {&Plongee::ASC_Flag, &Plongee::SLOW_Flag, &Plongee::SURF_Flag, &Plongee::CEIL_Flag, &Plongee::GAZ_Flag}) {
        EXPECT_EQ(dive.*flags, Series::ofIntegers({0, 0, 0, 0, 0, 0}));
    }
    EXPECT_EQ(dive.PRESS_Data, Series::ofReals({0}));
}

TEST_F(Imports, tellGasesByTheirFractions) {
    // The cleared form says air; percentages are truncated, and those out of range corrected by the form.
    const std::tuple<QByteArray, QByteArray, std::array<qint32, 3>> cases[] = {
        {"0.21", "0", {0, 21, 0}},     {"0.32", "0.00", {1, 32, 0}},  {"0.29", "0", {1, 28, 0}},
        {"0.18", "0.45", {2, 18, 45}}, {"0.20", "0.80", {3, 20, 80}}, {"0.19", "0", {0, 19, 0}},
        {"0", "0", {0, 21, 0}},        {"0.10", "0.90", {3, 10, 0}},  {"1.00", "0", {1, 100, 0}},
        {"0,5", "none", {0, 21, 0}},   {"0.25", "0.25", {2, 25, 25}}, {"0.10", "0.29", {2, 10, 28}},
    };
    for (const auto& [oxygen, helium, gas] : cases) {
        for (const QByteArray& file : {udcf(udcfDive({}, "<O2>" + oxygen + "</O2><HE>" + helium + "</HE><TANK/>")),
                                       handheld("<dive><gases><mix><o2>" + oxygen + "</o2><he>" + helium +
                                                "</he><tank/></mix></gases></dive>")}) {
            const Plongee& dive = taken(file);
            EXPECT_EQ((std::array{dive.gaz, dive.o2Mix, dive.heMix}), gas) << file.toStdString();
        }
    }
}

TEST_F(Imports, tellTheSamplingCodeByTheInterval) {
    const std::pair<const char*, int> cases[] = {{"10.0", 0}, {"20", 1},  {"30", 2}, {"60.0", 3}, {"120", 4},
                                                 {"4", 5},    {"1.0", 6}, {"5", 7},  {"7", 0},    {"", 0}};
    for (const auto& [delta, code] : cases) {
        const Plongee& dive = taken(udcf(udcfDive({}, "<TANK/>", QByteArray("<DELTA>") + delta + "</DELTA>")));
        EXPECT_EQ(dive.samplingRate, code) << delta;
        EXPECT_EQ(dive.profilProfondeur.size(), 1U) << "no depth is no profile";
    }
    const Plongee& dive = taken(udcf(udcfDive({}, "<TANK/>", "<DELTA>10</DELTA><D>12.7</D>")));
    EXPECT_EQ(dive.profilProfondeur.size(), 1U);
    EXPECT_EQ(dive.profilProfondeur.real(0), double{12.7F}) << "one lone sample";
    EXPECT_EQ(dive.profondeur, 12.0F);
}

TEST_F(Imports, typeADiveOfUDDFIntoTheForm) {
    const FrenchLocale french;
    const Plongee& dive = taken(uddf(R"(<dive>
        <date><year>2019</year><month>12</month><day>24</day></date><time><hour>23</hour><minute>59</minute></time>
        <airtemperature>273.0</airtemperature><lowesttemperature>300.12</lowesttemperature>
        <greatestdepth>31.4</greatestdepth><notes><text>no</text><text>Deux raies &amp; un congre</text></notes>
        <samples><waypoint><depth>9</depth></waypoint></samples>
        <samples>
          <waypoint>
            <depth>12.3</depth>
            <divetime>60</divetime>
          </waypoint>
          <waypoint><divetime>120</divetime><depth>.5</depth></waypoint>
          <waypoint><depth>3.25</depth><divetime>9</divetime><divetime>2999</divetime></waypoint>
        </samples></dive>)"));
    EXPECT_EQ(localText(dive.date), u"2019-12-24 23:59:00");
    EXPECT_EQ(dive.heure.toDateTime().time(), QTime(23, 59));
    EXPECT_EQ(fieldsOf(dive, "tempAir tempEau profondeur temps"), u"0; 27; 31.4; 49");
    EXPECT_EQ(dive.notes, u"Deux raies & un congre");
    Series depths;
    depths.append(std::array{12.36F, 120.5F, 3.2592999F});
    EXPECT_EQ(dive.profilProfondeur, depths);
    EXPECT_EQ(fieldsOf(dive, "meteo courant visibilite typePlongee"), u"7; 6; 7; 8");

    // Nothing but a dive: the temperatures of nothing lie outside what the form takes.
    const Plongee& bare = taken(uddf("<dive><lowesttemperature>250</lowesttemperature></dive>"));
    EXPECT_EQ(fieldsOf(bare, "noPlongee tempAir tempEau temps"), u"2; -50; -50; 0");
    EXPECT_EQ(taken(uddf("<dive><airtemperature>250</airtemperature></dive>")).tempAir, -23);
}

TEST_F(Imports, typeADiveOfTheHandheldIntoTheForm) {
    const QByteArray gases = "<gases><mix><o2>0.21</o2><tank><tankvolume>12</tankvolume></tank></mix></gases>";
    const Plongee& dive = taken(handheld(R"(<dive><place>Gozo</place><site>Blue Hole</site>
        <DATE/><date><YEAR>2011</YEAR><MONTH>5</MONTH><DAY>3</DAY></date><TIME><HOUR>10</HOUR></TIME>
        <time><hour>8</hour></time><weather>3</weather><current>2</current><visibility>0</visibility>
        <divetype>99</divetype><maxdepth>32.8</maxdepth><divetime>41</divetime>
        <watertemperature>19</watertemperature><airrtemperature>25</airrtemperature><altitude>10</altitude>
        <surfaceinterval>2:30</surfaceinterval>)" +
                                         gases + "</dive>"));
    EXPECT_EQ(fieldsOf(dive, "lieu site surface"), u"Gozo; Blue Hole; --:--");
    EXPECT_EQ(localText(dive.date), u"2011-05-03 10:00:00");
    EXPECT_EQ(fieldsOf(dive, "meteo courant visibilite typePlongee"), u"3; 2; 8; 0");
    EXPECT_EQ(fieldsOf(dive, "profondeur temps tempEau tempAir altitude volumeBloc"), u"32; 41; 19; 25; 10; 12");
    EXPECT_EQ(dive.profilProfondeur, Series::ofReals({0}));

    const Plongee& bare = taken(handheld("<dive><airtemperature>25</airtemperature>" + gases + "</dive>"));
    EXPECT_EQ(fieldsOf(bare, "meteo visibilite tempEau tempAir"), u"7; 7; -50; -50");
    EXPECT_EQ(bare.date.toIso().left(13), bare.heure.toIso().left(13));
}

TEST_F(Imports, keepTheTimeOfDayOfADateWithoutYear) {
    const QByteArray zone = qgetenv("TZ");
    for (const char* name : {"UTC", "Europe/Paris", "America/Los_Angeles"}) {
        qputenv("TZ", name);
        tzset();
        const Plongee& dive = taken(udcf(udcfDive("<TIME><HOUR>25</HOUR><MINUTE>7</MINUTE></TIME>")));
        EXPECT_EQ(dive.heure.toDateTime().time(), QTime(1, 7)) << name;
        EXPECT_EQ(dive.heure.toDateTime().date(), QDate(-2, 12, 1)) << name;
    }
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    tzset();
    const QByteArray huge = "<YEAR>2147483647</YEAR><MONTH>2147483647</MONTH><DAY>2147483647</DAY>";
    EXPECT_TRUE(taken(udcf(udcfDive("<DATE>" + huge + "</DATE>"))).date.isNull());
}

TEST_F(Imports, takeOnlyTheLastGroup) {
    const QByteArray one = udcfDive("<PLACE>one</PLACE>");
    EXPECT_EQ(taken(udcf(one + one + "</REPGROUP><REPGROUP>" + udcfDive("<PLACE>two</PLACE>"))).lieu, u"two");
    EXPECT_EQ(taken(uddf("<dive/></repetitiongroup></profiledata><profiledata><repetitiongroup><dive/><dive/>"
                         "</repetitiongroup><repetitiongroup><dive><notes><text>two</text></notes></dive>"))
                  .notes,
              u"two");
    const QByteArray gases = "<gases><mix><tank/></mix></gases>";
    EXPECT_EQ(
        taken(handheld("<dive>" + gases + "</dive></repgroup><repgroup><dive><place>two</place>" + gases + "</dive>"))
            .lieu,
        u"two");
    EXPECT_EQ(carnet.count(), 3);
    EXPECT_EQ(take("<PROFILE/>").taken, 0);
    EXPECT_EQ(carnet.undoStack().count(), 3) << "nothing taken is no step";
}

TEST_F(Imports, numberOnFromTheLastDiveAndUndoAsOneStep) {
    carnet.appendDives(QStringLiteral("add"), {filled<Plongee>("noPlongee=57")});
    carnet.selectRows({0});
    EXPECT_EQ(take(udcf(udcfDive({}) + udcfDive({}))).message(), u"2 dives were imported. Without a date: 2.");
    EXPECT_EQ(std::pair(carnet.recordAt(1)->noPlongee, carnet.recordAt(2)->noPlongee), std::pair(58, 59));
    EXPECT_TRUE(carnet.isChanged());
    EXPECT_TRUE(carnet.selectedRows().isEmpty()) << "the form no longer shows the dive that was selected";
    carnet.undoStack().undo();
    EXPECT_EQ(carnet.count(), 1);
}

TEST_F(Imports, stopAtADiveThatLacksAnElementAndKeepTheOthers) {
    const QByteArray whole = udcfDive({});
    const std::pair<QByteArray, const char*> cases[] = {
        {udcf(whole + "<DIVE><GASES><MIX><TANK/></MIX></GASES></DIVE>" + whole), "SAMPLES"},
        {udcf(whole + "<DIVE><SAMPLES/></DIVE>"), "GASES"},
        {udcf(whole + "<DIVE><SAMPLES/><GASES/></DIVE>"), "MIX"},
        {udcf(whole + udcfDive({}, "<O2>0.21</O2>")), "TANK"},
        {handheld("<dive><gases><mix><tank/></mix></gases></dive><dive/>"), "gases"},
    };
    for (const auto& [file, element] : cases) {
        const int before = carnet.count();
        const ImportResult result = take(file);
        EXPECT_EQ(std::pair(result.taken, result.stoppedAt), std::pair(1, 2));
        EXPECT_TRUE(result.message().startsWith(u"One dive was imported.")) << result.message().toStdString();
        EXPECT_TRUE(result.message().contains(QLatin1String(element))) << result.message().toStdString();
        EXPECT_EQ(carnet.count(), before + 1);
    }
    EXPECT_EQ(take(handheld("<dive/>")).taken, 0);
}

TEST_F(Imports, surviveHostileFilesAndReadNoOther) {
    const QDir folder(QStringLiteral(TAVREL_TEST_DATA "/hostile"));
    const QStringList files = folder.entryList({QStringLiteral("import-*.xml")});
    EXPECT_GE(files.size(), 13);
    for (const QString& file : files) {
        for (const auto read : {readUDCF, readUDDF, readFromiPhoneFile}) {
            const auto result = read(carnet, folder.filePath(file), {});
            if (!result) {
                EXPECT_TRUE(result.error().message().contains(file)) << result.error().message().toStdString();
            }
        }
    }
    for (const auto& taken : allAs<Plongee>(carnet.records())) {
        EXPECT_FALSE(taken->lieu.contains(u"root:") || taken->lieu.contains(u"deep")) << taken->lieu.toStdString();
        const double deepest = static_cast<double>(taken->profondeur);
        EXPECT_TRUE(deepest >= 0 && deepest <= 2147483648.0) << deepest;
    }
}

TEST_F(Imports, canBeCancelledAndKeepWhatWasTaken) {
    const QByteArray file = udcf(udcfDive({}).repeated(40));
    std::size_t last = 0;
    const ImportResult result = take(file, [&](std::size_t done, std::size_t total) {
        EXPECT_LE(last, done);
        EXPECT_EQ(total, 1000U);
        last = done;
        return done < 900;
    });
    EXPECT_TRUE(result.cancelled);
    EXPECT_EQ(result.taken, 32);
    EXPECT_EQ(carnet.count(), 32);
}

TEST_F(Imports, takeBackWhatTheExportsWrite) {
    auto dive = filled<Plongee>(
        "lieu=Bonifacio|site=Mérouville|profilProfondeur=3.14,20|samplingRate=6|temps=33|o2Mix=21|date=2020-02-29|"
        "heure=2020-02-29T14:45");
    dive.ASC_Flag = Series::ofIntegers({1, 1});
    carnet.appendDives(QStringLiteral("add"), {dive});
    const Plongee& again = taken(*exportUDCFFormat(carnet));
    EXPECT_EQ(fieldsOf(again, "lieu samplingRate temps"), u"Bonifacio - Mérouville; 7; 5");
    EXPECT_EQ(localText(again.date), u"2020-02-29 14:45:00");
    Series depths;
    depths.append(std::array{0.0F, 3.1F, 20.0F, 0.0F});
    EXPECT_EQ(again.profilProfondeur, depths);
    EXPECT_EQ(again.ASC_Flag, Series::ofIntegers({0, 0, 0, 0}));
    EXPECT_EQ(take(*exportUDDFFormat(carnet)).taken, 0);
}

}  // namespace

}  // namespace tavrel
