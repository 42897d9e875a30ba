#include "interchange/standard/sourcereading.h"
#include "support/printing.h"
#include "support/records.h"

namespace tavrel {

namespace {

FoundDives read(const QByteArray& bytes) {
    const auto source = readSource(bytes);
    EXPECT_TRUE(source) << (source ? "" : source.error().message().toStdString());
    return source ? source->found : FoundDives();
}

FoundDive onlyDive(const QByteArray& bytes) {
    return read(bytes).dives.at(0);
}

QByteArray uddf(const QByteArray& pieces, const QByteArray& dive) {
    return "<uddf version='3.2.3'>" + pieces + "<profiledata><repetitiongroup><dive>" + dive +
           "</dive></repetitiongroup></profiledata></uddf>";
}

/// "name=text; name", by the names, with a stroke for each line's end.
QString lostOf(const FoundDive& found) {
    QStringList lost;
    for (const LostItem& item : found.lost) {
        lost.append(item.text.isEmpty() ? item.name : item.name + u'=' + item.text);
    }
    lost.sort();
    return lost.join(QStringLiteral("; ")).replace(u'\n', u'|');
}

TEST(Losses, nameAllThatADiveOfUddfDoesNotTake) {
    struct Case {
        QByteArray pieces, dive;
        const char* fields;
        const char16_t *values, *lost;
    };
    const Case cases[] = {
        {"<diver><buddy id='b'>John Smith</buddy><buddy id='c'>Jo<note>x</note></buddy></diver>",
         "<link ref='b'/><link ref='c'/>", "partenaires", u"John Smith", u"buddy/note=x; buddy=Jo"},
        {"", "<surfaceinterval>7200</surfaceinterval>", "surface", u"02:00", u""},
        {"", "<surfaceinterval>2 h</surfaceinterval>", "surface", u"--:--", u"surfaceinterval=2 h"},
        {"", "<surfaceinterval>infinity</surfaceinterval>", "surface", u"--:--", u""},
        {"", "<notes>Hello <para>A</para><p>B</p> and <text>C</text></notes>", "notes", u"Hello|A|B and|C", u""},
        {"", "<notes><para>A</para><para/><para>C</para></notes>", "notes", u"A||C", u""},
        {"", "<equipmentused>Wing 18l</equipmentused><tankdata>12 l <x>y</x> steel</tankdata>", "notes", u"",
         u"equipmentused=Wing 18l; tankdata/x=y; tankdata=12 l steel"},
        {"<divesite><site id='s'><name>X</name><geography>Near <location>L</location> the pier</geography></site>"
         "</divesite>",
         "<link ref='s'/>", "lieu site", u"L; X", u"geography=Near the pier"},
        {"",
         "<equipmentused/><equipmentused><leadquantity>6</leadquantity><leadquantity>2</leadquantity>"
         "</equipmentused>",
         "lestage", u"6", u"leadquantity=2"},
        {"", "<leadquantity>much</leadquantity><equipmentused><leadquantity>6</leadquantity></equipmentused>",
         "lestage", u"6", u"leadquantity=much"},
        {"<diver><owner><equipment><suit id='d'><name>Dry suit</name></suit><suit id='s'><name>Shorty</name></suit>"
         "<suit id='o'><name>Old</name></suit><fins id='f'><name>Red</name></fins></equipment></owner></diver>"
         "<divetrip><vessel id='v'><name>Calypso</name></vessel><vessel id='w'><marina>Toulon</marina></vessel>"
         "<trip id='t'><trippart><vessel><name>Skiff</name></vessel></trippart></trip></divetrip>",
         "<link ref='o'/><link ref='v'/><link ref='w'/><link ref='d'/><link ref='s'/><link ref='t'/><link ref='f'/>"
         "<equipmentused><link ref='f'/></equipmentused>",
         "combinaison bateau equip_1 equip_2", u"1; Calypso; Red; ",
         u"suit/name=Old|Shorty; vessel/marina=Toulon; vessel/name=Skiff"},
        {"<diver><owner><equipment><tank id='a'><name>S80 left</name></tank><tank id='b'><name>S80</name></tank>"
         "</equipment></owner></diver>",
         "<tankdata><link ref='a'/></tankdata><tankdata><link ref='b'/></tankdata>", "temps", u"0",
         u"tank/name=S80 left|S80"},
        {"", "<purpose>a1</purpose><purpose>a</purpose><purpose>b</purpose><purpose>a</purpose>", "typePlongee", u"8",
         u"purpose=a1|a|b"},
        {"",
         "<samples>odd<waypoint>20 m here</waypoint><waypoint><depth>9</depth><divetime>soon</divetime>"
         "<temperature>warm</temperature><tankpressure>full</tankpressure><setpo2>high</setpo2></waypoint>"
         "<waypoint>up<depth>5</depth></waypoint></samples>",
         "rebreather", u"0",
         u"samples=odd; waypoint/divetime=soon; waypoint/setpo2=high; waypoint/tankpressure=full; "
         u"waypoint/temperature=warm; "
         u"waypoint=20 m here|up"},
        {"",
         "<plannedprofile><waypoint><decostop decodepth='1e300' duration='-1e300'/></waypoint><waypoint>"
         "<decostop decodepth='6' duration='300'/></waypoint></plannedprofile>",
         "decoDepth_Level_1 decoTime_Level_1 decoDepth_Level_2 decoTime_Level_2", u"0; 0; 6; 5",
         u"decostop/decodepth=1e300; decostop/duration=-1e300"},
        {"<diver><owner><equipment><tank id='t'><name>Tank 1</name></tank><tank id='u'><name>Tank 2</name></tank>"
         "</equipment></owner></diver>",
         "<tankdata><link ref='#t'/></tankdata><tankdata><link ref='#u'/></tankdata><samples><waypoint><depth>0</depth>"
         "<tankpressure ref='#u'>18000000</tankpressure><tankpressure ref=' #t'>20000000</tankpressure></waypoint>"
         "</samples>",
         "pressionDepart pressionDepart_2", u"200; 180", u"samples; waypoint/tankpressure"},
    };
    for (const auto& [pieces, dive, fields, values, lost] : cases) {
        const FoundDive found = onlyDive(uddf(pieces, dive));
        EXPECT_EQ(fieldsOf(found.dive, fields).replace(u'\n', u'|'), QStringView(values)) << dive.toStdString();
        EXPECT_EQ(lostOf(found), QStringView(lost)) << dive.toStdString();
    }
}

TEST(Losses, areNoneOfPositionsHoweverTheyAreWritten) {
    const std::tuple<const char*, const char*, const char16_t*, const char16_t*> cases[] = {
        {"45°30'12.5\"S", "5°45'W", u"S 45° 30.208'  W 005° 45.000'", u""},
        {"S 45° 30'", "5.75", u"S 45° 30.000'  E 005° 45.000'", u""},
        {"45.5 N", "W 115,5", u"", u"geography/latitude=45.5 N; geography/longitude=W 115,5"},
        {"45.5 N", "W 115.5", u"N 45° 30.000'  W 115° 30.000'", u""},
        {"-45,5", "175°30'", u"S 45° 30.000'  E 175° 30.000'", u""},
        {"0°30'S", "0", u"S 00° 30.000'  E 000° 00.000'", u""},
        {"0°30.5 S", "0", u"", u"geography/latitude=0°30.5 S; geography/longitude=0"},
        {"south 45", "5", u"", u"geography/latitude=south 45; geography/longitude=5"},
        {"5 W", "45 N", u"", u"geography/latitude=5 W; geography/longitude=45 N"},
        {"N 45 S", "5", u"", u"geography/latitude=N 45 S; geography/longitude=5"},
        {"95", "5", u"", u"geography/latitude=95; geography/longitude=5"},
        {"0", "0.0", u"", u""},
        {"", "5", u"", u"geography/longitude=5"},
    };
    for (const auto& [north, east, position, lost] : cases) {
        const FoundDive found =
            onlyDive(uddf(QByteArray("<divesite><site id='s'><name>S</name><geography><latitude>") + north +
                              "</latitude><longitude>" + east + "</longitude></geography></site></divesite>",
                          "<link ref='s'/>"));
        EXPECT_EQ(found.dive.gps, QStringView(position)) << north << ' ' << east;
        EXPECT_EQ(lostOf(found), QStringView(lost)) << north << ' ' << east;
    }
}

TEST(Losses, areNoneOfDivesWhereverTheyStand) {
    const auto dive = [](const QByteArray& number) { return "<dive><divenumber>" + number + "</divenumber></dive>"; };
    const auto group = [](const QByteArray& dives) { return "<repetitiongroup>" + dives + "</repetitiongroup>"; };
    const QByteArray cases[] = {
        group(dive("1")) + "<profiledata>" + group(dive("2") + dive("3")) + dive("4") + "</profiledata>" + dive("5"),
        "<profiledata/>" + group(dive("1") + dive("2")) + dive("3") + "<profiledata>" + group(dive("4")) +
            "</profiledata>" + group(dive("5")),
    };
    for (const QByteArray& parts : cases) {
        QByteArray numbers;
        for (const FoundDive& it : read("<uddf version='3.2.3'>" + parts + "</uddf>").dives) {
            numbers += QByteArray::number(it.dive.noPlongee);
        }
        EXPECT_EQ(numbers, "12345") << parts.toStdString();
    }
}

TEST(Losses, nameAllThatADiveOfUdcfDoesNotTake) {
    const std::tuple<QByteArray, const char16_t*, const char16_t*> cases[] = {
        {"<NOTES>a<B>b</B></NOTES><NOTES>second</NOTES><NOTES/>", u"; ab|second", u""},
        {"<SITE>A</SITE><site>B</site><SITE>A</SITE><SAMPLES>12 13</SAMPLES>", u"A; ", u"SAMPLES=12 13; site=B"},
        {"<TEMPERATURE>12</TEMPERATURE><WATERTEMPERATURE>13</WATERTEMPERATURE><MAXDEPTH>deep</MAXDEPTH>", u"; ",
         u"MAXDEPTH=deep; WATERTEMPERATURE=13"},
        {"<GASES><MIX><MIXNAME>AIR</MIXNAME></MIX></GASES><GASES><MIX><MIXNAME>EAN</MIXNAME></MIX></GASES>", u"; ",
         u"GASES=EAN"},
        {"<DATE>2020-13-45</DATE><TIME>25:99</TIME>", u"; ", u"DATE=2020-13-45; TIME=25:99"},
        {"<DATE><YEAR>2020</YEAR><MONTH>13</MONTH></DATE><TIME><HOUR>10</HOUR></TIME>", u"; ",
         u"DATE=2020 13; TIME=10"},
        {"<DATE>2020-01-02</DATE><TIME>0</TIME>here", u"; ", u"DIVE=here"},
    };
    for (const auto& [dive, values, lost] : cases) {
        const FoundDive found = onlyDive("<PROFILE><REPGROUP><DIVE>" + dive + "</DIVE></REPGROUP></PROFILE>");
        EXPECT_EQ(fieldsOf(found.dive, "site notes").replace(u'\n', u'|'), QStringView(values)) << dive.toStdString();
        EXPECT_EQ(lostOf(found), QStringView(lost)) << dive.toStdString();
    }
}

TEST(Losses, keepTheWordsOfWhatManyDivesReferToOnce) {
    const QByteArray dive = "<dive><link ref='s'/></dive>";
    const QByteArray words = QByteArray("word ").repeated(100);
    const auto dives = read("<uddf version='3.2.3'><divesite><site id='s'><name>" + words + "</name><notes>" + words +
                            "</notes></site></divesite><profiledata><repetitiongroup>" + dive + dive +
                            "</repetitiongroup></profiledata></uddf>")
                           .dives;
    ASSERT_EQ(dives.size(), 2U);
    EXPECT_EQ(dives[0].dive.site.constData(), dives[1].dive.site.constData());
    EXPECT_EQ(dives[0].lost.at(0).text.constData(), dives[1].lost.at(0).text.constData());
}

}  // namespace

}  // namespace tavrel
