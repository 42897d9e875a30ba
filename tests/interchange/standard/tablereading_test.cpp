#include "interchange/standard/tablereading.h"

#include "interchange/standard/csvtext.h"
#include "interchange/standard/divedifference.h"
#include "support/printing.h"
#include "support/records.h"

#include <array>

namespace tavrel {

namespace {

Table read(const QByteArray& bytes, const TableColumns& chosen = {}, bool usUnits = false) {
    const auto table = readTable(bytes, chosen, {}, usUnits);
    EXPECT_TRUE(table) << bytes.left(80).toStdString();
    return table ? *table : Table();
}

QString startText(const FoundDive& found) {
    return startOf(found.dive).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

TEST(TableReading, takesCellsWhateverSeparatesAndQuotesThem) {
    for (const char* file :
         {"date,heure,lieu,notes,profondeur,temps\r\n2021-07-01,09:30,\"Port, \"\"Vieux\"\"\",\"a\nb\",12.5,40\r\n",
          "date;heure;lieu;notes;profondeur;temps\n01.07.2021;9:30;\"Port, \"\"Vieux\"\"\";\"a\nb\";12,5;40",
          "\xEF\xBB\xBF"
          "date\theure\tlieu\tnotes\tprofondeur\ttemps\r2021-07-01 09:30:00\t\tPort, "
          "\"Vieux\"\t\"a\nb\"\t12.5\t40\r\r"}) {
        const Table table = read(file);
        ASSERT_EQ(table.found.dives.size(), 1U) << file;
        const Plongee& dive = table.found.dives[0].dive;
        EXPECT_EQ(startText(table.found.dives[0]), u"2021-07-01 09:30:00") << file;
        EXPECT_EQ(fieldsOf(dive, "lieu notes profondeur temps"), u"Port, \"Vieux\"; a\nb; 12.5; 40") << file;
        EXPECT_EQ(dive.tempEau, unknownDive().tempEau) << "not given";
        EXPECT_TRUE(table.found.dives[0].lost.empty());
    }
}

TEST(TableReading, readsTheEncodingThatATextSeemsToHave) {
    const std::pair<const char*, const char16_t*> cases[] = {
        {"b\x9cuf l\x92\xe9t\xe9 \x80", u"bœuf l’été €"}, {"\xc3\xa9t\xc3\xa9 \x80", u"été €"}, {"\xc3\xa9", u"é"}};
    for (const auto& [notes, expected] : cases) {
        EXPECT_EQ(read(QByteArray("date,notes\n2020-01-01,") + notes).found.dives.at(0).dive.notes,
                  QStringView(expected));
    }
}

TEST(TableReading, readsTheOlderExportsWithTheirWords) {
    const Table table = read(
        "\"Dive #\";\"Date\";\"Location\";\"Start time\";\"Depth\";\"Weather\";\"Current\";\"Visibility\"\r"
        "\"7\";\"14/08/2010\";\"Agay\";\"10:02\";\"31.4\";\"Rainy\";\"N/A\";\"Exceptional\"\n");
    const Plongee& dive = table.found.dives.at(0).dive;
    EXPECT_EQ(startText(table.found.dives[0]), u"2010-08-14 10:02:00");
    EXPECT_EQ((std::array{dive.noPlongee, dive.meteo, dive.courant, dive.visibilite}), (std::array{7, 3, 6, 8}));
}

TEST(TableReading, takesTheUnitsThatCellsName) {
    const QByteArray file =
        "date;profondeur;temps;tempEau;tempAir;altitude\n2020-01-01;40 ft;45,6 m;14,7 °C;59F;1200 m\n"
        "2020-01-01;12;30;20;21;300\n";
    const std::vector<FoundDive> metric = read(file).found.dives;
    const std::vector<FoundDive> us = read(file, {}, true).found.dives;
    const char* fields = "profondeur temps tempEau tempAir altitude";
    EXPECT_EQ(fieldsOf(metric.at(0).dive, fields), u"12.19; 46; 15; 15; 1200");
    EXPECT_EQ(fieldsOf(us.at(0).dive, fields), u"40; 46; 58; 59; 3937");
    EXPECT_EQ(fieldsOf(us.at(1).dive, fields), fieldsOf(metric.at(1).dive, fields));
}

TEST(TableReading, namesWhatIsNoValueOfADive) {
    const Table table = read("date,Mood,temps,lestage\n2020-01-01,fine,long,1e99\nnever,,3\n");
    ASSERT_EQ(table.found.dives.size(), 2U);
    const FoundDive& first = table.found.dives[0];
    ASSERT_EQ(first.lost.size(), 3U);
    EXPECT_EQ((QStringList{first.lost[0].name, first.lost[0].text, first.lost[1].name}),
              (QStringList{QStringLiteral("Mood"), QStringLiteral("fine"), QStringLiteral("temps")}));
    EXPECT_FALSE(startOf(table.found.dives[1].dive).isValid());
    EXPECT_EQ(table.found.dives[1].lost.size(), 1U);
}

TEST(TableReading, followsTheColumnsThatWereChosen) {
    const QByteArray file = "When,Max,temps\n,,\n3/4/2022 14:05,18.2,33\n";
    const Table plain = read(file);
    EXPECT_FALSE(holdsDay(plain.columns));
    EXPECT_TRUE(plain.found.dives.empty()) << "nothing is read before the day is known";
    ASSERT_EQ(plain.columns.size(), 3U);
    EXPECT_EQ((QStringList{plain.columns[0].heading, plain.columns[0].field, plain.columns[0].example}),
              (QStringList{QStringLiteral("When"), QString(), QStringLiteral("3/4/2022 14:05")}));
    EXPECT_EQ(plain.columns[2].field, u"temps");

    const Table chosen = read(file, {{QStringLiteral("When"), QStringLiteral("date")},
                                     {QStringLiteral("Max"), QStringLiteral("profondeur")},
                                     {QStringLiteral("temps"), QString()},
                                     {QStringLiteral("Other"), QStringLiteral("lieu")}});
    ASSERT_EQ(chosen.found.dives.size(), 2U);
    const FoundDive& dive = chosen.found.dives[1];
    EXPECT_EQ(startText(dive), u"2022-04-03 14:05:00");
    EXPECT_EQ(dive.dive.profondeur, 18.2F);
    EXPECT_EQ(dive.dive.temps, 0) << "left out";
}

TEST(TableReading, takesAllDaysBehindTheirMonthsWhereOneStandsThere) {
    const Table table = read("date,heure\n3/4/2022,14:05\n12/31/2022,\n5/5/2022,\n");
    const std::vector<FoundDive>& dives = table.found.dives;
    EXPECT_EQ((QStringList{startText(dives.at(0)), startText(dives.at(1)), startText(dives.at(2))}),
              (QStringList{QStringLiteral("2022-03-04 14:05:00"), QStringLiteral("2022-12-31 00:00:00"),
                           QStringLiteral("2022-05-05 00:00:00")}));
    const std::vector<FoundDive> midnights = read("date,temps\n08/12/2010 24:00,1\n12/31/2010 24:00,2\n").found.dives;
    EXPECT_EQ(startText(midnights.at(0)), u"2010-08-13 00:00:00");
    EXPECT_EQ(startText(midnights.at(1)), u"2011-01-01 00:00:00");
    EXPECT_EQ(startText(read("date,temps\n3/4/2022,1\n31/12/2022,2\n").found.dives.at(0)), u"2022-04-03 00:00:00");
}

TEST(TableReading, refusesWhatIsNoTable) {
    for (const char* file :
         {"", "one column\nalone\n", "Dear John, how are you\nI am fine, thanks, and you\n", "a,b\n"}) {
        EXPECT_FALSE(readTable(file)) << file;
    }
    EXPECT_FALSE(readTable(QByteArray("d\0a,te\n1,2\n", 12)));
    EXPECT_FALSE(readTable(QByteArray(2000, ',') + "\n1\n")) << "more columns than anyone has";
}

TEST(TableReading, bringsBackWhatWasWritten) {
    Plongee dive = unknownDive();
    setStart(dive, QDate(1998, 12, 31), QTime(23, 59, 58));
    fill(dive, "lieu= \"é\" |notes=1;2,3\t4\r\n\n|profondeur=33.35|profilProfondeur=0,12.125,3");
    dive.ASC_Flag = Series::ofIntegers({0, 1, 0});
    const auto bytes = writeCsv({std::make_shared<const Plongee>(dive)});
    ASSERT_TRUE(bytes);
    const Table table = read(*bytes);
    ASSERT_EQ(table.found.dives.size(), 1U);
    EXPECT_TRUE(differingFields(dive, table.found.dives[0].dive).empty());
    const auto some =
        writeCsv({std::make_shared<const Plongee>(dive)}, {QStringLiteral("date"), QStringLiteral("lieu")});
    EXPECT_EQ(*some, "date,lieu\r\n1998-12-31,\" \"\"é\"\" \"\r\n");
    EXPECT_FALSE(writeCsv({}, {QStringLiteral("mood")}));
}

}  // namespace

}  // namespace tavrel
