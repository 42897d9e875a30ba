#pragma once

#include <QColor>

namespace tavrel {

class Preferences;

/// How a profile is drawn, read from the user's settings.
struct ProfileStyle {
    QColor plotColor = Qt::red;
    QColor backgroundColor = Qt::gray;
    double alphaBackground = 0.5;
    bool fillPlot = true;
    QColor fillColor = Qt::blue;
    double alphaFill = 0.5;
    bool gradientYes = false;
    QColor gradientLinesColor = Qt::black;  ///< of ticks and dashed lines; of labels too when gradientYes
    bool xMinorTicks = true;
    bool yMinorTicks = true;
    bool dashedLines = false;
    bool ppO2Line = false;
    bool shadow = false;

    /// A colour that was never chosen is black.
    static ProfileStyle read(const Preferences& preferences);

    QColor labelColor() const { return gradientYes ? gradientLinesColor : QColor(Qt::black); }
    /// What the background looks like on white.
    QColor paper() const;
    /// The fill with its opacity.
    QColor fill() const;
};

}  // namespace tavrel
