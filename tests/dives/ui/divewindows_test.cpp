#include "dives/statistics.h"
#include "dives/ui/cardchoice.h"
#include "dives/ui/consumptionsheet.h"
#include "dives/ui/graphes.h"
#include "dives/ui/previoustotalswindow.h"
#include "dives/ui/statisticswindow.h"
#include "profile/profileseries.h"
#include "support/records.h"
#include "support/testdesktop.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

namespace tavrel {
namespace {

struct DiveWindowsTest : testing::Test {
    DiveWindowsTest() {
        for (const char* fields : {"profondeur=5|tempEau=15", "profondeur=25|tempEau=15", "profondeur=35|tempEau=15",
                                   "profondeur=62|tempEau=15"}) {
            dives_.push_back(filled<Plongee>(fields));
        }
    }
    DiveSource source() {
        return {[this](DiveChoice choice) {
                    std::vector<const Plongee*> dives;
                    for (const Plongee& dive : dives_) {
                        if (choice == DiveChoice::all || (choice == DiveChoice::selected && selected_ > dives.size())) {
                            dives.push_back(&dive);
                        }
                    }
                    return dives;
                },
                [] { return QStringLiteral("Lagoon"); }};
    }
    static QString shown(const QWidget& window, const char* name) {
        const auto* label = window.findChild<QLabel*>(QLatin1StringView(name));
        return label ? label->text() : QStringLiteral("no such label");
    }

    TestDesktop desktop_;
    std::vector<Plongee> dives_;
    std::size_t selected_ = 0;
};

TEST_F(DiveWindowsTest, StatisticsFollowThePreviousTotalsAndTheSwitch) {
    StatisticsWindow window(source(), desktop_.desktop(), {});
    window.showStatisticsWindow();
    StatisticsWindow other(source(), desktop_.desktop(), {});
    other.showStatisticsWindow();
    EXPECT_EQ(window.windowTitle(), u"Statistics of Lagoon");
    const auto figures = [&](const char* names) {
        return eachOf(names, [&](const char* name) { return shown(window, name); });
    };
    EXPECT_EQ(figures("statDivesField statProf_7Field statP_Prof_7Field"), u"4 dives|1|25.0 %");
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("statP_Prof_7Field"))->toolTip(),
              u"Share = 1 / 4 × 100 = 25.0 %");
    EXPECT_EQ(shown(window, "statTempsField"), u"0 h 00 min.\n(0 min.)");
    EXPECT_FLOAT_EQ(window.graphes().shares().depth_level[6], 25);

    PreviousTotalsWindow& previous = window.previousTotals();
    previous.showEditStatisticsWindow();
    EXPECT_EQ(previous.findChildren<QLineEdit*>().size(), 36);
    EXPECT_EQ(previous.findChild<QLineEdit*>(QStringLiteral("statSumTempMinField"))->text(), u"0");
    auto* dives = previous.findChild<QLineEdit*>(QStringLiteral("statSumDivesField"));
    QTest::keyClicks(dives, QStringLiteral("1,234"));
    EXPECT_EQ(dives->text(), u"1234");
    dives->setText(QStringLiteral("6"));
    previous.findChild<QLineEdit*>(QStringLiteral("statSumProf_7Field"))->setText(QStringLiteral("4"));
    previous.findChild<QLineEdit*>(QStringLiteral("statSumRecupField"))->setText(QStringLiteral("-3"));
    previous.validateStatisticsValues();
    EXPECT_FALSE(previous.isVisible());
    EXPECT_EQ(figures("statP_Prof_7Field statRecupField statTempMinField"), u"50.0 %|-3|0\u00a0°C");
    EXPECT_EQ(shown(other, "statP_Prof_7Field"), u"50.0 %");
    EXPECT_EQ(PreviousTotals::read(desktop_.desktop().preferences).of(StatCount::recuperation), -3);

    window.findChild<QCheckBox*>(QStringLiteral("previousDivesNoSwitch"))->click();
    EXPECT_EQ(figures("statProf_7Field statTempMinField"), u"1|15\u00a0°C");
}

TEST_F(DiveWindowsTest, ConsumptionSheetShowsReportAndWhereItComesFrom) {
    GasReadings readings;
    readings.tanks[0] = {12, 200, 50};
    readings.time = 40;
    ProfileSeries profile;
    profile.profilProfondeur = Series::ofReals({20, 20});
    readings.readProfile(profile);
    ConsumptionSheet sheet(desktop_.desktop(), {});
    sheet.consommation(readings, QStringLiteral("Dive 7"));
    EXPECT_TRUE(shown(sheet, "consoField").contains(u"\nSurface consumption: 15.0 L/min"));
    EXPECT_TRUE(shown(sheet, "explanations").contains(u"SAC = 1800 L / 40 min / 3.0 bar = 15.0 L/min"));

    readings.tanks[0].start = 0;
    sheet.consommation(readings, QStringLiteral("Dive 7"));
    EXPECT_EQ(shown(sheet, "explanations").count(u"start pressure"), 1);
    sheet.endConsoSheet();
    EXPECT_FALSE(sheet.isVisible());
    EXPECT_EQ(sheet.result(), 1);
}

TEST_F(DiveWindowsTest, CardChoiceOffersWhatThereIs) {
    std::vector<DiveChoice> made;
    CardChoice choice(source(), [&](DiveChoice chosen) { made.push_back(chosen); });
    const auto button = [&](const char* name) { return choice.findChild<QRadioButton*>(QLatin1StringView(name)); };
    choice.divesForSynthesisWindow();
    EXPECT_FALSE(button("currentDive")->isEnabled() || button("selectedDives")->isEnabled());
    EXPECT_TRUE(button("allDives")->isChecked());
    choice.reject();
    EXPECT_TRUE(made.empty());

    selected_ = 2;
    choice.divesForSynthesisWindow();
    EXPECT_TRUE(button("selectedDives")->isChecked());
    choice.accept();
    EXPECT_EQ(made, std::vector{DiveChoice::selected});
}

}  // namespace
}  // namespace tavrel
