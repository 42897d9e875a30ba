#include "logbook/divefigures.h"

#include "dives/divecodes.h"
#include "logbook/diveform.h"
#include "support/testdesktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace tavrel {

namespace {

class DiveFiguresTest : public testing::Test {
protected:
    ~DiveFiguresTest() override { setTextLanguage(QStringLiteral("en")); }

    KeyFigure figure(const Plongee& dive, const char* label) {
        const auto figures = keyFigures(dive, form);
        const auto found = std::find_if(figures.begin(), figures.end(), [&](const KeyFigure& each) {
            return each.label.textIn(QStringLiteral("en")) == QString::fromUtf8(label);
        });
        EXPECT_NE(found, figures.end()) << label;
        return found == figures.end() ? KeyFigure() : *found;
    }

    TestDesktop desktop;
    DiveForm form{desktop.desktop()};
};

Plongee knownDive() {
    Plongee dive;
    dive.profondeur = 24.5F;
    dive.temps = 40;
    dive.volumeBloc = 12;
    dive.pressionDepart = 200;
    dive.pressionFin = 50;
    dive.o2Mix = 32;
    dive.gaz = Gas::nitrox;
    dive.profilProfondeur = Series::ofReals({20, 24, 16});
    dive.tempEau = 14;
    dive.tempAir = temperatureNotGiven;
    return dive;
}

TEST_F(DiveFiguresTest, tellsEachFigureWithItsFormula) {
    const Plongee dive = knownDive();
    const auto text = [&](const char* label) { return figure(dive, label).text; };
    const auto formula = [&](const char* label) { return figure(dive, label).explanation; };
    EXPECT_EQ(text("Maximum depth"), u"24.5 m");
    EXPECT_EQ(text("Average depth"), u"20.0 m");
    EXPECT_EQ(formula("Average depth"), u"Average depth = mean of 3 samples = 20.0 m");
    EXPECT_EQ(text("Dive time"), u"40 '");
    EXPECT_EQ(text("Gas"), u"Nx 32");
    EXPECT_EQ(text("Gas used"), u"1800 L");
    EXPECT_EQ(formula("Gas used"), u"Gas used = 12 L × (200 bar − 50 bar) = 1800 L");
    EXPECT_EQ(text("Surface consumption"), u"15.0 L/min");
    EXPECT_EQ(formula("Surface consumption"), u"SAC = 1800 L / 40 min / 3.0 bar = 15.0 L/min");
    EXPECT_EQ(text("Pressure per minute"), u"3.75 bar/min");
    // 0.32 × 3.4 bar = 1.09 bar, at 0.42 % a minute.
    EXPECT_TRUE(formula("Oxygen clock (CNS)").endsWith(u"= 40 min × 0.42 %/min = 16.8 %"));
    EXPECT_EQ(text("Water temperature"), u"14\u00a0°C");
    setTextLanguage(QStringLiteral("fr"));
    EXPECT_EQ(figure(dive, "Gas used").explanation, u"Gaz consommé = 12 L × (200 bar − 50 bar) = 1800 L");
}

TEST_F(DiveFiguresTest, saysWhyAFigureCannotBeKnown) {
    const auto reason = [&](const Plongee& dive, const char* label) {
        const KeyFigure found = figure(dive, label);
        EXPECT_TRUE(found.text.isNull()) << label;
        return found.explanation;
    };
    EXPECT_EQ(reason(knownDive(), "Air temperature"), u"Not known: no temperature was entered");
    Plongee dive = knownDive();
    dive.profilProfondeur = Series::ofReals({0});
    EXPECT_EQ(reason(dive, "Average depth"), u"Not known: no profile, so no average depth");
    EXPECT_EQ(reason(dive, "Surface consumption"), u"Not known: no profile, so no average depth");
    EXPECT_EQ(figure(dive, "Gas used").text, u"1800 L");
    dive.temps = 0;
    EXPECT_EQ(reason(dive, "Pressure per minute"), u"Not known: no dive time");
    EXPECT_EQ(reason(dive, "Oxygen clock (CNS)"), u"Not known: no dive time");
    dive.pressionDepart = 0;
    EXPECT_EQ(reason(dive, "Gas used"), u"Not known: no start pressure");
    dive = knownDive();
    dive.volumeBloc = 0;
    EXPECT_EQ(reason(dive, "Surface consumption"), u"Not known: no tank volume");
    dive = knownDive();
    dive.profilProfondeur = Series::ofReals({20, std::numeric_limits<double>::quiet_NaN()});
    EXPECT_EQ(reason(dive, "Surface consumption"), u"Not known: the profile holds depths that are no numbers");
}

}  // namespace

}  // namespace tavrel
