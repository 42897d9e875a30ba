#include "interchange/standard/sourcereading.h"

#include "base/safefile.h"
#include "interchange/standard/resampling.h"
#include "interchange/standard/uddfwords.h"
#include "support/printing.h"
#include "support/records.h"

#include <array>

namespace tavrel {

namespace {

FoundDives read(const QByteArray& bytes, std::optional<SourceKind> kind = {}) {
    const auto source = readSource(bytes);
    EXPECT_TRUE(source) << (source ? "" : source.error().message().toStdString());
    EXPECT_TRUE(!kind || !source || source->kind == *kind);
    return source ? source->found : FoundDives();
}

FoundDives readFixture(const char* name, SourceKind kind) {
    const auto bytes = FileBytes::open(QStringLiteral(TAVREL_TEST_DATA "/exchange/") + QString::fromLatin1(name));
    EXPECT_TRUE(bytes) << name;
    return bytes ? read(bytes->bytes().toByteArray(), kind) : FoundDives();
}

QByteArray dive(const QByteArray& before, const QByteArray& rest = {}) {
    return "<uddf version='3.2.3'><profiledata><repetitiongroup id='g'><dive id='d'><informationbeforedive>" + before +
           "</informationbeforedive>" + rest + "</dive></repetitiongroup></profiledata></uddf>";
}

Plongee onlyDive(const QByteArray& bytes, std::optional<SourceKind> kind = {}) {
    return read(bytes, kind).dives.at(0).dive;
}
Plongee diveRead(const QByteArray& before, const QByteArray& rest = {}) {
    return onlyDive(dive(before, rest));
}
/// Waypoints of "depth" or "depth@seconds", with blanks between; "@20" has no depth.
QByteArray samples(const QByteArray& waypoints) {
    QByteArray all;
    for (const QByteArray& waypoint : waypoints.split(' ')) {
        const QList<QByteArray> parts = waypoint.split('@');
        all += "<waypoint>" + (parts[0].isEmpty() ? QByteArray() : "<depth>" + parts[0] + "</depth>");
        all += (parts.size() > 1 ? "<divetime>" + parts[1] + "</divetime>" : QByteArray()) + "</waypoint>";
    }
    return "<samples>" + all + "</samples>";
}

QString startText(const Plongee& dive) {
    return startOf(dive).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

bool loses(const FoundDive& found, const char* name) {
    return std::any_of(found.lost.begin(), found.lost.end(),
                       [&](const LostItem& item) { return item.name == QLatin1String(name); });
}

TEST(Uddf, givesADiveEverythingThatItsLinksTell) {
    const FoundDives found = readFixture("two-seconds.uddf", SourceKind::uddf);
    ASSERT_EQ(found.dives.size(), 1U);
    const Plongee& dive = found.dives[0].dive;
    EXPECT_EQ(startText(dive), u"2021-06-30 09:41:30") << "as the clock on the boat showed it";
    EXPECT_EQ(fieldsOf(dive, "noPlongee lieu site pays"), u"7; Port-Cros; La Gabinière; France");
    EXPECT_EQ(fieldsOf(dive, "gps epaves structure"), u"N 42° 59.298'  E 006° 23.550'; Le Donator; Club du Port");
    EXPECT_EQ(fieldsOf(dive, "partenaires surface profondeur"), u"Équipière Première, Max; 01:31; 6.47");
    EXPECT_EQ(fieldsOf(dive, "temps tempEau tempAir gaz o2Mix heMix"), u"45; 15; 26; 1; 32; 0");
    EXPECT_EQ(fieldsOf(dive, "alliageBloc volumeBloc pressionDepart pressionFin"), u"2; 12; 201; 70");
    EXPECT_EQ(fieldsOf(dive, "visibilite courant typePlongee combinaison inoubliable lestage"), u"1; 3; 3; 1; 1; 4.5");
    EXPECT_EQ(fieldsOf(dive, "fabricant ordinateur serie equip_1 equip_2"), u"Reef; Two; 0042; Red fins; ");
    EXPECT_EQ(dive.notes, u"First line\nSecond line");
    for (const char* name : {"waypoint/heartrate", "waypoint/temperature", "alarm rbt", "problems", "site/notes"}) {
        EXPECT_TRUE(loses(found.dives[0], name)) << name;
    }
    EXPECT_FALSE(loses(found.dives[0], "rating"));
    FoundDive keeping = found.dives[0];
    keepLostTexts(keeping);
    EXPECT_TRUE(keeping.dive.notes.endsWith(QStringLiteral("problems: vertigo"))) << keeping.dive.notes.toStdString();
}

TEST(Uddf, samplesTwoSecondsSoThatNoDepthIsLost) {
    const Plongee dive = readFixture("two-seconds.uddf", SourceKind::uddf).dives[0].dive;
    // Four seconds would be a metre off at the peak, so it becomes one.
    EXPECT_EQ(dive.samplingRate, 6);
    ASSERT_EQ(dive.profilProfondeur.size(), 13U);
    EXPECT_EQ(dive.profilProfondeur.real(4), 6.4);
    EXPECT_DOUBLE_EQ(dive.profilProfondeur.real(3), 3.95);
    const auto flagged = [&](const Series& flags, std::size_t sample) {
        for (std::size_t other = 0; other < flags.size(); ++other) {
            EXPECT_EQ(flags.integer(other), other == sample ? 1 : 0) << other;
        }
        EXPECT_EQ(flags.size(), 13U);
    };
    flagged(dive.ASC_Flag, 4);
    flagged(dive.SLOW_Flag, 8);
    flagged(dive.CEIL_Flag, 10);
    flagged(dive.SURF_Flag, 12);
    EXPECT_EQ(std::tuple(dive.PRESS_Data.real(0), dive.PRESS_Data.real(4), dive.PRESS_Data.real(12)),
              std::tuple(200.5, 196.5, 192.5));
}

TEST(Uddf, givesTanksTheirPlacesByTheUseOfTheirGas) {
    const FoundDives found = readFixture("stages.uddf", SourceKind::uddf);
    ASSERT_EQ(found.dives.size(), 2U) << "of both groups, whatever the prefix";
    const Plongee& dive = found.dives[0].dive;
    EXPECT_EQ(startText(dive), u"2019-08-01 07:05:00");
    EXPECT_EQ(fieldsOf(dive, "gaz o2Mix heMix"), u"2; 18; 45") << "breathed at the bottom";
    EXPECT_EQ(fieldsOf(dive, "volumeBloc pressionDepart pressionFin"), u"24; 230; 80");
    EXPECT_EQ(fieldsOf(dive, "gaz_2 o2Mix_2 volumeBloc_2 pressionDepart_2 pressionFin_2"), u"1; 30; 11; 210; 150");
    EXPECT_EQ(fieldsOf(dive, "volPony1 pressDepartPony1 pressFinPony1"), u"11; 200; 110");
    EXPECT_EQ(fieldsOf(dive, "volPony2 pressDepartPony2 pressFinPony2"), u"7; 190; 120");
    EXPECT_EQ(fieldsOf(dive, "decoO2_Level_1 decoO2_Level_2 decoO2_Level_3"), u"30; 50; 100");
    const int seconds = 60;
    EXPECT_EQ(dive.GAZ_Flag.integer(120 / seconds), 1);
    EXPECT_EQ(dive.GAZ_Flag.integer(1800 / seconds), 3);
    EXPECT_EQ(dive.GAZ_Flag.integer(2700 / seconds), 4);
    EXPECT_EQ(dive.PRESS_Data.real(0), 230) << "of the first tank";
    EXPECT_EQ(dive.temps, 70) << "the last waypoint's, without a duration";
    EXPECT_EQ(found.dives[1].dive.temps, 30);
    EXPECT_EQ(startText(found.dives[1].dive), u"2019-08-02 23:59:59");
    EXPECT_FALSE(found.dives[1].dive.hasProfile());
}

TEST(Uddf, readsARebreather) {
    const FoundDives found = readFixture("rebreather.uddf", SourceKind::uddf);
    ASSERT_EQ(found.dives.size(), 1U);
    const Plongee& dive = found.dives[0].dive;
    EXPECT_EQ(fieldsOf(dive, "rebreather ppO2 lowSetpoint"), u"3; 2; 10") << "1.3 and 0.7 bar";
    EXPECT_EQ(fieldsOf(dive, "o2Mix volumeBloc pressionDepart"), u"100; 2; 180");
    EXPECT_EQ(fieldsOf(dive, "o2Mix_2 heMix_2 volumeBloc_2 pressionFin_2"), u"18; 45; 3; 160");
    EXPECT_EQ(fieldsOf(dive, "O2Bailout1 volBailout1 pressDepartBailout1 pressFinBailout1"), u"50; 11; 210; 205")
        << "litres and bar where pascal and cubic metres make no sense";
    EXPECT_EQ(fieldsOf(dive, "profondeur temps tempEau"), u"40.5; 15; 12") << "the deepest waypoint";
    // 80 000 Pa stand for 1950 m in the standard atmosphere.
    EXPECT_EQ(dive.altitude, 1950);
    EXPECT_EQ(breathedGas(dive).helium, 45);
}

TEST(Uddf, findsDivesOutsideOfProfileDataAndTheOlderPlacesOfValues) {
    EXPECT_EQ(read("<uddf version='2.0'><repetitiongroup><dive/><dive/></repetitiongroup></uddf>").dives.size(), 2U);
    const FoundDives found = readFixture("older.uddf", SourceKind::olderUddf);
    ASSERT_EQ(found.dives.size(), 3U);
    const Plongee& dive = found.dives[0].dive;
    EXPECT_EQ(startText(dive), u"2009-05-09 08:07:00");
    EXPECT_EQ(fieldsOf(dive, "profondeur tempEau gaz o2Mix"), u"31.4; 16; 0; 21");
    EXPECT_EQ(fieldsOf(dive, "lieu site notes"), u"Gozo; Blue Hole; Old times");
    EXPECT_EQ(dive.samplingRate, 0);
    EXPECT_EQ(dive.profilProfondeur, Series::ofReals({4.0, 4.0, 9.5, 14.0}));
    EXPECT_EQ(startText(found.dives[1].dive), u"2009-05-10 16:30:00");
    EXPECT_EQ(found.dives[1].dive.profondeur, 9.5F);
    EXPECT_TRUE(found.dives[2].dive.date.isNull());
}

TEST(Uddf, readsTheClockHoweverItIsWritten) {
    const std::pair<const char*, const char16_t*> cases[] = {
        {"<datetime>2010-08-14T10:02:00Z</datetime>", u"2010-08-14 10:02:00"},
        {"<datetime>2010-08-14T10:02:00.25-11:00</datetime>", u"2010-08-14 10:02:00"},
        {"<datetime>\n 2010-8-4T9:02 </datetime>", u"2010-08-04 09:02:00"},
        {"<datetime>20100814T100203</datetime>", u"2010-08-14 10:02:03"},
        {"<datetime>14.08.2010 10:02</datetime>", u"2010-08-14 10:02:00"},
        {"<datetime>08/14/2010 2:02 PM</datetime>", u"2010-08-14 14:02:00"},
        {"<datetime>08/14/2010 12:02 am</datetime>", u"2010-08-14 00:02:00"},
        {"<datetime/><date>2010-08-14</date><time>10:02:59Z</time>", u"2010-08-14 10:02:59"},
        {"<date year='2010' month='8' day='14'/><time hour='7' minute='5'/>", u"2010-08-14 07:05:00"},
        {"<date><year>2010</year><month>8</month><day>14</day></date>", u"2010-08-14 00:00:00"},
        {"<date>2010-08-14</date></informationbeforedive><time>10:02</time><informationbeforedive>",
         u"2010-08-14 10:02:00"},
        {"<datetime><date><year>2010</year><month>8</month><day>4</day></date><time><hour>9</hour></time></datetime>",
         u"2010-08-04 09:00:00"},
        {"<date>2010-08-14T00:00:00</date><time>10:42</time>", u"2010-08-14 10:42:00"},
        {"<datetime>2010-08-14T00:00:00</datetime><time>0001-01-01T10:42:00</time>", u"2010-08-14 10:42:00"},
        {"<datetime>2010-08-14T09:02:00</datetime><time>10:42</time>", u"2010-08-14 09:02:00"},
        {"<date>2010-08-14</date><time>10.42</time>", u"2010-08-14 10:42:00"},
        {"<date>2010-08-14</date><time>10:30&#x202F;PM</time>", u"2010-08-14 22:30:00"},
        {"<date>2010-08-14</date><time>12:30&#xA0;a.m.</time>", u"2010-08-14 00:30:00"},
        {"<date>2010-08-14</date><time>10.02.30 P. M.</time>", u"2010-08-14 22:02:30"},
        {"<date>2010-08-14</date><time>12:30 Amsterdam</time>", u"2010-08-14 12:30:00"},
        {"<datetime>2010-08-14T1042</datetime>", u"2010-08-14 10:42:00"},
        {"<datetime>2010-08-14T10-42-31</datetime>", u"2010-08-14 10:42:31"},
        {"<datetime>2010-08-14-10:42:31</datetime>", u"2010-08-14 10:42:31"},
        {"<date>2010-08-14-02:00</date>", u"2010-08-14 00:00:00"},
        {"<datetime>2010-08-14T10:42-05:00</datetime>", u"2010-08-14 10:42:00"},
        {"<datetime>2010-08-31T24:00:00</datetime>", u"2010-09-01 00:00:00"},
        {"<datetime>0001-01-01T00:00:00</datetime>", u""},
        {"<datetime>2010-02-30T10:00:00</datetime>", u""},
        {"<datetime>yesterday</datetime>", u""},
    };
    for (const auto& [before, start] : cases) {
        EXPECT_EQ(startText(diveRead(before)), QStringView(start)) << before;
    }
}

TEST(Uddf, keepsTheDayOfATimeThatNoClockShowed) {
    const QByteArray zone = qgetenv("TZ");
    const std::pair<const char*, QByteArray> cases[] = {{"Europe/Paris", "2019-03-31T02:30:00"},
                                                        {"America/Sao_Paulo", "2018-11-04T00:10:00"},
                                                        {"America/Santiago", "2019-09-08T00:00:00"},
                                                        {"America/Havana", "2019-03-10T00:45:00"}};
    for (const auto& [name, moment] : cases) {
        qputenv("TZ", name);
        tzset();
        const Plongee skipped = diveRead("<datetime>" + moment + "</datetime>");
        EXPECT_EQ(startOf(skipped).toString(Qt::ISODate), QLatin1String(moment) + u'Z') << name;
    }
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    tzset();
}

TEST(Uddf, takesNumbersOfNoSenseForNone) {
    const Plongee it = diveRead("<altitude>-3</altitude><divenumber>-2</divenumber>",
                                R"(<samples>
        <waypoint><depth>nan</depth><divetime>0</divetime></waypoint>
        <waypoint><depth>1e32</depth><divetime>10</divetime></waypoint>
        <waypoint><depth>5</depth><divetime>1e18</divetime><tankpressure>-1</tankpressure></waypoint>
        <waypoint><depth>7</depth></waypoint>
        </samples><informationafterdive><greatestdepth>-4</greatestdepth><diveduration>0</diveduration>
        <lowesttemperature>9999</lowesttemperature></informationafterdive>)");
    EXPECT_EQ(fieldsOf(it, "altitude noPlongee tempEau profondeur"), u"0; 0; -50; 7");
    EXPECT_EQ(it.profilProfondeur.size(), 4U) << "from the start on";
    EXPECT_EQ(it.PRESS_Data.size(), 1U);
}

TEST(Uddf, spreadsWaypointsWithoutATime) {
    const Plongee it = diveRead({}, samples("0 4@5 8 12@15 @20 - 2 1").replace('-', ""));
    EXPECT_EQ(it.samplingRate, 7) << "5 s";
    const std::array expected{0.0, 4.0, 8.0, 12.0, 12 - 10.0 / 3, 12 - 20.0 / 3, 2.0, 1.0};
    ASSERT_EQ(it.profilProfondeur.size(), expected.size());
    for (std::size_t sample = 0; sample < expected.size(); ++sample) {
        EXPECT_NEAR(it.profilProfondeur.real(sample), expected[sample], 1e-9) << sample;
    }
}

TEST(Uddf, readsTimesAsTheyCanOnlyBeMeant) {
    const QByteArray lasted40 = "<informationafterdive><diveduration>40</diveduration></informationafterdive>";
    const QByteArray onAClock = samples("5@36000 9@36010 7@36040");
    for (const QByteArray& elsewhere : {samples("5@1000000 9@1000010 7@1000040"), onAClock, onAClock + lasted40,
                                        samples("5@0:00 9@0:10 7@00:00:40")}) {
        EXPECT_EQ(diveRead({}, elsewhere).profilProfondeur.size(), 5U) << "from the first waypoint on";
    }
    const QByteArray lasted30 = "<informationafterdive><diveduration>1800</diveduration></informationafterdive>";
    EXPECT_EQ(diveRead({}, samples("5@900 9@1800") + lasted30).profilProfondeur.size(), 16U);
    const Plongee shared = diveRead({}, samples("0@0 5@0 30.5@60 30.5@60 9@60 4@120 2@120"));
    EXPECT_EQ(shared.profondeur, 30.5F);
    EXPECT_EQ(shared.profilProfondeur, Series::ofReals({0, 5, 30.5, 9, 4, 2})) << "evenly, each depth once";
    EXPECT_EQ(diveRead({}, samples("0@0 5@10 6@10 9@20 8@30")).profilProfondeur, Series::ofReals({0, 6, 9, 8}))
        << "one moment now and then: its deepest";
    EXPECT_EQ(diveRead({}, samples("9@20 1@0 5@10")).profilProfondeur, Series::ofReals({1, 5, 9})) << "in their order";
    const Plongee minutes = diveRead(
        {}, samples("1@0 2@2700") + "<informationafterdive><diveduration>45</diveduration></informationafterdive>");
    EXPECT_EQ(minutes.temps, 45);
}

TEST(Resampling, takesTheShorterOfTwoStepsAndKeepsWhatStandsOut) {
    EXPECT_EQ(resample({{0, 5}, {4, 5}, {8, 5}, {18, 5}, {28, 5}})->code, 5);
    const auto peaked = resample({{0, 9}, {10, 9}, {14, 9}, {14.5, 0}, {15, 9}, {20, 9}, {30, 9}});
    EXPECT_EQ(*std::min_element(peaked->depths.begin(), peaked->depths.end()), 0);
}

TEST(Uddf, ratesASightByItsMetres) {
    const std::pair<double, qint32> cases[] = {{40, 8}, {39, 0}, {25, 0}, {15, 1}, {14.9, 2},
                                               {10, 2}, {5, 3},  {3, 4},  {1, 5},  {0.9, 6}};
    for (const auto& [metres, rating] : cases) {
        EXPECT_EQ(visibilityRating(metres), rating) << metres;
    }
}

TEST(Uddf, takesWhatTheDiveLacksFromItsWaypoints) {
    const QByteArray file = R"(<UDDF version="3.0.1"><gasDefinitions><mix ID="a"><o2>0.32</o2></mix>
        <mix id="b"><o2>0.5</o2></mix></gasDefinitions><profileData><repetitionGroup><Dive><informationBeforeDive>
        <tankData><link ref="a"/><tankPressureBegin>20500000</tankPressureBegin></tankData>
        <tankdata><link ref="b"/></tankdata></informationBeforeDive><samples>
        <waypoint><depth>0</depth><divetime>0</divetime><temperature>255.4</temperature>
          <tankpressure ref="a">2.0e7</tankpressure><tankpressure ref="b">15000000</tankpressure></waypoint>
        <waypoint><depth>20</depth><divetime>600</divetime><temperature>285.15</temperature>
          <tankpressure ref="a">9000000</tankpressure><tankpressure ref="b">12000000</tankpressure></waypoint>
        </samples><informationAfterDive><greatestDepth>1e32</greatestDepth><lowestTemperature>255.4</lowestTemperature>
        <diveDuration>0:42:40</diveDuration></informationAfterDive></Dive></repetitionGroup></profileData></UDDF>)";
    const Plongee it = onlyDive(file, SourceKind::uddf);
    EXPECT_EQ(fieldsOf(it, "profondeur temps tempEau o2Mix pressionDepart pressionFin"), u"20; 43; 12; 32; 205; 90");
    EXPECT_EQ(fieldsOf(it, "pressDepartPony1 pressFinPony1"), u"150; 120") << "richer, so a stage";
    EXPECT_EQ(it.PRESS_Data.real(0), 200.0);
}

TEST(Uddf, findsTheGasOfEachTankAndSwitch) {
    // A tank named by a switch, one among the equipment alone, gases that no switch names, one that repeats.
    const QByteArray head =
        "<uddf version='3.3.1'><diver><owner><equipment><tank id='t1'><name>Red</name><ratedpressure>23200000"
        "</ratedpressure><tankvolume>0.012</tankvolume></tank></equipment></owner></diver><gasdefinitions>"
        "<mix id='tx'><o2>0.18</o2><he>0.45</he></mix><mix id='n32'><o2>0.32</o2></mix><mix id='n50'><o2>0.5</o2></mix>"
        "</gasdefinitions><profiledata><repetitiongroup><dive>";
    const QByteArray tail = "</dive></repetitiongroup></profiledata></uddf>";
    const Plongee deep =
        onlyDive(head + R"(<tankdata><tankused id='u1'><link ref='n32'/></tankused><tankused id='u2'><link ref='tx'/>
        <link ref='t1'/></tankused></tankdata><samples><waypoint><depth>0</depth><divetime>0</divetime>
        <switchtank ref='u1'/></waypoint><waypoint><depth>50</depth><divetime>10</divetime><switchtank ref='t1'/>
        </waypoint><waypoint><depth>40</depth><divetime>20</divetime><switchtank ref='u2'/><switchmix ref='tx'/>
        </waypoint><waypoint><depth>5</depth><divetime>30</divetime><switchmix ref='n32'/></waypoint></samples>)" +
                 tail);
    EXPECT_EQ(fieldsOf(deep, "o2Mix heMix pressionBloc volumeBloc"), u"18; 45; 232; 12");
    EXPECT_EQ(deep.GAZ_Flag, Series::ofIntegers({2, 1, 0, 2})) << "a gas that is breathed already is no switch";
    const Plongee shallow = onlyDive(head + R"(<equipmentused><link ref='t1'/></equipmentused>
        <tankdata><link ref='n32'/></tankdata>)" +
                                     tail);
    EXPECT_EQ(fieldsOf(shallow, "o2Mix volumeBloc pressionBloc"), u"32; 12; 232");
    const FoundDive staged = read(head + R"(<equipmentused><link ref='t1'/></equipmentused><tankdata><link ref='n32'/>
        </tankdata><tankdata><link ref='n50'/><tankvolume>0.011</tankvolume></tankdata><samples><waypoint>
        <depth>9</depth><switchtank ref='t9'/><switchmix ref='zz'/></waypoint><waypoint><depth>5</depth></waypoint>
        </samples>)" + tail)
                                 .dives.at(0);
    EXPECT_EQ(fieldsOf(staged.dive, "volPony1 decoO2_Level_1 decoO2_Level_2"), u"11; 50; 0");
    for (const char* name : {"equipmentused/tank", "waypoint/switchtank", "waypoint/switchmix"}) {
        EXPECT_TRUE(loses(staged, name)) << name;
    }
}

