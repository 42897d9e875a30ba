#include "dives/ui/graphes.h"

#include "desktop/desktop.h"

namespace tavrel {

Graphes::Graphes(Desktop& desktop, QWidget* parent)
    : DrawingView(parent),
      desktop_(desktop),
      subscription_(desktop.notifications.subscribe(Notification::profile, [this] { redraw(); })) {
    setObjectName(QStringLiteral("graphes"));
    redraw();
}

void Graphes::setShares(const GraphShares& shares) {
    shares_ = shares;
    redraw();
}

void Graphes::redraw() {
    setDrawing(statGraphDrawing(shares_, desktop_.preferences));
}

}  // namespace tavrel
