#include "cli/commandrunner.h"

namespace tavrel {

namespace {

TEST_F(LogbookCommands, gasTellsConsumptionBottlesAndOxygen) {
    done(
        "add a.carnet volumeBloc=12 pressionDepart=200 pressionFin=50 temps=40 profilProfondeur=20,20,20 "
        "pressionDepart_2=100 volPony2=7 pressDepartPony2=200 pressFinPony2=120 deco_Level_3_sw=1 o2Mix=32");
    done("add a.carnet rebreather=mCCR profondeur=6 temps=10 deco_Level_4_sw=1 decoO2_Level_4=90");
    const QJsonObject gas = json("gas a.carnet --row 0 --json");
    EXPECT_EQ(gas.keys().join(u' '),
              u"auxiliary available averageDepth cns perMinute pressureDrop pressureDrop2 report sac sacBar used");
    EXPECT_EQ(at(gas, "used sac sacBar pressureDrop pressureDrop2"), u"1800|15|1.25|150|100");
    const QJsonArray auxiliary = gas[u"auxiliary"].toArray();
    ASSERT_EQ(auxiliary.size(), 5);
    EXPECT_TRUE(auxiliary[0].isNull() && auxiliary[4].isNull());
    EXPECT_EQ(at(gas, "auxiliary.1.used auxiliary.1.gauge.ticks"), u"560|20");
    EXPECT_NEAR(gas[u"cns"][u"ppO2"].toDouble(), 0.96, 1e-6);
    EXPECT_EQ(gas[u"cns"][u"percent"].toDouble(), 40 * 0.31);

    // The form puts pure oxygen into the main tank, and shows the usual 12 m for a fourth stop without depth.
    const QJsonObject closed = json("gas a.carnet --row 1 --json");
    EXPECT_NEAR(closed[u"cns"][u"ppO2"].toDouble(), 1.8, 1e-6);
    EXPECT_EQ(closed[u"available"].toInt(), 0);

    const QString text = done("gas a.carnet --row 0");
    EXPECT_TRUE(text.contains(u"Surface consumption: 15.0 L/min, 1.25 bar/min\n"));
    EXPECT_TRUE(text.contains(u"Tank 2: 100 bar used\n"));
    expectRefusals({{"gas a.carnet --row 2", 1, "2"}, {"gas a.carnet", 2, "--row"}});
}

TEST_F(LogbookCommands, statsCountAllDivesAndThoseBefore) {
    EXPECT_EQ(json("stats a.carnet --without-previous --json")[u"temperature min"].toInt(), 10000);
    done("add a.carnet profondeur=35 temps=50 gaz=Nitrox tempEau=18");
    done("add a.carnet profondeur=9.9 temps=45 tempEau=-");
    writeSettings("[General]\nstatistics%20values=\"{\\\"total plongees\\\":2,\\\"air\\\":1}\"\n");

    const QJsonObject with = json("stats a.carnet --json");
    EXPECT_EQ(with[u"counts"].toObject().size(), 29);
    EXPECT_EQ(with[u"average depth"].toInt(), 11);
    EXPECT_EQ(at(with, "total counts.air shares.air"), u"4|2|50");
    const QJsonObject alone = json("stats a.carnet --without-previous --json");
    EXPECT_EQ(at(alone, "total counts.prof_1 texts.statP_NitroxField"), u"2|1|50.0 %");
    EXPECT_EQ(alone[u"prof max"].toInt(), 35);
    EXPECT_EQ(alone[u"total temps"].toInt(), 95);
    EXPECT_EQ(alone[u"average time"].toInt(), 47);
    EXPECT_EQ(alone[u"temperature mean"].toInt(), 18);
    EXPECT_TRUE(done("stats a.carnet").contains(u"\n   Deepest dive: 35 m\n"));
}

}  // namespace

}  // namespace tavrel
