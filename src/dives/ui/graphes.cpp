#include "dives/ui/graphes.h"

#include "desktop/desktop.h"

#include <QPainter>

namespace tavrel {

Graphes::Graphes(Desktop& desktop, QWidget* parent)
    : QWidget(parent),
      desktop_(desktop),
      subscription_(desktop.notifications.subscribe(Notification::profile, [this] { update(); })) {
    setObjectName(QStringLiteral("graphes"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    describe();
}

void Graphes::setShares(const GraphShares& shares) {
    shares_ = shares;
    describe();
    update();
}

Drawing Graphes::drawing() const {
    return statGraphDrawing(shares_, desktop_.preferences);
}

void Graphes::describe() {
    const Drawing shown = drawing();
    setAccessibleName(shown.title);
    setAccessibleDescription(shown.description);
}

void Graphes::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing().paint(painter, rect());
}

}  // namespace tavrel
