#include "dives/statistics.h"

#include "support/records.h"
#include "support/testdesktop.h"

#include <cmath>
#include <map>

namespace tavrel {
namespace {

using Dives = std::vector<DivePointer>;

Statistics statisticsOf(const Dives& dives, const PreviousTotals* previous = nullptr) {
    return Statistics(divesIn(dives), previous);
}

DivePointer dive(const std::string& fields) {
    return std::make_shared<const Plongee>(filled<Plongee>(("tempEau=-50|typePlongee=4|" + fields).c_str()));
}

std::map<QString, QString> textsOf(const Statistics& statistics) {
    std::map<QString, QString> texts;
    for (const auto& each : statistics.texts()) {
        EXPECT_TRUE(texts.emplace(each.field, each.text).second) << each.field.toStdString();
    }
    return texts;
}

TEST(Statistics, CountsDepthsInBands) {
    Dives dives;
    for (const char* depth : {"9", "9.9", "10", "19", "20", "59", "60", "75", "-3"}) {
        dives.push_back(dive("profondeur=" + std::string(depth)));
    }
    const Statistics statistics = statisticsOf(dives);
    const std::array<qint64, 7> wanted{3, 2, 1, 0, 0, 1, 2};
    for (std::size_t band = 0; band < wanted.size(); ++band) {
        EXPECT_EQ(statistics.count(static_cast<StatCount>(static_cast<std::size_t>(StatCount::prof_1) + band)),
                  wanted[band])
            << band;
    }
    EXPECT_EQ(statistics.deepest(), 75);
    EXPECT_EQ(statistics.totalDepth(), 9 + 9 + 10 + 19 + 20 + 59 + 60 + 75 - 3);
    EXPECT_EQ(statistics.averageDepth(), 28);  // 258 / 9, its fraction dropped
}

TEST(Statistics, CountsKindsByTheirCode) {
    const std::map<int, StatCount> kinds{
        {0, StatCount::epaves},       {1, StatCount::explo},      {3, StatCount::photo}, {5, StatCount::speleo},
        {6, StatCount::video},        {7, StatCount::travail},    {8, StatCount::autre}, {9, StatCount::derivante},
        {10, StatCount::glace},       {11, StatCount::formation}, {12, StatCount::bio},  {13, StatCount::carriere},
        {14, StatCount::recuperation}};
    for (int code = -1; code <= 15; ++code) {
        const Statistics statistics = statisticsOf({dive("typePlongee=" + std::to_string(code))});
        for (const auto& name : statCountNames()) {
            if (name.group == StatGroup::kinds) {
                const bool counts = kinds.contains(code) && kinds.at(code) == name.count;
                EXPECT_EQ(statistics.count(name.count), counts ? 1 : 0) << code << name.key;
            }
        }
    }
    // Technical and night dives follow fields of their own.
    const Statistics both = statisticsOf({dive("configuration=1|nocturne=1"), dive("configuration=2|nocturne=2")});
    EXPECT_EQ(both.count(StatCount::tek), 1);
    EXPECT_EQ(both.count(StatCount::nocturne), 1);
}

TEST(Statistics, GasFollowsTheBreathingSystem) {
    using enum StatCount;
    const std::tuple<int, int, StatCount, StatCount> cases[] = {
        {0, 0, co, air},    {0, 1, co, nitrox},  {1, 2, scr, trimix}, {0, 3, co, heliox},  {0, 4, co, trimix},
        {0, 5, co, trimix}, {1, 6, scr, heliox}, {2, 2, ccr, nitrox}, {3, 0, ccr, nitrox}, {4, 3, ccr, nitrox}};
    for (const auto& [apparatus, gas, system, counted] : cases) {
        const Statistics statistics =
            statisticsOf({dive("rebreather=" + std::to_string(apparatus) + "|gaz=" + std::to_string(gas))});
        for (const auto& name : statCountNames()) {
            if (name.group == StatGroup::systems || name.group == StatGroup::gases) {
                EXPECT_EQ(statistics.count(name.count), name.count == system || name.count == counted ? 1 : 0)
                    << apparatus << gas << name.key;
            }
        }
    }
    const Statistics unknown = statisticsOf({dive("rebreather=5")});
    EXPECT_EQ(unknown.count(co) + unknown.count(scr) + unknown.count(ccr), 0);
    EXPECT_EQ(unknown.count(air), 1);
}

TEST(Statistics, WaterTemperaturesLeaveOutWhatWasNotGiven) {
    const Statistics statistics =
        statisticsOf({dive("tempEau=14"), dive("tempEau=-50"), dive("tempEau=21"), dive("tempEau=20")});
    EXPECT_EQ(statistics.coldest(), 14);
    EXPECT_EQ(statistics.warmest(), 21);
    EXPECT_EQ(statistics.meanTemperature(), 18);  // 55 / 3

    const Statistics none = statisticsOf({dive("tempEau=-50")});
    EXPECT_EQ(none.coldest(), 10000);
    EXPECT_EQ(none.warmest(), 0);
    EXPECT_EQ(none.meanTemperature(), 0);
    const PreviousTotals nothing;
    EXPECT_EQ(statisticsOf({dive("tempEau=14")}, &nothing).coldest(), 0);
}

TEST(Statistics, PreviousTotalsEnterEveryFigureButTheMeanTemperature) {
    TestDesktop desktop;
    Preferences& preferences = desktop.desktop().preferences;
    QVariantMap stored;
    for (const auto& [key, value] : namedValues("total plongees=9|trimix=4|prof max=70|temps max=20|"
                                                "total profondeur=100|total temps=-30|temperature min=8|"
                                                "temperature max=31")) {
        stored[QString::fromStdString(key)] = value.toInt();
    }
    preferences.set(PreviousTotals::preferencesKey(), stored);
    const PreviousTotals previous = PreviousTotals::read(preferences);
    const Dives dives{dive("gaz=2|profondeur=45|temps=100|tempEau=15")};
    const Statistics with = statisticsOf(dives, &previous);
    EXPECT_EQ(std::tuple(with.total(), with.count(StatCount::trimix), with.share(StatCount::trimix), with.deepest(),
                         with.longest(), with.totalDepth(), with.averageDepth(), with.totalTime()),
              std::tuple(10, 5, 50.0F, 70, 100, 145, 14, 70));
    EXPECT_EQ(std::tuple(with.coldest(), with.warmest(), with.meanTemperature()), std::tuple(8, 31, 15));

    const Statistics without = statisticsOf(dives);
    EXPECT_EQ(std::tuple(without.total(), without.count(StatCount::trimix), without.coldest()), std::tuple(1, 1, 15));

    EXPECT_EQ(PreviousTotals::of(previous.values()).counts, previous.counts);
    EXPECT_EQ(PreviousTotals::of(previous.values()).measures, previous.measures);
    EXPECT_EQ(previous.values().size(), 36);
}

TEST(Statistics, TextsHaveTheirFormats) {
    Dives dives(3, dive("typePlongee=6|profondeur=31.5|temps=65|tempEau=17"));
    dives.push_back(dive("profondeur=10"));
    const auto texts = textsOf(statisticsOf(dives));
    for (const auto& [field, text] :
         namedValues("statDivesField=4 dives|statVideoField=3|statP_VideoField= 75.0 %|statP_Prof_4Field=75.0 %|"
                     "statP_RecupField=0.0 %|statProfMaxField=31 m|statProfMoyField=25 m|"
                     "statTempsField=3 h 15 min.\r(195 min.)|statTempsMoyField=48 min.|statTempsMaxField=65 "
                     "min.|statProfField=103 m|statTempMoyField=17\u00a0°C")) {
        EXPECT_EQ(texts.at(QString::fromStdString(field)), text) << field;
    }
    EXPECT_EQ(textsOf(statisticsOf({dive("temps=65")})).at(QStringLiteral("statTempsField")),
              u"1 h 05 min.\r(65 min.)");
    EXPECT_EQ(texts.size(), 1U + 2 * 29 + 9);
}

TEST(Statistics, AnEmptyLogbookSharesNothing) {
    const Statistics empty = statisticsOf({});
    EXPECT_FLOAT_EQ(empty.share(StatCount::air), 0);
    EXPECT_EQ(empty.averageDepth(), 0);
    EXPECT_EQ(textsOf(empty).at(QStringLiteral("statTempMinField")), u"10000 °C");
    EXPECT_TRUE(std::isnan(empty.graphShare(StatCount::air)));

    PreviousTotals previous;
    previous.counts[static_cast<std::size_t>(StatCount::air)] = 2;
    EXPECT_TRUE(std::isinf(statisticsOf({}, &previous).graphShare(StatCount::air)));
    EXPECT_FLOAT_EQ(statisticsOf({}, &previous).share(StatCount::air), 200);
}

}  // namespace
}  // namespace tavrel