TEST(Uddf, tellsGasesWithoutAnIdFromThoseThatAreNamed) {
    const auto read = [](const QByteArray& gases) {
        return fieldsOf(onlyDive("<uddf><gasdefinitions>" + gases + "<mix><o2>0.4</o2></mix></gasdefinitions>" +
                                 dive({}, "<tankdata><link ref='a'/></tankdata>" + samples("0@0 9@60")).mid(22)),
                        "o2Mix");
    };
    EXPECT_EQ(read({}), u"40") << "the only one";
    EXPECT_EQ(read("<mix id='a'><o2>0.32</o2></mix>"), u"32");
    EXPECT_EQ(read("<mix><o2>0.5</o2></mix>"), u"21") << "nothing says which";
}

TEST(Uddf, takesTheElementsOfAnIdInTheirOrder) {
    QByteArray buddies;
    for (int number = 100; number < 250; ++number) {
        buddies +=
            "<buddy id='1'><personal><firstname>" + QByteArray::number(number) + "</firstname></personal></buddy>";
    }
    const QString names =
        onlyDive("<uddf><diver>" + buddies + "</diver>" + dive("<link ref='1'/>").mid(22)).partenaires;
    EXPECT_TRUE(names.startsWith(QStringLiteral("100, 101, 102")) && names.endsWith(QStringLiteral("199")));
}

