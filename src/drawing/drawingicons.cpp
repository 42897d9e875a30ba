#include "drawing/drawingicons.h"

#include "desktop/iconfiles.h"

#include <QHash>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <memory>
#include <unordered_map>
#include <utility>

namespace tavrel {

namespace {

/// The pictures read so far, and their images at the sizes last asked for: a profile may show hundreds of a kind.
class DrawingIcons {
public:
    QSvgRenderer& renderer(const QString& name) {
        auto& known = renderers_[name];
        if (!known) {
            known = std::make_unique<QSvgRenderer>(iconFile(name));
        }
        return *known;
    }

    const QImage& image(const QString& name, const QSize& size) {
        const auto key = std::pair(name, (qint64(size.width()) << 32) + size.height());
        const auto known = images_.constFind(key);
        if (known != images_.constEnd()) {
            return *known;
        }
        if (images_.size() > 64) {  // a window that is being resized asks for ever new sizes
            images_.clear();
        }
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer(name).render(&painter);
        painter.end();
        return *images_.insert(key, image);
    }

private:
    std::unordered_map<QString, std::unique_ptr<QSvgRenderer>> renderers_;
    QHash<std::pair<QString, qint64>, QImage> images_;
};

}  // namespace

void paintDrawingIcon(QPainter& painter, const QString& name, const QRectF& place) {
    static DrawingIcons icons;
    if (!icons.renderer(name).isValid()) {
        return;
    }
    if (painter.paintEngine()->type() != QPaintEngine::Raster) {
        icons.renderer(name).render(&painter, place);
        return;
    }
    const QSizeF pixels = painter.deviceTransform().mapRect(place).size();
    const QSize size(qMax(1, qRound(pixels.width())), qMax(1, qRound(pixels.height())));
    painter.drawImage(place, icons.image(name, size));
}

}  // namespace tavrel
