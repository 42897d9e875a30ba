#pragma once

#include "drawing/datatable.h"

#include <QBrush>
#include <QColor>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>
#include <utility>
#include <variant>
#include <vector>

class QPainter;

namespace tavrel {

/// A picture as a list of primitives in a space of fixed size, in points. The origin is the lower left corner and y
/// grows upward. It knows nothing of where it will be shown: on a window, on paper or in a file, at any size.
class Drawing {
public:
    /// A line along a path, solid or in dashes. Lengths in points.
    struct Line {
        QPainterPath path;
        QColor colour = Qt::black;
        double width = 1;
        double dash = 0;  ///< 0: solid
        double gap = 0;
    };
    /// The inside of a path, by its fill rule. A gradient's points are the drawing's.
    struct Area {
        QPainterPath path;
        QBrush brush;
    };
    /// One line of text. The point is that corner, edge or centre of its box that the alignment names: with
    /// Qt::AlignLeft | Qt::AlignBottom the lower left corner.
    struct Text {
        QPointF at;
        QString text;
        QColor colour = Qt::black;
        double size = 11;  ///< of the font, points
        Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignBottom;
        bool bold = false;
    };
    /// The icon of that name, its lower left corner at the point.
    struct Icon {
        QPointF at;
        QSizeF size;
        QString name;
    };
    using Primitive = std::variant<Area, Line, Text, Icon>;

    Drawing() = default;
    explicit Drawing(QSizeF size) : size_(size) {}

    QSizeF size() const { return size_; }
    bool isNull() const { return size_.isEmpty(); }
    /// Later ones cover earlier ones.
    void add(Primitive primitive) { primitives_.push_back(std::move(primitive)); }
    const std::vector<Primitive>& primitives() const { return primitives_; }

    /// Where it comes to stand in a target: as large as fits, centred, its proportions kept.
    QRectF placeIn(const QRectF& target) const;
    /// The point of the drawing that a point of the target shows.
    QPointF pointAt(const QPointF& point, const QRectF& target) const;
    /// Paints it into the target; nothing reaches beyond its place there.
    void paint(QPainter& painter, const QRectF& target) const;

    /// Puts other words in the place of all of its own, those of the title, the description and the table included.
    void reword(const std::function<QString(const QString&)>& words);

    // For those who cannot see it, and for the papers of a file.
    QString title;
    QString description;
    DataTable table;

private:
    QSizeF size_;
    std::vector<Primitive> primitives_;
};

/// The colour itself where it stands out from the background, or its nearest shade that does: labels on it are legible.
QColor legible(const QColor& colour, const QColor& background);
/// A translucent colour as it looks over an opaque one.
QColor blended(const QColor& colour, const QColor& over);

}  // namespace tavrel
