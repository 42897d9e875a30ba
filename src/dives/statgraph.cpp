#include "dives/statgraph.h"

#include "base/texts.h"
#include "desktop/preferences.h"
#include "dives/statistics.h"
#include "profile/profilesettings.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace tavrel {

namespace {

constexpr double barWidth = 60;
constexpr double pointsPerPercent = 4;

// A bar of 100 % and its label, and the last of the bars, reach beyond the 850 x 400 that the bars are laid out for.
constexpr QSizeF paper(870, 480);
constexpr double axisX = 70;
constexpr double rightEnd = 860;
constexpr double top = StatGraph::baseLine + 100 * pointsPerPercent;
constexpr double highestLabel = top + 12;

struct BarPlace {
    StatCount count;
    double left;
    GraphPath path;
    double nameIndent;
};
constexpr std::array<BarPlace, 11> places{{
    {StatCount::prof_1, 80, GraphPath::depths, 4},
    {StatCount::prof_2, 145, GraphPath::depths, 4},
    {StatCount::prof_3, 210, GraphPath::depths, 4},
    {StatCount::prof_4, 275, GraphPath::depths, 4},
    {StatCount::prof_5, 340, GraphPath::depths, 4},
    {StatCount::prof_6, 405, GraphPath::depths, 4},
    {StatCount::prof_7, 470, GraphPath::depths, 4},
    {StatCount::air, 600, GraphPath::air, 12},
    {StatCount::nitrox, 665, GraphPath::nitrox, 12},
    {StatCount::trimix, 730, GraphPath::trimix, 12},
    {StatCount::heliox, 795, GraphPath::trimix, 12},
}};

std::array<float, 11> inOrder(const GraphShares& shares) {
    std::array<float, 11> values{};
    std::copy(shares.depth_level.begin(), shares.depth_level.end(), values.begin());
    values[7] = shares.air;
    values[8] = shares.nitrox;
    values[9] = shares.trimix;
    values[10] = shares.heliox;
    return values;
}

QString nameOf(StatCount count) {
    const auto names = statCountNames();
    return std::find_if(names.begin(), names.end(), [=](const auto& each) { return each.count == count; })
        ->label.text();
}

QPainterPath bars(const StatGraph& graph, GraphPath which) {
    QPainterPath path;
    for (const GraphBar& bar : graph.bars) {
        if (bar.path == which) {
            path.addRect(bar.rect);
        }
    }
    return path;
}

QPainterPath line(double fromX, double fromY, double toX, double toY) {
    QPainterPath path(QPointF(fromX, fromY));
    path.lineTo(toX, toY);
    return path;
}

QColor translucent(QColor colour, double opacity) {
    colour.setAlphaF(static_cast<float>(std::clamp(opacity, 0.0, 1.0)));
    return colour;
}

}  // namespace

GraphShares setDataForStatGraphes(const Statistics& statistics) {
    GraphShares shares;
    for (std::size_t band = 0; band < shares.depth_level.size(); ++band) {
        shares.depth_level[band] = statistics.graphShare(places[band].count);
    }
    shares.air = statistics.graphShare(StatCount::air);
    shares.nitrox = statistics.graphShare(StatCount::nitrox);
    shares.trimix = statistics.graphShare(StatCount::trimix);
    shares.heliox = statistics.graphShare(StatCount::heliox);
    return shares;
}

StatGraph statGraph(const GraphShares& shares, bool minorTicks) {
    StatGraph graph;
    const auto values = inOrder(shares);
    for (std::size_t place = 0; place < places.size(); ++place) {
        GraphBar& bar = graph.bars[place];
        const double left = places[place].left;
        bar.value = values[place];
        const double height = std::isfinite(bar.value) ? pointsPerPercent * double{bar.value} : 0;
        bar.rect = QRectF(left, StatGraph::baseLine, barWidth, height);
        bar.path = places[place].path;
        bar.label = fillFormat(QStringLiteral("%.1f %%"), {FormatArgument(double{bar.value})});
        bar.labelAt = QPointF(left + 15, StatGraph::baseLine + height);
        bar.name = nameOf(places[place].count);
        bar.nameAt = QPointF(left + places[place].nameIndent, StatGraph::baseLine - 20);
    }
    for (int percent = 0; percent <= 100; percent += minorTicks ? 5 : 10) {
        const double y = StatGraph::baseLine + pointsPerPercent * percent;
        graph.ticks.push_back(
            {percent, y,
             percent % 10 == 0 ? fillFormat(QStringLiteral("%d %%"), {formatArgument(percent)}) : QString()});
    }
    return graph;
}

