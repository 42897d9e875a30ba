#include "profile/profiledrawing.h"

#include "base/texts.h"
#include "drawing/thinning.h"
#include "profile/profilesample.h"
#include "profile/profilesummary.h"

#include <QHash>
#include <QLinearGradient>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tavrel {

namespace {

using Space = ProfileSpace;
using LabelKind = ProfileGeometry::LabelKind;
using Stroke = ProfileGeometry::Stroke;

constexpr double column = 0.5;       // points that a line's points are told apart by
constexpr double tickSpacing = 3;    // ticks nearer to each other are no longer told apart
constexpr double iconSpacing = 5;    // of icons of one kind
constexpr double usualHeight = 14;   // of a label
constexpr double letterWidth = 6.6;  // of a label, on average: texts are not measured, that needs fonts
constexpr double fontSize = 11;

const QSizeF& iconSize(const QString& name) {
    static const QHash<QString, QSizeF> sizes{{QStringLiteral("alarmeASC"), {8, 16}},
                                              {QStringLiteral("alarmeSLOW"), {14, 14}},
                                              {QStringLiteral("alarmeCEIL"), {14, 14}},
                                              {QStringLiteral("alarmeGAZ"), {58, 32}},
                                              {QStringLiteral("alarmeGAZO2"), {31, 36}}};
    static const QSizeF none;
    const auto found = sizes.constFind(name);
    return found == sizes.constEnd() ? none : *found;
}

QPainterPath pathOf(const Stroke& stroke) {
    return thinnedPath(stroke, column);
}

QPainterPath pathOf(const std::vector<Stroke>& strokes) {
    QPainterPath path;
    for (const Stroke& stroke : strokes) {
        path.addPath(pathOf(stroke));
    }
    return path;
}

/// Which of the labels along an axis show: all, or every n-th where they are too near to each other. Of labels that
/// stand on one spot, by depths beyond all measure, the first.
int everyNth(double step, double room) {
    if (step >= room) {
        return 1;
    }
    constexpr int most = 100'000'000;
    for (int nth = 1; nth <= most; nth *= 10) {
        for (const int factor : {1, 2, 5}) {
            if (nth * factor * step >= room) {
                return nth * factor;
            }
        }
    }
    return std::numeric_limits<int>::max();
}

class PictureMaker {
public:
    PictureMaker(const ProfileGeometry& geometry, const ProfileStyle& style, double letters)
        : geometry_(geometry),
          style_(style),
          letters_(letters),
          lineHeight_(usualHeight * letters),
          drawing_(QSizeF(Space::fullWidth, Space::fullHeight)) {}

    Drawing make() {
        paintBackground();
        paintCurve();
        paintTexts();
        paintFlags();
        paintOverFlags();
        return std::move(drawing_);
    }

private:
    static QPainterPath box(double left, double bottom, double right, double top) {
        QPainterPath path;
        path.addRect(left, bottom, right - left, top - bottom);
        return path;
    }

    double widthOf(const QString& text) const { return letterWidth * letters_ * static_cast<double>(text.size()); }
    /// Where a label hangs from when its letters are larger than usual: it grows downward.
    double hanging(double bottom) const { return bottom + usualHeight - lineHeight_; }

    void line(Drawing::Line line) {
        if (!line.path.isEmpty()) {
            drawing_.add(std::move(line));
        }
    }

    void paintBackground() {
        drawing_.add(Drawing::Area{box(0, 0, Space::fullWidth, Space::fullHeight), style_.paper()});
        if (style_.gradientYes) {
            QLinearGradient gradient(0, Space::timeAxis, 0, Space::surface);
            gradient.setColorAt(0, Qt::black);
            gradient.setColorAt(1, Qt::blue);
            drawing_.add(Drawing::Area{box(Space::left, Space::timeAxis, Space::right, Space::surface), gradient});
        }
    }

    void paintCurve() {
        const QPainterPath profile = pathOf(geometry_.profile);
        const QPainterPath pressure = pathOf(geometry_.pressure);
        if (style_.fillPlot) {
            drawing_.add(Drawing::Area{profile, style_.fill()});
        }
        line({pathOf(geometry_.axes), Qt::black});
        line({pathOf(geometry_.dashed), style_.gradientLinesColor, 0.5, 5, 3});
        line({ticks(), style_.gradientLinesColor});
        if (style_.shadow) {
            for (const double width : {1.5, 3.5, 5.5}) {  // soft at its edges
                for (const QPainterPath* curve : {&profile, &pressure}) {
                    line({curve->translated(5, -5), QColor(0, 0, 0, 28), width});
                }
            }
        }
        line({profile, style_.plotColor});
        line({pathOf(geometry_.surface), Qt::blue});
    }

