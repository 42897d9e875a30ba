#pragma once

#include "desktop/setting.h"

namespace tavrel::settings {

// How the profile is drawn. Opacities go from 0 to 1.

inline constexpr Setting<QColor> plotColor{"plot color", Rgb{1, 0, 0}, Rgb{1, 0.5F, 0}};
inline constexpr Setting<QColor> backgroundColor{"background color", grey(0.5F), Rgb{0.855F, 0.49F, 0.149F}};
inline constexpr Setting<double> alphaBackgroundColor{"alpha background color", 0.5, 0.2};
inline constexpr Setting<bool> fillPlot{"fill plot", true, true};
inline constexpr Setting<QColor> fillColor{"fill color", Rgb{0, 0, 1}, Rgb{0.1F, 0.1F, 1}};
inline constexpr Setting<double> alphaFillColor{"alpha fill color", 0.5, 0.4};
inline constexpr Setting<bool> gradientYes{"gradient yes", {}, true};
inline constexpr Setting<QColor> gradientLinesColor{"gradient lines color", {}, Rgb{0.702F, 0.702F, 0.702F}};
inline constexpr Setting<bool> xMinorTicks{"x minor ticks", true, true};
inline constexpr Setting<bool> yMinorTicks{"y minor ticks", true, true};
inline constexpr Setting<bool> dashedLines{"dashed lines", {}, true};
/// The line of the oxygen's partial pressure.
inline constexpr Setting<bool> ppO2Line{"ppO2 line", {}, false};
/// A shadow below the curves.
inline constexpr Setting<bool> profileShadow{"profile shadow", {}, false};

}  // namespace tavrel::settings
