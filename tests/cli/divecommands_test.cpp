#include "cli/commandrunner.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tavrel {

namespace {

class DiveCommands : public CommandLine {
protected:
    QJsonObject json(const char* words) {
        const Outcome outcome = run(QString::fromUtf8(words).split(u' '));
        EXPECT_EQ(outcome.code, 0) << outcome.error.toStdString();
        const auto document = QJsonDocument::fromJson(outcome.out.toUtf8());
        EXPECT_TRUE(document.isObject()) << outcome.out.toStdString();
        return document.object();
    }
    void SetUp() override {
        done({QStringLiteral("new"), QStringLiteral("Carnet de plongee"), QStringLiteral("a.carnet")});
    }
};

TEST_F(DiveCommands, gasTellsConsumptionBottlesAndOxygen) {
    done(
        "add a.carnet volumeBloc=12 pressionDepart=200 pressionFin=50 temps=40 profilProfondeur=20,20,20 "
        "pressionDepart_2=100 volPony2=7 pressDepartPony2=200 pressFinPony2=120 deco_Level_3_sw=1 o2Mix=32");
    done("add a.carnet rebreather=mCCR profondeur=6 temps=10 deco_Level_4_sw=1 decoO2_Level_4=90");
    const QJsonObject gas = json("gas a.carnet --row 0 --json");
    EXPECT_EQ(gas.keys().join(u' '),
              u"auxiliary available averageDepth cns perMinute pressureDrop pressureDrop2 report sac sacBar used");
    EXPECT_EQ(gas[u"used"].toInt(), 1800);
    EXPECT_EQ(gas[u"sac"].toDouble(), 15);
    EXPECT_EQ(gas[u"sacBar"].toDouble(), 1.25);
    EXPECT_EQ(gas[u"pressureDrop"].toInt(), 150);
    EXPECT_EQ(gas[u"pressureDrop2"].toInt(), 100);
    const QJsonArray auxiliary = gas[u"auxiliary"].toArray();
    ASSERT_EQ(auxiliary.size(), 5);
    EXPECT_TRUE(auxiliary[0].isNull() && auxiliary[4].isNull());
    EXPECT_EQ(auxiliary[1][u"used"].toInt(), 560);
    EXPECT_EQ(auxiliary[1][u"gauge"][u"ticks"].toInt(), 20);
    EXPECT_NEAR(gas[u"cns"][u"ppO2"].toDouble(), 0.96, 1e-6);
    EXPECT_EQ(gas[u"cns"][u"percent"].toDouble(), 40 * 0.31);

    // The form puts pure oxygen into the main tank, and shows the usual 12 m for a fourth stop without depth.
    const QJsonObject closed = json("gas a.carnet --row 1 --json");
    EXPECT_NEAR(closed[u"cns"][u"ppO2"].toDouble(), 1.8, 1e-6);
    EXPECT_EQ(closed[u"available"].toInt(), 0);

    const Outcome text = run(QStringLiteral("gas a.carnet --row 0").split(u' '));
    EXPECT_TRUE(text.out.contains(u"Surface consumption: 15.0 L/min, 1.25 bar/min\n"));
    EXPECT_TRUE(text.out.contains(u"Tank 2: 100 bar used\n"));
    EXPECT_EQ(run(QStringLiteral("gas a.carnet --row 2").split(u' ')).code, 1);
    EXPECT_EQ(run(QStringLiteral("gas a.carnet").split(u' ')).code, 2);
}

TEST_F(DiveCommands, statsCountAllDivesAndThoseBefore) {
    EXPECT_EQ(json("stats a.carnet --without-previous --json")[u"temperature min"].toInt(), 10000);
    done("add a.carnet profondeur=35 temps=50 gaz=Nitrox tempEau=18");
    done("add a.carnet profondeur=9.9 temps=45 tempEau=-");
    QFile settings(path(QStringLiteral("config/Tavrel/tavrel.ini")));
    ASSERT_TRUE(QDir().mkpath(path(QStringLiteral("config/Tavrel"))));
    ASSERT_TRUE(settings.open(QIODevice::Append));
    settings.write("\n[General]\nstatistics%20values=\"{\\\"total plongees\\\":2,\\\"air\\\":1}\"\n");
    settings.close();

    const QJsonObject with = json("stats a.carnet --json");
    EXPECT_EQ(with[u"total"].toInt(), 4);
    EXPECT_EQ(with[u"counts"].toObject().size(), 29);
    EXPECT_EQ(with[u"counts"][u"air"].toInt(), 2);
    EXPECT_EQ(with[u"shares"][u"air"].toDouble(), 50);
    EXPECT_EQ(with[u"average depth"].toInt(), 11);
    const QJsonObject alone = json("stats a.carnet --without-previous --json");
    EXPECT_EQ(alone[u"total"].toInt(), 2);
    EXPECT_EQ(alone[u"counts"][u"prof_1"].toInt(), 1);
    EXPECT_EQ(alone[u"prof max"].toInt(), 35);
    EXPECT_EQ(alone[u"total temps"].toInt(), 95);
    EXPECT_EQ(alone[u"average time"].toInt(), 47);
    EXPECT_EQ(alone[u"temperature mean"].toInt(), 18);
    EXPECT_EQ(alone[u"texts"][u"statP_NitroxField"].toString(), u"50.0 %");
    EXPECT_TRUE(run(QStringLiteral("stats a.carnet").split(u' ')).out.contains(u"\n   Deepest dive: 35 m\n"));
}

}  // namespace

}  // namespace tavrel