    void paintOverFlags() {
        line({excursions(), QColor(0, 255, 0)});
        line({pathOf(geometry_.pressure), Qt::blue});
        line({pathOf(geometry_.limit), Qt::red, 1, 3, 3});
    }

    /// The ticks that can be told apart: along each axis, and of each length, none nearer than that to the one before.
    QPainterPath ticks() const {
        struct Row {
            double length;
            bool upright;
            double last;
        };
        std::vector<Row> rows;
        QPainterPath path;
        for (const Stroke& tick : geometry_.ticks) {
            const QPointF span = tick.back() - tick.front();
            const bool upright = span.x() == 0;
            const double length = span.x() + span.y();
            const double place = upright ? tick.front().x() : tick.front().y();
            auto row = std::find_if(rows.begin(), rows.end(), [&](const Row& known) {
                return known.length == length && known.upright == upright;
            });
            if (row == rows.end()) {
                row = rows.insert(rows.end(), {length, upright, place});
            } else if (std::abs(place - row->last) < tickSpacing) {
                continue;
            }
            row->last = place;
            path.moveTo(tick.front());
            path.lineTo(tick.back());
        }
        return path;
    }

    QPainterPath excursions() const {
        QPainterPath path;
        double last = -1;
        for (const Stroke& excursion : geometry_.surfaceExcursions) {
            if (excursion.front().x() - last >= column) {
                last = excursion.front().x();
                path.addPath(pathOf(excursion));
            }
        }
        return path;
    }

    /// What a label at a height of the plot stands on.
    QColor behind(const QPointF& at) const {
        const double height = (at.y() + lineHeight_ / 2 - Space::timeAxis) / (Space::surface - Space::timeAxis);
        QColor ground = style_.paper();
        if (style_.gradientYes && height >= 0 && height <= 1) {
            ground = QColor::fromRgbF(0, 0, static_cast<float>(height));
        }
        return ground;
    }

    void write(const ProfileGeometry::Label& label, const QPointF& at, const QColor& ground) {
        drawing_.add(Drawing::Text{at, label.text, legible(label.colour, ground), fontSize * letters_});
    }

    void paintTexts() {
        std::vector<const ProfileGeometry::Label*> times;
        std::vector<const ProfileGeometry::Label*> depths;
        for (const ProfileGeometry::Label& label : geometry_.labels) {
            const double right = Space::fullWidth - 4;
            const bool inPlot = label.at.x() > Space::left;
            switch (label.kind) {
                case LabelKind::time:
                    times.push_back(&label);
                    break;
                case LabelKind::depth:
                    depths.push_back(&label);
                    break;
                case LabelKind::axis:
                case LabelKind::limit: {
                    const double highest = Space::fullHeight - lineHeight_;
                    const QPointF at(std::min(label.at.x(), right - widthOf(label.text)),
                                     std::min(label.at.y(), highest));
                    write(label, at, inPlot ? behind(at) : style_.paper());
                    taken_.push_back(boxOf(label.text, at));
                    break;
                }
                case LabelKind::gas:
                    break;
            }
        }
        paintScale(times, Qt::Horizontal);
        paintScale(depths, Qt::Vertical);
    }

    void paintScale(const std::vector<const ProfileGeometry::Label*>& labels, Qt::Orientation orientation) {
        if (labels.empty()) {
            return;
        }
        const bool across = orientation == Qt::Horizontal;
        const auto place = [&](const ProfileGeometry::Label& label) { return across ? label.at.x() : -label.at.y(); };
        const double room = across ? widthOf(labels.back()->text) + 6 : lineHeight_;
        const double step = (place(*labels.back()) - place(*labels.front())) /
                            static_cast<double>(std::max<std::size_t>(labels.size() - 1, 1));
        const auto nth = static_cast<std::size_t>(labels.size() > 1 ? everyNth(step, room) : 1);
        for (std::size_t number = 0; number < labels.size(); number += nth) {
            QPointF at = labels[number]->at;
            if (across) {
                at.setY(hanging(at.y()));
            } else {  // numbers of many digits stay beside the axis, large ones at the height of their tick
                at.setX(std::max(std::min(at.x(), Space::left - 2 - widthOf(labels[number]->text)), 0.0));
                at.setY(at.y() + (usualHeight - lineHeight_) / 2);
            }
            write(*labels[number], at, style_.paper());
        }
    }

    QRectF boxOf(const QString& text, const QPointF& at) const { return {at, QSizeF(widthOf(text), lineHeight_)}; }

    /// Where an icon comes to stand, as large as the letters: what marks its sample stays there, the foot of a flag and
    /// the middle of an alarm.
    QRectF boxOf(const ProfileGeometry::Icon& icon) const {
        const QSizeF size = iconSize(icon.name);
        const double grown = letters_ - 1;
        const double left = icon.label >= 0 ? size.width() * grown : size.width() * grown / 2;
        const double down = icon.name == u"alarmeASC" ? size.height() * grown / 2 : 0;
        return {icon.at - QPointF(left, down), size * letters_};
    }

