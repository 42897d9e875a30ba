#include "drawing/thinning.h"

#include <cmath>

namespace tavrel {

namespace {

constexpr double farAway = 1e5;  // beyond it a point is out of every drawing, and too far for painters

bool isNumber(const QPointF& point) {
    return !std::isnan(point.x()) && !std::isnan(point.y());
}

class Thinner {
public:
    explicit Thinner(double column) : column_(column) {}

    void take(const QPointF& point) {
        const double column = std::floor(point.x() / column_);
        if (any_ && column == current_) {
            ++count_;
            last_ = point;
            if (point.y() > highest_.y()) {
                highest_ = point;
                highestAt_ = count_;
            }
            if (point.y() < lowest_.y()) {
                lowest_ = point;
                lowestAt_ = count_;
            }
            return;
        }
        finishColumn();
        any_ = true;
        current_ = column;
        highest_ = lowest_ = last_ = point;
        highestAt_ = lowestAt_ = count_ = 1;
        append(point);
    }

    QPainterPath path() {
        finishColumn();
        return path_;
    }

private:
    void finishColumn() {
        if (!any_) {
            return;
        }
        const bool highestFirst = highestAt_ < lowestAt_;
        for (const bool high : {highestFirst, !highestFirst}) {
            const int place = high ? highestAt_ : lowestAt_;
            if (place > 1 && place < count_) {
                append(high ? highest_ : lowest_);
            }
        }
        if (count_ > 1) {
            append(last_);
        }
    }

    void append(const QPointF& point) {
        const QPointF near(qBound(-farAway, point.x(), farAway), qBound(-farAway, point.y(), farAway));
        if (path_.elementCount() == 0) {
            path_.moveTo(near);
        } else {
            path_.lineTo(near);
        }
    }

    double column_;
    QPainterPath path_;
    bool any_ = false;
    double current_ = 0;
    int count_ = 0;  ///< points of the current column so far
    QPointF highest_, lowest_, last_;
    int highestAt_ = 0, lowestAt_ = 0;
};

}  // namespace

QPainterPath thinnedPath(const std::vector<QPointF>& points, double column) {
    Thinner thinner(column);
    for (const QPointF& point : points) {
        if (isNumber(point)) {
            thinner.take(point);
        }
    }
    return thinner.path();
}

}  // namespace tavrel
