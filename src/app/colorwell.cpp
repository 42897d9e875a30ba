#include "app/colorwell.h"

#include <QColorDialog>
#include <QEvent>
#include <QPainter>

namespace tavrel {

namespace {

constexpr QSize swatch(44, 18);

std::optional<QColor> chooseInDialog(QWidget* parent, const QColor& start) {
    const QColor chosen = QColorDialog::getColor(start, parent, parent->accessibleName());
    return chosen.isValid() ? std::optional(chosen) : std::nullopt;
}

}  // namespace

ColorWell::ColorWell(QWidget* parent) : QToolButton(parent), chooser_(chooseInDialog) {
    setIconSize(swatch);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QToolButton::clicked, this, &ColorWell::choose);
}

void ColorWell::setColor(const QColor& color) {
    color_ = color;
    showColor();
}

void ColorWell::choose() {
    const auto chosen = chooser_(this, color_);
    if (chosen && *chosen != color_) {
        setColor(*chosen);
        Q_EMIT colorChosen();
    }
}

void ColorWell::changeEvent(QEvent* event) {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        showColor();
    }
}

void ColorWell::showColor() {
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap(swatch * ratio);
    pixmap.setDevicePixelRatio(ratio);
    QPainter painter(&pixmap);
    painter.fillRect(QRect(QPoint(), swatch), color_);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(QRect(QPoint(), swatch - QSize(1, 1)));
    setIcon(pixmap);
    // Said aloud by screen readers, and the only way to tell two dark colours apart.
    setToolTip(color_.name());
    setAccessibleDescription(color_.name());
}

}  // namespace tavrel