Drawing statGraphDrawing(const GraphShares& shares, const Preferences& preferences) {
    const StatGraph graph = statGraph(shares, preferences.get(settings::yMinorTicks));
    const bool gradient = preferences.get(settings::gradientYes);
    const QColor ground =
        translucent(preferences.get(settings::backgroundColor), preferences.get(settings::alphaBackgroundColor));
    const QColor seen = blended(ground, Qt::white);
    const QColor wanted = preferences.get(settings::gradientLinesColor);
    const QColor labels = legible(gradient && wanted.isValid() ? wanted : QColor(Qt::black), seen);
    const QColor blue = QColor::fromRgbF(0, 0, 1);
    const QColor green = QColor::fromRgbF(0, 1, 0);
    const QColor brown = QColor::fromRgbF(0.6F, 0.4F, 0.2F);

    Drawing drawing(paper);
    QPainterPath bounds;
    bounds.addRect(QRectF(QPointF(), paper));
    drawing.add(Drawing::Area{bounds, QColor(Qt::white)});
    drawing.add(Drawing::Area{bounds, ground});

    const QPainterPath depths = bars(graph, GraphPath::depths);
    const QPainterPath air = bars(graph, GraphPath::air);
    const QPainterPath nitrox = bars(graph, GraphPath::nitrox);
    const QPainterPath trimix = bars(graph, GraphPath::trimix);
    drawing.add(Drawing::Line{line(axisX, StatGraph::baseLine, axisX, top), Qt::black, 1});
    drawing.add(Drawing::Area{depths, blue});
    drawing.add(Drawing::Area{air, QColor(Qt::white)});
    drawing.add(Drawing::Area{nitrox, green});
    drawing.add(Drawing::Area{trimix, brown});
    if (preferences.get(settings::fillPlot)) {
        drawing.add(Drawing::Area{
            depths, translucent(preferences.get(settings::fillColor), preferences.get(settings::alphaFillColor))});
    }
    for (const QPainterPath& path : {air, nitrox, trimix}) {
        drawing.add(Drawing::Line{path, Qt::black, 1});
    }
    QPainterPath dashed;
    QPainterPath ticks;
    for (const StatGraph::Tick& tick : graph.ticks) {
        const bool major = !tick.label.isEmpty();
        ticks.addPath(line(axisX - (major ? 6 : 3), tick.y, axisX, tick.y));
        if (major && tick.percent > 0) {
            dashed.addPath(line(axisX, tick.y, rightEnd, tick.y));
        }
    }
    if (gradient) {
        drawing.add(Drawing::Line{dashed, labels, 0.5, 4, 4});
    }
    drawing.add(Drawing::Line{ticks, Qt::black, 1});
    drawing.add(Drawing::Line{depths, Qt::black, 1});
    drawing.add(Drawing::Line{line(axisX, StatGraph::baseLine, rightEnd, StatGraph::baseLine), blue, 1});

    for (const StatGraph::Tick& tick : graph.ticks) {
        drawing.add(Drawing::Text{{axisX - 10, tick.y}, tick.label, labels, 11, Qt::AlignRight | Qt::AlignVCenter});
    }
    for (const GraphBar& bar : graph.bars) {
        // A share beyond 100 % stays on the paper, whatever previous totals claim.
        const QPointF at(bar.labelAt.x(), std::clamp(bar.labelAt.y(), 2.0, highestLabel));
        drawing.add(Drawing::Text{at, bar.label, labels, 11});
        drawing.add(Drawing::Text{bar.nameAt, bar.name, labels, 10});
    }
    drawing.title = text("Carnet", "Statistics graphs");
    drawing.table = {{text("Carnet", "Graph bar"), text("Carnet", "Graph share")},
                     static_cast<int>(graph.bars.size()),
                     [bars = graph.bars](int row, int column) {
                         const GraphBar& bar = bars.at(static_cast<std::size_t>(row));
                         return column == 0 ? bar.name : bar.label;
                     }};
    drawing.description = drawing.table.text();
    return drawing;
}

}  // namespace tavrel
