#include "profile/profilestyle.h"

#include "desktop/preferences.h"
#include "drawing/drawing.h"
#include "profile/profilesettings.h"

namespace tavrel {

namespace {

QColor withOpacity(QColor colour, double opacity) {
    colour.setAlphaF(static_cast<float>(qBound(0.0, opacity, 1.0)));
    return colour;
}

}  // namespace

ProfileStyle ProfileStyle::read(const Preferences& preferences) {
    const auto colour = [&](const Setting<QColor>& setting) {
        const QColor chosen = preferences.get(setting);
        return chosen.isValid() ? chosen : QColor(Qt::black);
    };
    ProfileStyle style;
    style.plotColor = colour(settings::plotColor);
    style.backgroundColor = colour(settings::backgroundColor);
    style.alphaBackground = preferences.get(settings::alphaBackgroundColor);
    style.fillPlot = preferences.get(settings::fillPlot);
    style.fillColor = colour(settings::fillColor);
    style.alphaFill = preferences.get(settings::alphaFillColor);
    style.gradientYes = preferences.get(settings::gradientYes);
    style.gradientLinesColor = colour(settings::gradientLinesColor);
    style.xMinorTicks = preferences.get(settings::xMinorTicks);
    style.yMinorTicks = preferences.get(settings::yMinorTicks);
    style.dashedLines = preferences.get(settings::dashedLines);
    style.ppO2Line = preferences.get(settings::ppO2Line);
    style.shadow = preferences.get(settings::profileShadow);
    return style;
}

QColor ProfileStyle::paper() const {
    return blended(withOpacity(backgroundColor, alphaBackground), Qt::white);
}

QColor ProfileStyle::fill() const {
    return withOpacity(fillColor, alphaFill);
}

}  // namespace tavrel
