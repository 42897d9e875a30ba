#include "forms/ui/starrating.h"

#include "forms/ui/wheelguard.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>
#include <QSignalBlocker>
#include <QStyleOptionFocusRect>

#include <algorithm>
#include <cmath>

namespace tavrel {

namespace {

constexpr int margin = 2;

/// A five-pointed star in a circle of radius 1 around the origin.
QPolygonF star() {
    constexpr double pi = 3.14159265358979323846;
    constexpr double inner = 0.45;
    QPolygonF outline;
    for (int corner = 0; corner < 10; ++corner) {
        const double radius = corner % 2 == 0 ? 1 : inner;
        const double angle = corner * pi / 5;
        outline << QPointF(radius * std::sin(angle), -radius * std::cos(angle));
    }
    return outline;
}

}  // namespace

StarRating::StarRating(QWidget* parent) : QAbstractSlider(parent) {
    setOrientation(Qt::Horizontal);
    setPageStep(1);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    guardAgainstWheel(this);
    // Screen readers move a slider by setting its value.
    connect(this, &QAbstractSlider::valueChanged, this, [this](int value) {
        update();
        Q_EMIT chosen(value);
    });
}

void StarRating::showValue(int value) {
    const QSignalBlocker quiet(this);
    setValue(value);
    update();
}

int StarRating::side() const {
    return fontMetrics().height();
}

QSize StarRating::sizeHint() const {
    return QSize(side() * std::max(1, maximum()) + 2 * margin, side() + 2 * margin);
}

void StarRating::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QColor line = palette().color(group, QPalette::WindowText);
    const QPolygonF outline = star();
    const double radius = side() * 0.45;
    for (int place = 0; place < maximum(); ++place) {
        painter.save();
        painter.translate(margin + side() * (place + 0.5), height() / 2.0);
        painter.scale(radius, radius);
        painter.setPen(QPen(line, 1 / radius));
        painter.setBrush(place < value() ? QBrush(line) : QBrush(Qt::NoBrush));
        painter.drawPolygon(outline);
        painter.restore();
    }
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void StarRating::choose(int wanted) {
    setValue(wanted);
}

void StarRating::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const int filled = static_cast<int>(event->position().x() - margin) / side() + 1;
    choose(filled == 1 && value() == 1 ? 0 : filled);
}

void StarRating::mouseMoveEvent(QMouseEvent*) {}
void StarRating::mouseReleaseEvent(QMouseEvent*) {}

void StarRating::keyPressEvent(QKeyEvent* event) {
    if (event->key() >= Qt::Key_0 && event->key() <= Qt::Key_9 && event->modifiers() == Qt::NoModifier) {
        choose(event->key() - Qt::Key_0);
        return;
    }
    QAbstractSlider::keyPressEvent(event);
}

}  // namespace tavrel
