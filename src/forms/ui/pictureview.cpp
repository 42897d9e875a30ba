#include "forms/ui/pictureview.h"

#include "base/texts.h"
#include "desktop/ui/icons.h"
#include "forms/pictures.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace tavrel {

namespace {

constexpr int margin = 4;  // pixels
constexpr int placeholderSize = 96;

}  // namespace

PictureView::PictureView(QWidget* parent) : QWidget(parent) {
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PictureView::showPicture(const Image& picture) {
    if (picture == picture_) {
        return;
    }
    picture_ = picture;
    isRead_ = picture.isNull();
    pixels_ = {};
    fault_.clear();
    scaled_ = {};
    update();
    Q_EMIT faultChanged();
}

void PictureView::read() const {
    if (isRead_) {
        return;
    }
    isRead_ = true;
    if (const auto pixels = pixelsOf(picture_)) {
        pixels_ = *pixels;
    } else {
        fault_ = pixels.error().sentence;
    }
}

const QImage& PictureView::pixels() const {
    read();
    return pixels_;
}

const QString& PictureView::fault() const {
    read();
    return fault_;
}

bool PictureView::mayHoldPicture(const QMimeData* data) {
    return data->hasImage() || data->hasUrls();
}

void PictureView::paintEvent(QPaintEvent*) {
    const bool wasRead = isRead_;
    const QImage& shown = pixels();
    if (!wasRead) {
        // Those around hear of a fault once this paint is over.
        QMetaObject::invokeMethod(this, &PictureView::faultChanged, Qt::QueuedConnection);
    }
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    const QRect place = rect().adjusted(margin, margin, -margin, -margin);
    if (shown.isNull()) {
        const QRect middle(place.center() - QPoint(placeholderSize / 2, placeholderSize / 2),
                           QSize(placeholderSize, placeholderSize));
        iconNamed(QStringLiteral("noPhoto")).paint(&painter, middle);
        if (picture_.isNull()) {
            painter.setPen(palette().color(QPalette::PlaceholderText));
            painter.drawText(place, int(Qt::AlignHCenter) | int(Qt::AlignBottom) | int(Qt::TextWordWrap),
                             text("Main", "Picture none"));
        }
    } else {
        const qreal ratio = devicePixelRatioF();
        const QSize size = shown.size().scaled(place.size() * ratio, Qt::KeepAspectRatio);
        const QSize target = size.boundedTo(shown.size());
        if (scaled_.size() != target) {
            scaled_ = QPixmap::fromImage(shown.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
            scaled_.setDevicePixelRatio(ratio);
        }
        const QSizeF logical = QSizeF(target) / ratio;
        painter.drawPixmap(QRectF(place).center() - QPointF(logical.width() / 2, logical.height() / 2), scaled_);
    }
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void PictureView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste)) {
        Q_EMIT pasteRequested();
    } else if (event->matches(QKeySequence::Copy)) {
        Q_EMIT copyRequested();
    } else if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
        Q_EMIT removeRequested();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space) {
        Q_EMIT enlargeRequested();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void PictureView::mouseDoubleClickEvent(QMouseEvent*) {
    Q_EMIT enlargeRequested();
}

void PictureView::dragEnterEvent(QDragEnterEvent* event) {
    if (mayHoldPicture(event->mimeData())) {
        event->acceptProposedAction();
    }
}

void PictureView::dropEvent(QDropEvent* event) {
    if (mayHoldPicture(event->mimeData())) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
        Q_EMIT offered(event->mimeData());
    }
}

}  // namespace tavrel
