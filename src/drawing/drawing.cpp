#include "drawing/drawing.h"

#include "drawing/drawingfont.h"
#include "drawing/drawingicons.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>
#include <QTransform>

#include <cmath>

namespace tavrel {

namespace {

/// So many elements are long for a path that is stroked.
constexpr int longPath = 64;

/// A long line in pieces, each beginning with the last stretch of the one before, so that it joins on. Pixels are
/// filled much faster for many short outlines than for one that crosses itself often.
std::vector<QPainterPath> piecesOf(const QPainterPath& path) {
    std::vector<QPainterPath> pieces;
    for (int element = 0; element < path.elementCount(); ++element) {
        const QPainterPath::Element point = path.elementAt(element);
        if (point.isMoveTo()) {
            pieces.emplace_back(point);
            continue;
        }
        if (pieces.back().elementCount() > longPath) {
            const QPainterPath::Element before = path.elementAt(element - 2);
            pieces.emplace_back(before);
            pieces.back().lineTo(path.elementAt(element - 1));
        }
        pieces.back().lineTo(point);
    }
    return pieces;
}

bool hasCurves(const QPainterPath& path) {
    for (int element = 0; element < path.elementCount(); ++element) {
        if (path.elementAt(element).isCurveTo()) {
            return true;
        }
    }
    return false;
}

/// Paints primitives: paths in the drawing's space, texts and icons upright.
class PrimitivePainter {
public:
    PrimitivePainter(QPainter& painter, QSizeF size)
        : painter_(painter),
          height_(size.height()),
          upright_(painter.transform()),
          upward_(QTransform(1, 0, 0, -1, 0, height_) * upright_) {}

    void operator()(const Drawing::Area& area) const {
        painter_.setTransform(upward_);
        painter_.fillPath(area.path, area.brush);
    }

    void operator()(const Drawing::Line& line) const {
        QPen pen(line.colour, line.width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
        if (line.dash > 0) {
            pen.setDashPattern({line.dash / line.width, line.gap / line.width});
        }
        painter_.setTransform(upward_);
        // On paper and in files a line stays one; and where pieces lie on each other one must not see through.
        if (line.path.elementCount() <= longPath || painter_.paintEngine()->type() != QPaintEngine::Raster ||
            line.colour.alpha() < 255 || line.dash > 0 || hasCurves(line.path)) {
            painter_.strokePath(line.path, pen);
            return;
        }
        for (const QPainterPath& piece : piecesOf(line.path)) {
            painter_.strokePath(piece, pen);
        }
    }

    void operator()(const Drawing::Text& text) const {
        const QFont font = drawingFont(text.size, text.bold);
        const QFontMetricsF metrics(font);
        const double width = metrics.horizontalAdvance(text.text);
        QPointF at(text.at.x(), height_ - text.at.y());
        if (text.alignment & Qt::AlignRight) {
            at.rx() -= width;
        } else if (text.alignment & Qt::AlignHCenter) {
            at.rx() -= width / 2;
        }
        if (text.alignment & Qt::AlignTop) {
            at.ry() += metrics.ascent();
        } else if (text.alignment & Qt::AlignVCenter) {
            at.ry() += (metrics.ascent() - metrics.descent()) / 2;
        } else {
            at.ry() -= metrics.descent();
        }
        painter_.setTransform(upright_);
        painter_.setFont(font);
        painter_.setPen(text.colour);
        painter_.drawText(at, text.text);
    }

    void operator()(const Drawing::Icon& icon) const {
        painter_.setTransform(upright_);
        const QPointF topLeft(icon.at.x(), height_ - icon.at.y() - icon.size.height());
        paintDrawingIcon(painter_, icon.name, QRectF(topLeft, icon.size));
    }

private:
    QPainter& painter_;
    double height_;
    QTransform upright_;
    QTransform upward_;
};

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// Relative luminance and contrast ratio as the web's accessibility guidelines define them.
double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return first > second ? first / second : second / first;
}

constexpr double enoughContrast = 4.5;

}  // namespace

QFont drawingFont(double size, bool bold) {
    QFont font;
    font.setFamilies({QStringLiteral("Lucida Grande"), QStringLiteral("DejaVu Sans"), QStringLiteral("sans-serif")});
    font.setPixelSize(qMax(1, qRound(size)));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QRectF Drawing::placeIn(const QRectF& target) const {
    QRectF place(QPointF(), size_.scaled(target.size(), Qt::KeepAspectRatio));
    place.moveCenter(target.center());
    return place;
}

QPointF Drawing::pointAt(const QPointF& point, const QRectF& target) const {
    const QRectF place = placeIn(target);
    if (place.isEmpty()) {
        return {};
    }
    const double scale = size_.width() / place.width();
    return {(point.x() - place.left()) * scale, (place.bottom() - point.y()) * scale};
}

void Drawing::reword(const std::function<QString(const QString&)>& words) {
    for (Primitive& each : primitives_) {
        if (auto* label = std::get_if<Text>(&each)) {
            label->text = words(label->text);
        }
    }
    description = words(description);
    if (table.cell) {
        table.cell = [words, plain = table.cell](int row, int column) { return words(plain(row, column)); };
    }
}

void Drawing::paint(QPainter& painter, const QRectF& target) const {
    const QRectF place = placeIn(target);
    if (isNull() || place.isEmpty()) {
        return;
    }
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(place.topLeft());
    painter.scale(place.width() / size_.width(), place.height() / size_.height());
    painter.setClipRect(QRectF(QPointF(), size_), Qt::IntersectClip);
    const PrimitivePainter onPainter(painter, size_);
    for (const Primitive& primitive : primitives_) {
        std::visit(onPainter, primitive);
    }
    painter.restore();
}

QColor blended(const QColor& colour, const QColor& over) {
    const float opacity = colour.alphaF();
    const auto mix = [opacity](float top, float bottom) { return top * opacity + bottom * (1 - opacity); };
    return QColor::fromRgbF(mix(colour.redF(), over.redF()), mix(colour.greenF(), over.greenF()),
                            mix(colour.blueF(), over.blueF()));
}

QColor legible(const QColor& colour, const QColor& background) {
    const QColor goal = contrast(Qt::black, background) > contrast(Qt::white, background) ? Qt::black : Qt::white;
    constexpr int steps = 10;
    QColor shade = colour;
    for (int step = 0; step <= steps; ++step) {
        QColor towards = goal;
        towards.setAlphaF(static_cast<float>(step) / steps);
        shade = blended(towards, colour);
        if (contrast(shade, background) >= enoughContrast) {
            break;
        }
    }
    return shade;
}

}  // namespace tavrel