TEST(Uddf, believesNoNumberThatTheWaypointsContradict) {
    const std::tuple<const char*, const char*, const char16_t*> cases[] = {
        {"6553.5", "60", u"20.4; 1"},    {"2.04", "4294967295", u"20.4; 2"},
        {"19.95", "90000", u"19.95; 2"}, {"21", "86000", u"21; 1433"},
        {"340", "0", u"340; 2"},
    };
    for (const auto& [depth, duration, expected] : cases) {
        const FoundDive it =
            read(dive({}, samples("0@0 20.4@60 3@120") + "<informationafterdive><greatestdepth>" + depth +
                              "</greatestdepth><diveduration>" + duration + "</diveduration></informationafterdive>"))
                .dives.at(0);
        EXPECT_EQ(fieldsOf(it.dive, "profondeur temps"), QStringView(expected)) << depth;
        EXPECT_EQ(loses(it, "greatestdepth"), it.dive.profondeur == 20.4F) << depth;
    }
}

TEST(Uddf, namesWhatItDoesNotUnderstandOrHasNoPlaceFor) {
    const FoundDive it = read(R"(<uddf version='3.2'><diver><owner><equipment>
        <divecomputer id='dc'><model>M</model><softwareversion>v3</softwareversion></divecomputer></equipment></owner>
        <buddy id='b'><personal><firstname>Jo</firstname></personal><contact><email>jo@host</email></contact></buddy></diver>
        <divesite><site id='s'><name>One</name><ecology><fauna/><notes><para>fish</para><para>crab</para></notes></ecology>
        <sitedata><bottom>sand</bottom></sitedata><geography><location>L</location><address><city>Town</city></address>
        </geography></site><site id='s2'><name>Two</name></site></divesite><profiledata><repetitiongroup><dive>
        <informationbeforedive><datetime>5 July 2019 10:42</datetime><divenumber>A-12</divenumber><link ref='s'/>
        <link ref='s'/><link ref='s2'/><link ref='b'/><link ref='dc'/><altitude>5200</altitude>
        <apparatus>surface-supplied</apparatus><purpose>spearfishing</purpose><notes>First</notes></informationbeforedive>
        <samples><d>3</d><waypoint><setmarker>turtle seen</setmarker><divemode type='apnoe'/></waypoint></samples>
        <informationafterdive><averagedepth>7</averagedepth><current>strong</current><visibility>milky</visibility>
        <lowesttemperature>260</lowesttemperature><rating>7</rating><rating>3</rating><notes>Second</notes>
        <airtemperature>0</airtemperature></informationafterdive></dive></repetitiongroup></profiledata></uddf>)")
                             .dives.at(0);
    QStringList lost;
    for (const LostItem& item : it.lost) {
        lost.append(item.text.isEmpty() ? item.name : item.name + u'=' + item.text);
    }
    lost.sort();
    const QString expected = QStringLiteral(
        "address/city=Town; altitude=5200; apparatus=surface-supplied; averagedepth=7; buddy/contact=jo@host; "
        "current=strong; datetime=5 July 2019 10:42; divecomputer/softwareversion=v3; divenumber=A-12; "
        "lowesttemperature=260; purpose=spearfishing; rating=3; samples/d; site/ecology=fish, crab; site=Two; "
        "sitedata/bottom=sand; visibility=milky; waypoint/divemode apnoe; waypoint/setmarker=turtle seen");
    EXPECT_EQ(lost.join(QStringLiteral("; ")), expected);
    EXPECT_EQ(it.dive.notes, u"First\nSecond");
}

