#pragma once

#include "drawing/drawing.h"

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <array>
#include <vector>

namespace tavrel {

class Preferences;
class Statistics;

/// The eleven values of the graphs: shares of all dives, percent. Infinite or not a number where there is no dive.
struct GraphShares {
    std::array<float, 7> depth_level{};  ///< bands of depth
    float air = 0, nitrox = 0, trimix = 0, heliox = 0;
};

GraphShares setDataForStatGraphes(const Statistics& statistics);

/// Which set of bars a bar belongs to: each is filled in one go. The heliox bar goes with trimix.
enum class GraphPath { depths, air, nitrox, trimix };

struct GraphBar {
    float value = 0;  ///< percent
    QRectF rect;      ///< from its left edge on the base line; flat where the value is none
    GraphPath path = GraphPath::depths;
    QString label;    ///< the value
    QPointF labelAt;  ///< lower left corner of the label
    QString name;
    QPointF nameAt;
};

/// The geometry of the graphs: points, y upward, bars on the line y = 50, four points to the percent.
struct StatGraph {
    static constexpr double baseLine = 50;

    std::array<GraphBar, 11> bars;  ///< bands of depth, air, nitrox, trimix, heliox
    struct Tick {
        int percent = 0;
        double y = 0;
        QString label;  ///< empty at a minor tick
    };
    std::vector<Tick> ticks;
};

StatGraph statGraph(const GraphShares& shares, bool minorTicks);

/// The graphs in the colours of the preferences.
Drawing statGraphDrawing(const GraphShares& shares, const Preferences& preferences);

}  // namespace tavrel
