#include "profile/profilegeometry.h"

#include "base/texts.h"
#include "profile/seriestext.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tavrel {

namespace {

using Space = ProfileSpace;
using LabelKind = ProfileGeometry::LabelKind;

/// More than any dive has; the depths of a damaged file do not make more.
constexpr int mostDepthTicks = 20000;
/// Lines at least so far above the bottom of the space reach all the way; those near the time axis leave room for its
/// label.
constexpr double longLineHeight = Space::base + 50;

class GeometryMaker {
public:
    GeometryMaker(const ProfileDive& dive, const ProfileStyle& style)
        : dive_(dive), style_(style), depths_(realsOf(dive.series.profilProfondeur)) {
        result_.scale = profileScale(dive);
    }

    ProfileGeometry make() {
        drawAxes();
        drawProfile();
        drawFlags();
        return std::move(result_);
    }

private:
    void label(LabelKind kind, const QString& text, double x, double y, const QColor& colour) {
        result_.labels.push_back({kind, text, {x, y}, colour});
    }

    void line(std::vector<ProfileGeometry::Stroke>& path, double x1, double y1, double x2, double y2) {
        path.push_back({{x1, y1}, {x2, y2}});
    }

    /// Calls with every position along the time axis and its number.
    template <class Draw>
    void alongTime(double step, Draw draw) {
        int number = 0;
        double position = 0;
        while (position < Space::width - 20) {
            draw(std::floor(position), number++);
            position += step;
        }
    }

    void drawAxes() {
        const QColor colour = style_.labelColor();
        const ProfileScale& scale = result_.scale;
        result_.axes.push_back(
            {{Space::left, Space::timeAxis}, {Space::right, Space::timeAxis}, {Space::width + 15, Space::base + 15}});
        result_.axes.push_back({{Space::left, Space::timeAxis}, {Space::left, Space::surface + 15}});
        label(LabelKind::axis, text("Profil", "Time min"), Space::width - 60, Space::base + 30, colour);
        label(LabelKind::axis, text("Profil", "Depth m"), 8, Space::surface + 20, colour);

        const double fiveMinutes = Space::width / scale.samples * samplesPerFiveMinutes(dive_.samplingRate);
        alongTime(fiveMinutes, [&](double position, int number) {
            const double x = Space::left + position;
            line(result_.ticks, x, Space::timeAxis, x, Space::base + 28);
            label(LabelKind::time, QString::number(5 * number), position + 25, Space::base, colour);
        });
        if (style_.xMinorTicks) {
            alongTime(fiveMinutes / 5, [&](double position, int) {
                const double x = Space::left + position;
                line(result_.ticks, x, Space::timeAxis, x, Space::base + 25);
            });
        }
        if (style_.yMinorTicks) {
            for (int depth = 0; depth < scale.deepest && depth < mostDepthTicks; ++depth) {
                line(result_.ticks, Space::left, scale.y(depth), 35, scale.y(depth));
            }
        }
        for (int depth = 0; depth < scale.deepest && depth < mostDepthTicks; depth += 5) {
            const double y = scale.y(depth);
            line(result_.ticks, Space::left, y, 38, y);
            label(LabelKind::depth, QString::number(depth), 8, y - 8, colour);
            if (style_.dashedLines) {
                line(result_.dashed, Space::left, y, y > longLineHeight ? Space::right : Space::width - 70, y);
            }
        }
    }

    void drawProfile() {
        const ProfileScale& scale = result_.scale;
        result_.profile.reserve(depths_.size() + 2);
        result_.profile.emplace_back(Space::left, Space::surface);
        for (std::size_t sample = 0; sample < depths_.size(); ++sample) {
            result_.profile.emplace_back(scale.x(static_cast<double>(sample)), scale.y(depths_[sample]));
        }
        result_.profile.emplace_back(Space::right, Space::surface);
        result_.surface = {{Space::left, Space::surface}, {Space::right, Space::surface}};
        if (style_.ppO2Line) {
            drawLimit();
        }
        drawPressure();
    }

    void drawLimit() {
        const ProfileScale& scale = result_.scale;
        const double limit = ppO2Limit(dive_.ppO2);
        // Ten metres of water to the bar, 1 bar at the surface.
        const double depth = (limit / (dive_.fracO2 / 100.0) - 1) * 10;
        if (!(scale.deepest + 1 > depth)) {
            return;
        }
        const double y = scale.y(depth);
        const bool isLong = y > longLineHeight;
        result_.limit = {{Space::left, y}, {isLong ? Space::right : Space::width - 70, y}};
        label(LabelKind::limit, textWith("Profil", "PpO2", limit), Space::width - (isLong ? 50 : 140),
              Space::surface - depth * (Space::height - 35) / scale.deepest, Qt::red);
    }

