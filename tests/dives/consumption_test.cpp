#include "dives/consumption.h"

#include "dives/oxygenclock.h"
#include "profile/profileseries.h"
#include "support/printing.h"

#include <cmath>
#include <limits>

namespace tavrel {
namespace {

GasReadings readings(qint32 volume, qint32 start, qint32 end, qint32 time, std::vector<double> depths) {
    GasReadings read;
    read.tanks[0] = {volume, start, end};
    read.time = time;
    read.minutes = time;
    ProfileSeries profile;
    profile.profilProfondeur = Series::ofReals(depths);
    read.readProfile(profile);
    return read;
}

TEST(Consumption, UsesPressureVolumeTimeAndAverageDepth) {
    // Available, used, pressure a minute, consumption at the surface in litres and bar: not divided as whole numbers.
    const std::tuple<GasReadings, int, int, float, float, float> cases[] = {
        {readings(12, 200, 50, 40, {10, 30, 20}), 2400, 1800, 3.75F, 15, 1.25F},
        {readings(15, 230, 70, 50, {10, 10}), 3450, 2400, 3.2F, 24, 1.6F},
        {readings(10, 200, 53, 40, {0, 0}), 2000, 1470, 3.675F, 36.75F, 3.675F},
        {readings(10, 100, 120, 20, {0, 0}), 1000, -200, -1, -10, -1},
    };
    for (const auto& [dive, available, used, perMinute, sac, sacBar] : cases) {
        const Consumption gas = calculVolumeAirConsomme(dive);
        EXPECT_EQ(std::pair(gas._volumeDisponible, gas._volumeConsomme), std::pair(available, used));
        EXPECT_FLOAT_EQ(gas._pressionParMinute, perMinute) << used;
        EXPECT_FLOAT_EQ(gas._sac, sac) << used;
        EXPECT_FLOAT_EQ(gas._sacBar, sacBar) << used;
    }
    const GasReadings& dive = std::get<0>(cases[0]);
    EXPECT_FLOAT_EQ(dive.averageDepth, 20);
    EXPECT_EQ(consumptionReport(dive, calculVolumeAirConsomme(dive), false),
              u"Gas available: 2400 L\rGas used: 1800 L\rPressure used: 3.75 bar/min\r"
              "Surface consumption: 15.0 L/min, 1.25 bar/min\rAverage depth: 20.0 m");
    EXPECT_TRUE(consumptionReport(dive, calculVolumeAirConsomme(dive), true).endsWith(u"Average depth: 20.0 ft"));
    // Wide numbers wrap.
    EXPECT_EQ(calculVolumeAirConsomme(readings(65536, 65537, 0, 1, {0}))._volumeDisponible, 65536);
}

TEST(Consumption, KeepsWhatIsNotANumber) {
    const GasReadings without = readings(15, 230, 70, 50, {});
    const Consumption gas = calculVolumeAirConsomme(without);
    EXPECT_EQ(gas._volumeConsomme, 2400);
    EXPECT_FLOAT_EQ(gas._pressionParMinute, 3.2F);
    EXPECT_TRUE(std::isnan(gas._sac) && std::isnan(gas._sacBar));
    EXPECT_TRUE(consumptionReport(without, gas, false).contains(u"nan L/min, nan bar/min"));

    const Consumption timeless = calculVolumeAirConsomme(readings(15, 230, 70, 0, {10, 10}));
    EXPECT_EQ(timeless._volumeDisponible, 3450);
    EXPECT_EQ(timeless._pressionParMinute, std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(calculVolumeAirConsomme(readings(15, 70, 70, 0, {10, 10}))._sac));
}

TEST(Consumption, ReportNeedsAStartPressureAndATime) {
    for (const auto& dive : {readings(12, 200, 50, 0, {10, 10}), readings(12, 0, 0, 40, {10, 10}),
                             readings(0, 0, 0, 40, {}), readings(12, 1, 0, 0, {})}) {
        EXPECT_EQ(consumptionReport(dive, calculVolumeAirConsomme(dive), false),
                  u"Enter a start pressure and a dive time.");
    }
    const GasReadings least = readings(12, 1, 0, 1, {10, 10});
    EXPECT_TRUE(consumptionReport(least, calculVolumeAirConsomme(least), false).startsWith(u"Gas available: 12 L"));
}

TEST(Consumption, AuxiliaryGasesShowWithALevelFromTheThirdOn) {
    GasReadings dive;
    dive.auxiliaries[1] = {7, 200, 120};
    dive.auxiliaries[4] = {-2, 205, 210};
    dive.levels[0].on = dive.levels[1].on = true;
    EXPECT_FALSE(auxiliaryGases(dive)[1]);

    for (std::size_t level = 2; level < 6; ++level) {
        dive.levels = {};
        dive.levels[level].on = true;
        const auto gases = auxiliaryGases(dive);
        ASSERT_TRUE(gases[1]) << level;
        EXPECT_EQ(std::tuple(gases[1]->available, gases[1]->used, gases[1]->maximum, gases[1]->value, gases[1]->ticks),
                  std::tuple(1400, 560, 200, 120, 20));
        EXPECT_EQ(gases[1]->text, u"Gas available: 1400 L\rGas used: 560 L");
        EXPECT_FALSE(gases[0]);
        EXPECT_EQ(std::pair(gases[4].value().used, gases[4]->ticks), std::pair(10, 20));
    }
}

TEST(Consumption, FiguresExplainThemselvesOrSayWhyNot) {
    const GasReadings dive = readings(12, 200, 50, 40, {20, 20});
    EXPECT_EQ(explainedSacBar(dive).explanation, u"SAC = 150 bar / 40 min / 3.0 bar = 1.25 bar/min");
    EXPECT_EQ(explainedUsed(dive).explanation, u"Gas used = 12 L × (200 bar − 50 bar) = 1800 L");

    const GasReadings flat = readings(12, 200, 50, 40, {0});
    EXPECT_EQ(explainedUsed(flat).text, u"1800 L");
    const GasReadings broken = readings(12, 200, 50, 40, {20, std::nan("")});
    EXPECT_EQ(readings(12, 200, 50, 40, {std::nan(""), 20, 30}).largestSample, 30);
    for (const auto& [figure, why] :
         {std::pair(explainedSac(flat), "no profile, so no average depth"),
          std::pair(explainedAverageDepth(flat, false), "no profile, so no average depth"),
          std::pair(explainedSac(readings(12, 200, 50, 0, {20, 20})), "no dive time"),
          std::pair(explainedPerMinute(readings(12, 200, 50, 0, {20, 20})), "no dive time"),
          std::pair(explainedSac(readings(12, 0, 0, 40, {20, 20})), "no start pressure"),
          std::pair(explainedUsed(readings(12, 0, 0, 40, {20, 20})), "no start pressure"),
          std::pair(explainedSac(readings(0, 200, 50, 40, {20, 20})), "no tank volume"),
          std::pair(explainedUsed(readings(0, 200, 50, 40, {20, 20})), "no tank volume"),
          std::pair(explainedSac(broken), "the profile holds depths that are no numbers")}) {
        EXPECT_TRUE(figure.text.isNull());
        EXPECT_EQ(figure.explanation, QStringLiteral("Not known: ") + QLatin1StringView(why));
    }
}

TEST(OxygenClock, RatesFollowTheBands) {
    EXPECT_DOUBLE_EQ(calculSncClock(1.6, 30), 66.6);
    // Each band's two ends, the two wide bands and what lies outside.
    const std::pair<double, double> cases[] = {{0, 0.14},      {-1, 0.14},   {0.62, 0.14}, {0.6201, 0.15}, {0.70, 0.18},
                                               {0.72, 0.18},   {0.73, 0.19}, {0.88, 0.26}, {0.89, 0.28},   {1.0, 0.33},
                                               {1.12, 0.43},   {1.14, 0.43}, {1.15, 0.44}, {1.22, 0.48},   {1.23, 0.51},
                                               {1.4, 0.65},    {1.41, 0.68}, {1.5, 0.83},  {1.51, 0.93},   {1.58, 1.47},
                                               {1.5801, 2.22}, {3, 2.22},    {1.33, 0.60}, {1.55, 1.19}};
    for (const auto& [ppO2, rate] : cases) {
        EXPECT_EQ(sncRate(ppO2), rate) << ppO2;
    }
    EXPECT_EQ(oxygenBands().size(), 48U);
    // All the others, added up by hand: the limits, the rates, and each rate as often as its place from 1.
    double limits = 0, rates = 0, placed = 0;
    for (std::size_t band = 0; band < 48; ++band) {
        limits += band < 47 ? oxygenBands()[band].upper : 0;
        rates += oxygenBands()[band].rate;
        placed += static_cast<double>(band + 1) * oxygenBands()[band].rate;
    }
    EXPECT_NEAR(limits, 52.08, 1e-9);
    EXPECT_NEAR(rates, 24.41, 1e-9);
    EXPECT_NEAR(placed, 803.99, 1e-9);
    EXPECT_TRUE(std::isnan(calculSncClock(std::nan(""), std::nan(""))));
}

TEST(OxygenClock, ReadsTheTankAtTheDeepestPointAndTheLevelsThatAreOn) {
    GasReadings dive;
    dive.oxygen = 32;
    dive.depth = 25;
    dive.minutes = 40;
    EXPECT_FLOAT_EQ(oxygenExposure(dive).ppO2, 1.12F);
    EXPECT_DOUBLE_EQ(oxygenExposure(dive).percent, 40 * 0.43);
    EXPECT_EQ(oxygenExposure(dive).text, u"ppO₂ 1.12 bar, CNS clock 17.2 %");

    ProfileSeries profile;
    profile.profilProfondeur = Series::ofReals({18});
    dive.readProfile(profile);
    EXPECT_FLOAT_EQ(oxygenExposure(dive).ppO2, 1.12F);  // one sample is no profile
    profile.profilProfondeur = Series::ofReals({5, 30, 12});
    dive.readProfile(profile);
    EXPECT_FLOAT_EQ(oxygenExposure(dive).ppO2, 1.28F);

    // Stops at 3, 6 and 9 m count as 1 bar, 12 to 19 m as 2 bar.
    dive.levels[2] = {true, 100, 9};
    EXPECT_FLOAT_EQ(oxygenExposure(dive).ppO2, 1.28F);
    dive.levels[5] = {false, 80, 19};
    EXPECT_FLOAT_EQ(oxygenExposure(dive).ppO2, 1.28F);
    dive.levels[5].on = true;
    EXPECT_FLOAT_EQ(oxygenExposure(dive).ppO2, 1.6F);
    EXPECT_EQ(oxygenExposure(dive).explanation,
              u"ppO₂ = stop 6: 80 % O₂ × 2 bar = 1.60 bar\nCNS clock = 40 min × 2.22 %/min = 88.8 %");
}

}  // namespace
}  // namespace tavrel
