#include "profile/ui/profileview.h"

#include "base/decimalsign.h"
#include "base/texts.h"
#include "profile/profiledrawing.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tavrel {

ProfileView::ProfileView(QWidget* parent) : DrawingView(parent) {
    setObjectName(QStringLiteral("profileView"));
    setAccessibleName(text("Profil", "Profile of the dive"));
    setMouseTracking(true);
}

void ProfileView::setProfile(const ProfileDive& dive, const ProfileStyle& style, const QString& title) {
    geometry_ = profileGeometry(dive, style);
    dive_ = dive;
    style_ = style;
    title_ = title;
    letters_ = lettersThatFit();
    samples_ = std::make_shared<const ProfileSamples>(dive);
    marked_.reset();
    redraw();
    Q_EMIT sampleMarked();
}

/// As large as it takes to be read in a small view.
double ProfileView::lettersThatFit() const {
    constexpr double smallest = 8.5 / 11;  // of their usual size
    const QSizeF space(ProfileSpace::fullWidth, ProfileSpace::fullHeight);
    const double scale = std::min(width() / space.width(), height() / space.height());
    // In steps, so that a view that is drawn larger is not drawn anew all the time.
    return scale > 0 ? std::clamp(std::ceil(10 * smallest / scale) / 10, 1.0, 2.0) : 1;
}

void ProfileView::redraw() {
    Drawing drawing = profileDrawing(geometry_, dive_, style_, letters_);
    drawing.title = title_;
    setDrawing(std::move(drawing));
    if (marked_) {
        setAccessibleDescription(markedWords());
    }
}

void ProfileView::resizeEvent(QResizeEvent* event) {
    DrawingView::resizeEvent(event);
    if (const double letters = lettersThatFit(); samples_ && letters != letters_) {
        letters_ = letters;
        redraw();
    }
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
    return marked_ ? withDecimalSign(samples_->words(*marked_)) : QString();
}

void ProfileView::mouseMoveEvent(QMouseEvent* event) {
    const QPointF point = pointAt(event->position());
    markSample(sampleNear(point, scale()));
    Q_EMIT pointerMoved(point);
}

void ProfileView::keyPressEvent(QKeyEvent* event) {
    const int last = geometry_.scale.samples - 1;
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
    const double x = geometry_.scale.x(*marked_);
    const double y = geometry_.scale.y(samples_->at(*marked_).depth);
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