    void drawPressure() {
        const std::vector<double> pressures = drawnPressures(dive_);
        result_.pressure.reserve(pressures.size() + 1);
        result_.pressure.emplace_back(30, 80);
        for (std::size_t sample = 0; sample < pressures.size(); ++sample) {
            if (pressures[sample] > 0) {
                result_.pressure.emplace_back(result_.scale.x(static_cast<double>(sample)),
                                              20 + 60 * pressures[sample] / pressures.front());
            }
        }
        if (result_.pressure.size() > 1) {
            label(LabelKind::axis, text("Profil", "Gas bar"), 8, 88, style_.labelColor());
        }
    }

    void drawFlags() {
        const ProfileSeries& series = dive_.series;
        const auto count = depths_.size();
        // What decides over the surface excursions is the number of the slow-down flags.
        const bool ascents = series.ASC_Flag.size() == count;
        const bool slows = series.SLOW_Flag.size() == count;
        const bool ceilings = series.CEIL_Flag.size() == count;
        const bool gases = series.GAZ_Flag.size() == count;
        for (std::size_t sample = 0; sample < count; ++sample) {
            if (ascents && series.ASC_Flag.integer(sample) == 1) {
                icon("alarmeASC", sample, 26, -8);
            }
            if (slows && series.SLOW_Flag.integer(sample) == 1) {
                icon("alarmeSLOW", sample, 23, 0);
            }
            if (ceilings && series.CEIL_Flag.integer(sample) == 1) {
                icon("alarmeCEIL", sample, 23, 0);
            }
            if (slows && sample >= 1 && sample + 1 < count && sample < series.SURF_Flag.size() &&
                series.SURF_Flag.integer(sample) == 1) {
                drawExcursion(sample);
            }
            if (gases) {
                drawGasSwitch(sample, series.GAZ_Flag.integer(sample));
            }
        }
    }

    void icon(const char* name, std::size_t sample, double dx, double dy, int itsLabel = -1) {
        const auto position = static_cast<double>(sample) * result_.scale.step();
        result_.icons.push_back({QString::fromLatin1(name),
                                 {position + dx, result_.scale.y(depths_[sample]) + dy},
                                 static_cast<int>(sample),
                                 itsLabel});
    }

    void drawExcursion(std::size_t sample) {
        const ProfileScale& scale = result_.scale;
        const double before = scale.x(static_cast<double>(sample) - 1);
        const double here = scale.x(static_cast<double>(sample));
        result_.surfaceExcursions.push_back({{before, scale.y(depths_[sample - 1]) + 1},
                                             {(before + here) / 2, Space::surface - 1},
                                             {here, scale.y(depths_[sample]) + 1}});
    }

    void gasIcon(const char* name, std::size_t sample, double dx, const QString& words, double labelDx,
                 double labelDy) {
        const auto position = static_cast<double>(sample) * result_.scale.step();
        icon(name, sample, dx, 0, static_cast<int>(result_.labels.size()));
        label(LabelKind::gas, words, position + labelDx, result_.scale.y(depths_[sample]) + labelDy,
              style_.labelColor());
    }

    void drawGasSwitch(std::size_t sample, qint32 gas) {
        if (gas == 1) {
            gasIcon("alarmeGAZ", sample, -27, text("Profil", "Bottom gas"), -12, 14);
        } else if (gas >= 2 && gas <= 7) {
            const qint32 oxygen = dive_.ean[static_cast<std::size_t>(gas - 2)];
            if (oxygen < 98) {
                gasIcon("alarmeGAZ", sample, -27, QStringLiteral("EAN%1").arg(oxygen), -25, 14);
            } else {
                gasIcon("alarmeGAZO2", sample, 0, text("Profil", "O2"), 3, 18);
            }
        }
    }

    const ProfileDive& dive_;
    const ProfileStyle& style_;
    std::vector<double> depths_;
    ProfileGeometry result_;
};

}  // namespace

float ppO2Limit(qint32 code) {
    static constexpr std::array<float, 5> limits{0.0F, 1.2F, 1.3F, 1.4F, 1.5F};
    return code >= 0 && code < 5 ? limits[static_cast<std::size_t>(code)] : 1.6F;
}

ProfileScale profileScale(const ProfileDive& dive) {
    double greatest = 0;
    for (const double depth : realsOf(dive.series.profilProfondeur)) {
        greatest = depth > greatest ? depth : greatest;
    }
    return {std::max(dive.samples(), 1), greatest + 1.0};
}

std::vector<double> drawnPressures(const ProfileDive& dive) {
    const Series& recorded = dive.series.PRESS_Data;
    if (recorded.size() != 1) {
        return realsOf(recorded);
    }
    std::vector<double> substitute = realsOf(dive.series.CEIL_Flag);
    if (!substitute.empty()) {
        substitute.front() = dive.pressDepart;
        substitute.back() = dive.pressFin;
    }
    return substitute;
}

ProfileGeometry profileGeometry(const ProfileDive& dive, const ProfileStyle& style) {
    return GeometryMaker(dive, style).make();
}

}  // namespace tavrel
