#include "logbook/divefigures.h"

#include "logbook/diveform.h"
#include "support/records.h"
#include "support/testdesktop.h"

#include <algorithm>

namespace tavrel {

namespace {

struct DiveFiguresTest : testing::Test {
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
    return filled<Plongee>(
        "profondeur=24.5|temps=40|volumeBloc=12|pressionDepart=200|pressionFin=50|o2Mix=32|gaz=1|"
        "profilProfondeur=20,24,16|tempEau=14|tempAir=-50");
}

TEST_F(DiveFiguresTest, tellsEachFigureWithItsFormula) {
    const Plongee dive = knownDive();
    for (const auto& [label, text] :
         namedValues("Maximum depth=24.5 m|Average depth=20.0 m|Dive time=40 '|Gas=Nx 32|Gas used=1800 L|"
                     "Surface consumption=15.0 L/min|Pressure per minute=3.75 bar/min|Water temperature=14\u00a0°C")) {
        EXPECT_EQ(figure(dive, label.c_str()).text, text) << label;
    }
    const auto formula = [&](const char* label) { return figure(dive, label).explanation; };
    // 0.32 × 3.4 bar = 1.09 bar, at 0.42 % a minute.
    EXPECT_TRUE(formula("Oxygen clock (CNS)").endsWith(u"= 40 min × 0.42 %/min = 16.8 %"));
    setTextLanguage(QStringLiteral("fr"));
    EXPECT_EQ(formula("Gas used"), u"Gaz consommé = 12 L × (200 bar − 50 bar) = 1800 L");
}

TEST_F(DiveFiguresTest, saysWhyAFigureCannotBeKnown) {
    Plongee dive = knownDive();
    dive.temps = 0;
    for (const auto& [label, reason] : {std::pair("Air temperature", u"Not known: no temperature was entered"),
                                        std::pair("Oxygen clock (CNS)", u"Not known: no dive time")}) {
        EXPECT_TRUE(figure(dive, label).text.isNull()) << label;
        EXPECT_EQ(figure(dive, label).explanation, reason);
    }
}

}  // namespace

}  // namespace tavrel
