#pragma once

#include "desktop/notificationcentre.h"
#include "dives/statgraph.h"
#include "drawing/ui/drawingview.h"

namespace tavrel {

struct Desktop;

/// The statistics as bars, in the colours of the preferences.
class Graphes : public DrawingView {
    Q_OBJECT

public:
    explicit Graphes(Desktop& desktop, QWidget* parent = nullptr);

    void setShares(const GraphShares& shares);
    const GraphShares& shares() const { return shares_; }

private:
    void redraw();

    Desktop& desktop_;
    GraphShares shares_;
    NotificationCentre::Subscription subscription_;
};

}  // namespace tavrel
