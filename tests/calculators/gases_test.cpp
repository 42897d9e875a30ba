#include "calculators/nitrox.h"
#include "calculators/rebreather.h"
#include "calculators/trimix.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tavrel {

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr qint32 smallest = std::numeric_limits<qint32>::min();

TEST(Nitrox, followsTheWorkedExamples) {
    EXPECT_NEAR(maximumOperatingDepth(32, 1.4), 33.75, 1e-9);
    EXPECT_EQ(maximumOperatingDepth(0, 1.4), infinity);
    EXPECT_NEAR(bestMix(30, 1.4), 35, 1e-9);
    EXPECT_NEAR(equivalentAirDepth(32, 30), 24.4304, 1e-4);
    EXPECT_NEAR(equivalentAirDepth(40, 0), -2.4051, 1e-4);
    const Blend mixed = blend(50, 21, 200, 32);
    EXPECT_NEAR(mixed.oxygen, 27.8481, 1e-4);
    EXPECT_NEAR(mixed.topUp, 35.6667, 1e-4);
    EXPECT_TRUE(std::isnan(blend(200, 32, 200, 32).topUp));
    EXPECT_LT(blend(200, 40, 210, 21).oxygen, 0);
}

TEST(Nitrox, menuIndexOutsideTheMenuMeansTheDefault) {
    EXPECT_EQ(ppO2OfMenuIndex(0), 1.2);
    EXPECT_EQ(ppO2OfMenuIndex(4), 1.6);
    for (const int index : {-1, 5, smallest}) {
        EXPECT_EQ(ppO2OfMenuIndex(index), 1.4) << index;
    }
}

TEST(Nitrox, oxygenWindowEndsAtTheNitrogenOrTheOxygenLimit) {
    const OxygenWindow nitrox = oxygenWindow(32, 0.16);
    EXPECT_NEAR(nitrox.deepest, 40, 1e-9);
    EXPECT_NEAR(nitrox.shallowest, -5, 1e-9);
    EXPECT_NEAR(nitrox.nitrogenNeutral, 1.6176, 1e-4);
    EXPECT_NEAR(oxygenWindow(100, 0.16).nitrogenNeutral, 6, 1e-9);
    EXPECT_TRUE(std::isnan(oxygenWindow(nan, 0.16).nitrogenNeutral));
}

TEST(Trimix, followsTheWorkedExamples) {
    const EquivalentDepths deep = trimixEquivalentDepths(18, 45, 60);
    EXPECT_NEAR(deep.ead, 22.7848, 1e-4);
    EXPECT_NEAR(deep.end, 28.5, 1e-9);
    const EquivalentDepths shallow = trimixEquivalentDepths(10, 70, 0);
    EXPECT_EQ(shallow.ead, 0);
    EXPECT_NEAR(shallow.end, -7, 1e-9);
    EXPECT_TRUE(std::isnan(trimixEquivalentDepths(nan, 45, 60).ead));
    const TrimixShares best = bestTrimix(60, 30, 1.4);
    EXPECT_NEAR(best.oxygen, 20, 1e-9);
    EXPECT_NEAR(best.helium, 34.8571, 1e-4);
    EXPECT_LT(bestTrimix(30, 60, 1.4).helium, 0);
    EXPECT_NEAR(trimixEquivalentDepths(best.oxygen, best.helium, 60).ead, 30, 1e-9);
}

TEST(Trimix, minimumDepthIsForHypoxicMixesOnly) {
    EXPECT_NEAR(trimixMinimumDepth(10).value(), 6, 1e-9);
    EXPECT_EQ(trimixMinimumDepth(16), 0.0);
    EXPECT_NEAR(trimixMinimumDepth(1).value(), 150, 1e-9);
    EXPECT_TRUE(std::isnan(trimixMinimumDepth(nan).value()));
    for (const double oxygen : {0.0, std::nextafter(1.0, 0.0), std::nextafter(16.0, 17.0), 17.0, -5.0}) {
        EXPECT_FALSE(trimixMinimumDepth(oxygen)) << oxygen;
    }
}

TEST(Rebreather, sodaTimeIsCutToWholeMinutesAndSaturates) {
    const std::tuple<double, double, double, qint32, qint32> cases[] = {
        {2.5, 100, 1.6, 2, 36},
        {1, 59.9, 1, 0, 59},
        {-2.5, 100, 1.6, -2, -36},
        {1, 1, 0, smallest, smallest},
        {0, 0, 0, smallest, smallest},
        {1e15, 1, 1, smallest, smallest},
        // The hours just fit; the minutes are what is left.
        {1, 2147483647.5 * 60, 1, 2147483647, 30},
    };
    for (const auto& [weight, capacity, production, hours, minutes] : cases) {
        const SodaTime time = sodaTime(weight, capacity, production);
        EXPECT_EQ(time.hours, hours) << weight << ' ' << capacity;
        EXPECT_EQ(time.minutes, minutes) << weight << ' ' << capacity;
    }
}

TEST(Rebreather, fractionAndFlowFollowTheWorkedExamples) {
    EXPECT_NEAR(breathedFraction(40, 12, 1.0), 34.5455, 1e-4);
    EXPECT_NEAR(breathedFraction(40, 12, 1.8), 29.4118, 1e-4);
    EXPECT_NEAR(breathedFraction(32, 5, 1.8), -6.25, 1e-9);
    EXPECT_NEAR(idealFlow(40, 1.0, 30), 7, 1e-9);
    EXPECT_NEAR(idealFlow(40, 0.8, 30), 5.6, 1e-9);
    EXPECT_NEAR(idealFlow(40, 1.8, 35), 23.4, 1e-9);
}

TEST(Rebreather, coloursChangeExactlyAtTheirBounds) {
    EXPECT_EQ(breathedFractionColour(std::nextafter(20.9, 0)), RowColour::Red);
    EXPECT_EQ(breathedFractionColour(20.9), RowColour::Black);
    EXPECT_EQ(breathedFractionColour(nan), RowColour::Unchanged);
    EXPECT_EQ(idealFlowColour(-infinity), RowColour::Red);
    EXPECT_EQ(idealFlowColour(std::nextafter(3.0, 0)), RowColour::Red);
    EXPECT_EQ(idealFlowColour(3.0), RowColour::Black);
    EXPECT_EQ(idealFlowColour(std::nextafter(20.0, 0)), RowColour::Black);
    EXPECT_EQ(idealFlowColour(20.0), RowColour::Unchanged);
    EXPECT_EQ(idealFlowColour(std::nextafter(20.0, 21)), RowColour::Red);
    EXPECT_EQ(idealFlowColour(nan), RowColour::Unchanged);
}

}  // namespace

}  // namespace tavrel
