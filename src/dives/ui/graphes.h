#pragma once

#include "desktop/notificationcentre.h"
#include "dives/statgraph.h"

#include <QWidget>

namespace tavrel {

struct Desktop;

/// The statistics as bars, in the colours of the preferences.
class Graphes : public QWidget {
    Q_OBJECT

public:
    explicit Graphes(Desktop& desktop, QWidget* parent = nullptr);

    void setShares(const GraphShares& shares);
    const GraphShares& shares() const { return shares_; }
    Drawing drawing() const;

    QSize sizeHint() const override { return {870, 480}; }
    QSize minimumSizeHint() const override { return {435, 240}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void describe();

    Desktop& desktop_;
    GraphShares shares_;
    NotificationCentre::Subscription subscription_;
};

}  // namespace tavrel