TEST(Uddf, tellsARebreatherFromASetPointOfOpenCircuit) {
    const std::tuple<QByteArray, qint32, qint32> cases[] = {
        {"<waypoint><divemode type='opencircuit'/><setpo2>130000</setpo2></waypoint>", 0, 0},
        {"<waypoint><setpo2>0</setpo2></waypoint>", 0, 0},
        {"<waypoint><setpo2>1.3</setpo2></waypoint>", 3, 2},
        // A bail-out at the end.
        {"<waypoint><divemode type='closedcircuit'/></waypoint><waypoint><divemode type='opencircuit'/></waypoint>", 3,
         0},
    };
    for (const auto& [samples, apparatus, setPoint] : cases) {
        const Plongee found = diveRead({}, "<samples>" + samples + "</samples>");
        EXPECT_EQ(found.rebreather, apparatus) << samples.toStdString();
        EXPECT_EQ(found.ppO2, setPoint) << samples.toStdString();
    }
}

TEST(Uddf, boundsTheSamplesOfADive) {
    QByteArray waypoints;
    for (int second = 0; second < 100'000; ++second) {
        waypoints += QByteArray::number(second % 40) + '@' + QByteArray::number(second) + ' ';
    }
    EXPECT_EQ(diveRead({}, samples(waypoints.chopped(1))).profilProfondeur.size(), 100'000U);
    // A few points that would come to more samples than a dive may have.
    EXPECT_FALSE(diveRead({}, samples("1@0 1@999999999")).hasProfile());
}

TEST(Udcf, isReadAsItWasMeant) {
    const FoundDives found = readFixture("plain.udcf", SourceKind::udcf);
    ASSERT_EQ(found.dives.size(), 2U) << "of both groups";
    const Plongee& dive = found.dives[0].dive;
    EXPECT_EQ(startText(dive), u"2012-07-14 10:45:00");
    EXPECT_EQ(fieldsOf(dive, "lieu site surface"), u"Agay; La Chrétienne; 2:30");
    EXPECT_EQ(fieldsOf(dive, "profondeur temps tempEau"), u"32.8; 41; 18");
    EXPECT_EQ(fieldsOf(dive, "gaz o2Mix volumeBloc pressionDepart pressionFin"), u"1; 36; 15; 200; 60");
    EXPECT_EQ(fieldsOf(dive, "o2Mix_2 volumeBloc_2"), u"100; 7");
    EXPECT_EQ(dive.samplingRate, 1);
    EXPECT_EQ(dive.profilProfondeur, Series::ofReals({0, 12.75, 3.5}));
    EXPECT_EQ(dive.SLOW_Flag.integer(1), 1);
    EXPECT_EQ(dive.ASC_Flag.integer(1), 0);
    EXPECT_EQ(found.dives[1].dive.lieu, u"Agay");
    EXPECT_EQ(fieldsOf(dive, "fabricant ordinateur"), u"Reef; One");
}

TEST(Udcf, isReadInTheUnitsThatItSays) {
    const FoundDive found =
        read(
            "<PROFILE><UNITS>Imperial</UNITS><REPGROUP><DIVE><MAXDEPTH>100</MAXDEPTH><ALTITUDE>1000</ALTITUDE>"
            "<TEMPERATURE>68</TEMPERATURE><SURFACEINTERVAL>95</SURFACEINTERVAL><DENSITY>salt</DENSITY>"
            "<GASES><MIX><MIXNAME>Back</MIXNAME><O2>0.21</O2><TANK><TANKVOLUME>80</TANKVOLUME><PSTART>3000</PSTART>"
            "<PEND>500</PEND></TANK></MIX><MIX><MIXNAME>EAN50</MIXNAME></MIX></GASES>"
            "<SAMPLES><DELTA>10</DELTA><SWITCH>1</SWITCH><D>0</D><D>100</D><SWITCH>ean50</SWITCH><ALARM>Sun</ALARM>"
            "<D>20</D><SWITCH>Back</SWITCH><D>10</D><SWITCH>3</SWITCH></SAMPLES></DIVE></REPGROUP></PROFILE>",
            SourceKind::udcf)
            .dives.at(0);
    EXPECT_EQ(fieldsOf(found.dive, "profondeur altitude tempEau surface"), u"30.48; 305; 20; 01:35");
    EXPECT_EQ(fieldsOf(found.dive, "volumeBloc pressionDepart pressionFin"), u"11; 207; 34");
    EXPECT_EQ(found.dive.profilProfondeur, Series::ofReals({0, 30.48, 6.1, 3.05}));
    EXPECT_EQ(found.dive.GAZ_Flag, Series::ofIntegers({0, 2, 1, 0}));
    EXPECT_EQ(fieldsOf(found.dive, "decoO2_Level_1 o2Mix_2"), u"50; 50");
    for (const char* name : {"DENSITY", "ALARM sun", "SAMPLES/SWITCH"}) {
        EXPECT_TRUE(loses(found, name)) << name;
    }
    EXPECT_EQ(found.lost.size(), 3U);
}

TEST(Udcf, takesUnitsOfPhysicsForWhatTheyAre) {
    const QByteArray rest =
        "<SURFACEINTERVAL>5400</SURFACEINTERVAL><DIVETIME>1860</DIVETIME><TEMPERATURE>288</"
        "TEMPERATURE><GASES><MIX><TANK>"
        "<TANKVOLUME>0.012</TANKVOLUME><PSTART>20000000</PSTART><PEND>5000000</PEND></TANK></MIX></GASES></DIVE></"
        "REPGROUP>"
        "</PROFILE>";
    const Plongee si = onlyDive("<PROFILE><UNITS>SI</UNITS><REPGROUP><DIVE>" + rest);
    EXPECT_EQ(fieldsOf(si, "temps tempEau volumeBloc pressionDepart pressionFin surface"),
              u"31; 15; 12; 200; 50; 01:30");
    EXPECT_EQ(fieldsOf(onlyDive("<PROFILE><REPGROUP><DIVE>" + rest), "temps pressionFin"), u"31; 50");
    const Plongee own = onlyDive(
        "<PROFILE><DEVICE><VENDOR>Tavrel</VENDOR></DEVICE><REPGROUP><DIVE><GASES><MIX><TANK>"
        "<PSTART>3000</PSTART></TANK></MIX></GASES></DIVE></REPGROUP></PROFILE>");
    EXPECT_EQ(own.pressionDepart, 3000) << "the logbook's own number, of pounds";
}

TEST(Udcf, takesDepthsOfNoSenseForNone) {
    const Plongee dive = onlyDive("<PROFILE><REPGROUP><DIVE><MAXDEPTH>" + QByteArray(39, '9') +
                                  "</MAXDEPTH><SAMPLES><DELTA>10</DELTA><D>1</D><D>1e30</D><D>7</D></SAMPLES></DIVE>"
                                  "</REPGROUP></PROFILE>");
    EXPECT_EQ(dive.profondeur, 7);
    EXPECT_EQ(dive.profilProfondeur, Series::ofReals({1, 7})) << "twenty seconds apart";
}

TEST(Handheld, choosesFromTheMenusOfTheForm) {
    const Plongee dive = onlyDive(
        "<log><repgroup><dive><weather>3</weather><current>5</current><visibility>0</visibility>"
        "<divetype>4</divetype></dive></repgroup></log>",
        SourceKind::handheld);
    EXPECT_EQ(fieldsOf(dive, "meteo courant visibilite typePlongee"), u"3; 5; 8; 5");
}

TEST(Sources, areToldByTheirContents) {
    const std::pair<const char*, std::optional<SourceKind>> cases[] = {
        {"<uddf version='3.2.0'/>", SourceKind::uddf},
        {"<uddf version='2.2.0'/>", SourceKind::olderUddf},
        {"<uddf><profiledata><repetitiongroup><dive><informationbeforedive/></dive></repetitiongroup></profiledata></"
         "uddf>",
         SourceKind::uddf},
        {"<uddf version='2.2.0'><REPGROUP/></uddf>", SourceKind::udcf},
        {"<carnet><repgroup/></carnet>", SourceKind::handheld},
        {"<html><body/></html>", std::nullopt},
        {"just words", std::nullopt},
        {"<Uddf version='3.1'/>", SourceKind::uddf},
        {"date,profondeur\n2020-05-01,20\n", SourceKind::table},
    };
    for (const auto& [bytes, kind] : cases) {
        EXPECT_EQ(kindOfStart(bytes), kind) << bytes;
        const auto source = readSource(bytes);
        EXPECT_EQ(source ? std::optional(source->kind) : std::nullopt, kind) << bytes;
    }
}

TEST(FoundDives, areDoubtedWithAReason) {
    FoundDives found = readFixture("older.uddf", SourceKind::olderUddf);
    doubt(found, QDateTime(QDate(2009, 5, 10), QTime(12, 0)));
    EXPECT_TRUE(found.dives[0].doubts.empty());
    EXPECT_EQ(found.dives[1].doubts, (std::vector{Doubt::inFuture, Doubt::noSamples}));
    EXPECT_EQ(found.dives[2].doubts, (std::vector{Doubt::noDate, Doubt::tooDeep, Doubt::noSamples}));
    const FoundDives outside = read("<uddf version='3.0'><profiledata><dive/></profiledata></uddf>");
    EXPECT_TRUE(outside.dives.at(0).has(Doubt::groupSkipped));
}

TEST(FoundDives, areRecognisedWithinTwoMinutesAndLikeDepthAndLength) {
    const auto diveAt = [](const QTime& time, float depth, int minutes) {
        Plongee dive = unknownDive();
        setStart(dive, QDate(2020, 5, 1), time);
        dive.profondeur = depth;
        dive.temps = minutes;
        return dive;
    };
    const Plongee held = diveAt(QTime(10, 0), 20, 40);
    const std::tuple<QTime, float, int, bool> cases[] = {
        {QTime(10, 0), 20, 40, true},      {QTime(10, 2), 20.9F, 43, true},  {QTime(9, 58), 19.1F, 38, true},
        {QTime(10, 2, 1), 20, 40, false},  {QTime(10, 0), 21.2F, 40, false}, {QTime(10, 0), 20, 46, false},
        {QTime(9, 57, 59), 20, 40, false}, {QTime(10, 0), 63, 40, true},     {QTime(10, 0), 63.3F, 40, false},
        {QTime(10, 0), 57, 40, true},      {QTime(10, 0), 56.9F, 40, false},
    };
    for (const auto& [time, depth, minutes, isDuplicate] : cases) {
        FoundDives found;
        found.dives.resize(1);
        found.dives[0].dive = diveAt(time, depth, minutes);
        markDuplicates(found, listOf<Plongee>({held, diveAt(QTime(10, 0), 60, 40), diveAt(QTime(10, 0), 19.5F, 9)}));
        EXPECT_EQ(found.dives[0].duplicate, isDuplicate)
            << time.toString().toStdString() << ' ' << depth << ' ' << minutes;
    }
    // In one file only the very same dive is there twice; two computers tell it differently.
    FoundDives twins;
    twins.dives.resize(3);
    twins.dives[0].dive = twins.dives[1].dive = twins.dives[2].dive = held;
    twins.dives[1].dive.profondeur = 20.1F;
    markDuplicates(twins, {});
    EXPECT_FALSE(twins.dives[0].duplicate || twins.dives[1].duplicate);
    EXPECT_TRUE(twins.dives[2].duplicate);
    // Without a time of day, or a profile, two dives of a day may be as long and deep.
    twins.dives.resize(2);
    twins.dives[1].dive = held;
    twins.dives[1].dive.site = QStringLiteral("other");
    markDuplicates(twins, {});
    EXPECT_FALSE(twins.dives[1].duplicate);
    for (FoundDive& twin : twins.dives) {
        twin.dive.profilProfondeur = Series::ofReals({1, 2});
    }
    markDuplicates(twins, {});
    EXPECT_TRUE(twins.dives[1].duplicate);
    twins.dives[1].dive.profilProfondeur = Series::ofReals({2, 1});
    markDuplicates(twins, {});
    EXPECT_FALSE(twins.dives[1].duplicate);
    FoundDives undated;
    undated.dives.resize(2);
    markDuplicates(undated, {});
    EXPECT_FALSE(undated.dives[1].duplicate) << "two dives without a date are not the same";
}

}  // namespace

}  // namespace tavrel
