#pragma once

#include "profile/profiledive.h"
#include "profile/profilestyle.h"

#include <QPointF>
#include <QString>

#include <vector>

namespace tavrel {

/// The fixed space of the profile's picture, points, y growing upward.
struct ProfileSpace {
    static constexpr double width = 660;
    static constexpr double height = 460;
    static constexpr double base = 123;       ///< below the time axis
    static constexpr double left = 30;        ///< the depth axis
    static constexpr double right = 680;      ///< the end of the time axis
    static constexpr double surface = 583;    ///< depth 0
    static constexpr double timeAxis = 143;   ///< the height of the time axis
    static constexpr double fullWidth = 700;  ///< of the picture, with what stands beside the axes
    static constexpr double fullHeight = 625;
};

/// Where samples and depths stand.
struct ProfileScale {
    int samples = 1;
    double deepest = 1;  ///< metres: the greatest depth and one

    double step() const { return (ProfileSpace::width - 10) / samples; }
    double x(double sample) const { return ProfileSpace::left + sample * (ProfileSpace::width - 10) / samples; }
    double y(double depth) const { return ProfileSpace::surface - depth * (ProfileSpace::height - 30) / deepest; }
};

/// Everything that a profile's picture shows, as figures in its fixed space. Where labels or icons come to stand on
/// each other or out of view, these are still the figures; the picture sorts it out.
struct ProfileGeometry {
    using Stroke = std::vector<QPointF>;
    enum class LabelKind { axis, time, depth, limit, gas };
    struct Label {
        LabelKind kind;
        QString text;
        QPointF at;  ///< lower left corner
        QColor colour;
    };
    struct Icon {
        QString name;
        QPointF at;      ///< lower left corner
        int sample = 0;  ///< what it marks
        int label = -1;  ///< its own among the labels
    };

    ProfileScale scale;
    std::vector<Stroke> axes;
    std::vector<Stroke> ticks;
    std::vector<Stroke> dashed;
    Stroke profile;
    Stroke surface;
    std::vector<Stroke> surfaceExcursions;
    Stroke pressure;
    Stroke limit;  ///< empty when it is not drawn
    std::vector<Label> labels;
    std::vector<Icon> icons;
};

ProfileGeometry profileGeometry(const ProfileDive& dive, const ProfileStyle& style);

/// The scale alone.
ProfileScale profileScale(const ProfileDive& dive);

/// The pressures that are drawn: those recorded, or where there is but one, the ceiling flags with the main tank's
/// start pressure as their first element and its end pressure as their last.
std::vector<double> drawnPressures(const ProfileDive& dive);

}  // namespace tavrel
