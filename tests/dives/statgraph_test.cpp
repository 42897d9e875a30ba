#include "dives/statgraph.h"

#include "base/decimalsign.h"
#include "dives/statistics.h"
#include "dives/statisticsreport.h"
#include "profile/profilesettings.h"
#include "support/primitives.h"
#include "support/testdesktop.h"

#include <algorithm>
#include <cmath>

namespace tavrel {
namespace {

std::vector<DivePointer> dives(std::initializer_list<float> depths) {
    std::vector<DivePointer> list;
    for (const float depth : depths) {
        Plongee dive;
        dive.profondeur = depth;
        dive.gaz = depth > 50 ? 3 : 0;
        list.push_back(std::make_shared<const Plongee>(std::move(dive)));
    }
    return list;
}

TEST(StatGraph, BarsAreAsHighAsTheirShare) {
    const auto list = dives({5, 12, 15, 70});
    const GraphShares shares = setDataForStatGraphes(Statistics(divesIn(list), nullptr));
    EXPECT_FLOAT_EQ(shares.depth_level[1], 50);
    EXPECT_FLOAT_EQ(shares.depth_level[6], 25);
    EXPECT_FLOAT_EQ(shares.air, 75);
    EXPECT_FLOAT_EQ(shares.heliox, 25);

    const StatGraph graph = statGraph(shares, false);
    const auto place = [](const auto& bar) {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(bar.rect.left())
            .arg(bar.rect.top())
            .arg(bar.rect.width())
            .arg(bar.rect.height());
    };
    EXPECT_EQ(eachOf(graph.bars, place),
              u"80 50 60 100|145 50 60 200|210 50 60 0|275 50 60 0|340 50 60 0|405 50 60 0|470 50 60 100|"
              "600 50 60 300|665 50 60 0|730 50 60 0|795 50 60 100");
    EXPECT_EQ(graph.bars[1].labelAt, QPointF(160, 250));
    EXPECT_EQ((QStringList{graph.bars[1].label, graph.bars[1].name, graph.bars[2].label}.join(u'|')),
              u"50.0 %|10 - 19 m|0.0 %");
    EXPECT_EQ(eachOf(graph.bars, [](const auto& bar) { return QString::number(bar.nameAt.x()); }),
              u"84|149|214|279|344|409|474|612|677|742|807");
    EXPECT_EQ(graph.bars[10].path, GraphPath::trimix);
    EXPECT_EQ(statGraph({.air = 100}, false).bars[7].rect.bottom(), 450);
}

TEST(StatGraph, PreviousDivesCountInSharesAndNoDiveAtAllLiesFlat) {
    PreviousTotals previous;
    previous.counts[static_cast<std::size_t>(StatCount::air)] = 4;
    previous.measures[static_cast<std::size_t>(StatMeasure::totalDives)] = 6;
    const auto list = dives({5, 12});
    EXPECT_FLOAT_EQ(setDataForStatGraphes(Statistics(divesIn(list), &previous)).air, 75);
    EXPECT_FLOAT_EQ(setDataForStatGraphes(Statistics(divesIn(list), nullptr)).air, 100);

    previous.measures = {};
    for (const auto* totals : {static_cast<const PreviousTotals*>(nullptr), &std::as_const(previous)}) {
        const GraphShares shares = setDataForStatGraphes(Statistics({}, totals));
        EXPECT_FALSE(std::isfinite(shares.air));
        for (const auto& bar : statGraph(shares, true).bars) {
            EXPECT_EQ(bar.rect.height(), 0);
        }
    }
}

TEST(StatGraph, TicksAreLabelledInTens) {
    const auto ticks = statGraph({}, true).ticks;
    EXPECT_EQ(ticks.size(), 21U);
    EXPECT_EQ(ticks[1].label, u"");
    EXPECT_EQ(ticks[1].y, 70);
    EXPECT_EQ(ticks[20].label, u"100 %");
    EXPECT_EQ(ticks[20].y, 450);
    EXPECT_EQ(statGraph({}, false).ticks.size(), 11U);
}

TEST(StatGraph, DrawingFollowsThePreferencesAndKeepsLabelsOnThePaper) {
    TestDesktop desktop;
    Preferences& preferences = desktop.desktop().preferences;
    const auto list = dives({5, 12, 15, 70});
    GraphShares shares = setDataForStatGraphes(Statistics(divesIn(list), nullptr));
    shares.nitrox = 300;
    preferences.set(settings::fillPlot, false);
    const auto filled = [&](const QColor& colour) {
        const auto areas = all<Drawing::Area>(statGraphDrawing(shares, preferences));
        return std::count_if(areas.begin(), areas.end(),
                             [&](const auto& area) { return area.brush.color() == colour; });
    };
    const QColor pink(250, 10, 200);
    preferences.set(settings::fillColor, pink);
    preferences.set(settings::alphaFillColor, 1.0);
    EXPECT_EQ(filled(pink), 0);
    preferences.set(settings::fillPlot, true);
    EXPECT_EQ(filled(pink), 1);
    for (const QColor& gas : {QColor(0, 255, 0), QColor(153, 102, 51)}) {
        EXPECT_EQ(filled(gas), 1) << gas.name().toStdString();
    }

    const auto dashes = [&] {
        const auto lines = all<Drawing::Line>(statGraphDrawing(shares, preferences));
        return std::count_if(lines.begin(), lines.end(), [](const auto& line) { return line.dash > 0; });
    };
    EXPECT_EQ(dashes(), 0);
    preferences.set(settings::gradientYes, true);
    EXPECT_EQ(dashes(), 1);

    const Drawing drawing = statGraphDrawing(shares, preferences);
    for (const auto& text : all<Drawing::Text>(drawing)) {
        EXPECT_GE(text.at.y(), 0);
        EXPECT_LE(text.at.y() + text.size, drawing.size().height()) << text.text.toStdString();
    }
    EXPECT_EQ(drawing.table.cell(8, 1), u"300.0 %");
}

TEST(StatisticsReport, NamesEveryFigureUnderItsHeading) {
    const auto list = dives({5, 12, 15, 70});
    const QString report = statisticsReport(Statistics(divesIn(list), nullptr), QStringLiteral("Lagoon")).text();
    EXPECT_TRUE(
        report.startsWith(u"Statistics of Lagoon\r\rDepth, time and water\r   Dives: 4 dives\r"
                          "   Deepest dive: 70 m\r"));
    EXPECT_TRUE(report.contains(u"\r   Total time: 0 h 00 min. (0 min.)\r"));
    EXPECT_TRUE(report.contains(u"\r\rGases\r   Air: 3 (75.0 %)\r   Nitrox: 0 (0.0 %)\r"));
    EXPECT_TRUE(report.endsWith(u"\r   60 m and more: 1 (25.0 %)"));
    setTextLanguage(QStringLiteral("fr"));
    const QString paper =
        statisticsReport(Statistics(divesIn(list), nullptr), QStringLiteral("Lot 1.5"), withDecimalSign).text();
    EXPECT_TRUE(paper.startsWith(u"Statistiques de Lot 1.5\r\r"));
    EXPECT_TRUE(paper.endsWith(u"1 (25,0 %)"));
    setTextLanguage(QStringLiteral("en"));
}

}  // namespace
}  // namespace tavrel