    void paintFlags() {
        QHash<QString, double> lastOfKind;
        std::vector<const ProfileGeometry::Icon*> gases;
        for (const ProfileGeometry::Icon& icon : geometry_.icons) {
            const QString kind =
                icon.label < 0 ? icon.name : geometry_.labels[static_cast<std::size_t>(icon.label)].text;
            const auto last = lastOfKind.constFind(kind);
            if (last != lastOfKind.constEnd() && icon.at.x() - *last < iconSpacing) {
                continue;
            }
            lastOfKind.insert(kind, icon.at.x());
            if (icon.label >= 0) {
                gases.push_back(&icon);
                continue;
            }
            const QRectF usual = boxOf(icon);
            const QSizeF size = usual.size();
            QPointF at = usual.topLeft();
            // An alarm of another kind at the same sample stands above the first.
            while (std::any_of(alarms_.begin(), alarms_.end(), [&](const QRectF& other) {
                return std::abs(other.left() - at.x()) < iconSpacing && std::abs(other.top() - at.y()) < 8 * letters_;
            })) {
                at.ry() += size.height();
            }
            alarms_.emplace_back(at, size);
            drawing_.add(Drawing::Icon{at, size, icon.name});
        }
        for (const ProfileGeometry::Icon* icon : gases) {
            paintGas(*icon);
        }
    }

    /// A gas switch with its words, beside its place when that is taken or out of view. Where there is no room at all
    /// it is left out.
    void paintGas(const ProfileGeometry::Icon& icon) {
        const QRectF usual = boxOf(icon);
        const QSizeF size = usual.size();
        if (!std::isfinite(usual.y())) {
            return;
        }
        const QRectF view(Space::left + 4, Space::timeAxis, Space::fullWidth - Space::left - 8,
                          Space::fullHeight - Space::timeAxis);
        const ProfileGeometry::Label& label = geometry_.labels[static_cast<std::size_t>(icon.label)];
        const QPointF wanted(std::max(usual.x(), view.left()), usual.y());
        for (const double up : {0.0, 1.0, -1.0, 2.0, 3.0}) {
            for (const double across : {0.0, 1.0, 2.0}) {
                const QRectF place(wanted + QPointF(across * (size.width() + 4), up * (size.height() + 2)), size);
                const bool isFree =
                    view.contains(place) && std::none_of(taken_.begin(), taken_.end(),
                                                         [&](const QRectF& other) { return other.intersects(place); });
                if (isFree) {
                    taken_.push_back(place);
                    // A flag that stands elsewhere is tied to its sample, which its tail marks at its right.
                    QPainterPath tie(QPointF(place.right(), place.top()));
                    if (place.topLeft() != usual.topLeft()) {
                        tie.lineTo(usual.right(), usual.top());
                        line({tie, style_.labelColor(), 0.5});
                    }
                    drawing_.add(Drawing::Icon{place.topLeft(), size, icon.name});
                    // The words stand in the flag, which is the upper part of the icon.
                    const double flagWidth = icon.name == u"alarmeGAZO2" ? 25 * letters_ : size.width();
                    drawing_.add(Drawing::Text{{place.left() + flagWidth / 2, place.bottom() - 9.5 * letters_},
                                               label.text,
                                               Qt::black,
                                               fontSize * letters_,
                                               Qt::AlignCenter});
                    return;
                }
            }
        }
    }

    const ProfileGeometry& geometry_;
    const ProfileStyle& style_;
    double letters_;
    double lineHeight_;
    Drawing drawing_;
    std::vector<QRectF> taken_;
    std::vector<QRectF> alarms_;
};

QString described(const ProfileDive& dive, const ProfileSummary& summary) {
    if (summary.samples == 0) {
        return text("Profil", "No profile");
    }
    const double minutes = (summary.samples - 1) * samplingInterval(dive.samplingRate) / 60.0;
    if (!std::isfinite(summary.average)) {
        return textWith("Profil", "Profile description without average", summary.samples, minutes, summary.maximum);
    }
    return textWith("Profil", "Profile description", summary.samples, minutes, summary.maximum, summary.average);
}

}  // namespace

Drawing profileDrawing(const ProfileGeometry& geometry, const ProfileDive& dive, const ProfileStyle& style,
                       double letters) {
    Drawing drawing = PictureMaker(geometry, style, letters).make();
    drawing.title = text("Profil", "Profile of the dive");
    drawing.description = described(dive, summaryOf(dive.series));
    drawing.table = sampleTable(std::make_shared<const ProfileSamples>(dive));
    return drawing;
}

Drawing profileDrawing(const ProfileDive& dive, const ProfileStyle& style) {
    return profileDrawing(profileGeometry(dive, style), dive, style);
}

}  // namespace tavrel
