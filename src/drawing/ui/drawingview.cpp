#include "drawing/ui/drawingview.h"

#include "base/decimalsign.h"
#include "base/texts.h"
#include "desktop/ui/bringtofront.h"
#include "drawing/ui/datatablewindow.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <utility>

namespace tavrel {

DrawingView::DrawingView(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    addCommand("showData", text("Main", "Show data"), [this] { showData(); });
    addCommand("copyData", text("Main", "Copy data"), [this] { copyData(); });
    addCommand("copyPicture", text("Main", "Copy picture"), [this] { copyPicture(); });
}

void DrawingView::addCommand(const char* name, const QString& title, std::function<void()> command) {
    auto* action = new QAction(title, this);
    action->setObjectName(QLatin1StringView(name));
    connect(action, &QAction::triggered, this, std::move(command));
    addAction(action);
}

void DrawingView::setDrawing(Drawing drawing) {
    drawing_ = std::move(drawing);
    drawing_.reword(withDecimalSign);
    painted_ = {};
    setAccessibleName(drawing_.title);
    setAccessibleDescription(drawing_.description);
    if (dataWindow_) {
        dataWindow_->setTable(drawing_.table, drawing_.title);
    }
    updateGeometry();
    update();
}

void DrawingView::showData() {
    if (!dataWindow_) {
        dataWindow_ = new DataTableWindow(this);
    }
    dataWindow_->setTable(drawing_.table, drawing_.title);
    bringToFront(dataWindow_);
}

void DrawingView::copyData() const {
    QGuiApplication::clipboard()->setText(drawing_.table.text());
}

void DrawingView::copyPicture() const {
    QImage image((drawing_.size() * 2).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    drawing_.paint(painter, image.rect());
    painter.end();
    QGuiApplication::clipboard()->setImage(image);
}

void DrawingView::paintEvent(QPaintEvent*) {
    if (drawing_.isNull()) {
        return;
    }
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (painted_.size() != pixels) {
        painted_ = QPixmap(pixels);
        painted_.setDevicePixelRatio(devicePixelRatioF());
        painted_.fill(Qt::transparent);
        QPainter painter(&painted_);
        drawing_.paint(painter, rect());
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, painted_);
    const QRectF place = drawing_.placeIn(rect());
    const double scale = place.width() / drawing_.size().width();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.bottomLeft());
    painter.scale(scale, -scale);
    paintOver(painter);
}

void DrawingView::paintOver(QPainter&) {}

void DrawingView::resizeEvent(QResizeEvent* event) {
    painted_ = {};
    QWidget::resizeEvent(event);
}

}  // namespace tavrel
