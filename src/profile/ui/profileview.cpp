#include "profile/ui/profileview.h"

#include "profile/profiledrawing.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace tavrel {

ProfileView::ProfileView(QWidget* parent) : DrawingView(parent) {
    setObjectName(QStringLiteral("profileView"));
    setMouseTracking(true);
}

void ProfileView::setProfile(const ProfileDive& dive, const ProfileStyle& style, const QString& title) {
    const ProfileGeometry geometry = profileGeometry(dive, style);
    scale_ = geometry.scale;
    samples_ = std::make_shared<const ProfileSamples>(dive);
    marked_.reset();
    Drawing drawing = profileDrawing(geometry, dive, style);
    drawing.title = title;
    setDrawing(std::move(drawing));
    Q_EMIT sampleMarked();
}

void ProfileView::markSample(int sample) {
    if (!samples_ || samples_->count() < 2) {
        return;
    }
    const int marked = qBound(0, sample, samples_->count() - 1);
    if (marked_ == marked) {
        return;
    }
    marked_ = marked;
    setAccessibleDescription(markedWords());
    QAccessibleEvent told(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&told);
    update();
    Q_EMIT sampleMarked();
}

QString ProfileView::markedWords() const {
    return marked_ ? samples_->words(*marked_) : QString();
}

void ProfileView::mouseMoveEvent(QMouseEvent* event) {
    const QPointF point = pointAt(event->position());
    markSample(sampleNear(point, scale_));
    Q_EMIT pointerMoved(point);
}

void ProfileView::keyPressEvent(QKeyEvent* event) {
    const int last = scale_.samples - 1;
    const int step = event->modifiers() & Qt::ControlModifier ? 10 : 1;
    switch (event->key()) {
        case Qt::Key_Right:
            markSample(marked_ ? *marked_ + step : 0);
            break;
        case Qt::Key_Left:
            markSample(marked_ ? *marked_ - step : last);
            break;
        case Qt::Key_Home:
            markSample(0);
            break;
        case Qt::Key_End:
            markSample(last);
            break;
        default:
            DrawingView::keyPressEvent(event);
    }
}

void ProfileView::paintOver(QPainter& painter) {
    if (!marked_) {
        return;
    }
    const double x = scale_.x(*marked_);
    const double y = scale_.y(samples_->at(*marked_).depth);
    // Dark with a light edge, so that it shows on every background.
    for (const auto& [colour, width] :
         {std::pair(QColor(255, 255, 255, 200), 2.4), std::pair(QColor(Qt::black), 1.0)}) {
        painter.setPen(QPen(colour, width));
        painter.setBrush(Qt::NoBrush);
        painter.drawLine(QPointF(x, ProfileSpace::timeAxis), QPointF(x, ProfileSpace::surface));
        if (std::isfinite(y)) {
            painter.drawEllipse(QPointF(x, y), 4, 4);
        }
    }
}

}  // namespace tavrel
