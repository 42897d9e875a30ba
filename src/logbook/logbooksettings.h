#pragma once

#include "desktop/setting.h"

namespace tavrel::settings {

// What a new dive starts with.

/// In litres.
inline constexpr Setting<qint32> tankVolume{"tank volume", {}, 15};
/// In bar.
inline constexpr Setting<qint32> tankPressure{"tank pressure", {}, 230};
/// The spacing of decompression stops in metres. Its default is registered under another spelling, "stop_interval", so
/// it reads 0 until the preferences were saved once.
inline constexpr Setting<qint32> stopInterval{"stop interval", {}, 3};
/// Gradient factors in percent.
inline constexpr Setting<qint32> lowGF{"low GF", {}, 0};
inline constexpr Setting<qint32> highGF{"high GF", {}, 0};
// The diver's own dive computer; no window sets it.
inline constexpr Setting<QString> fabricant{"fabricant"};
inline constexpr Setting<QString> ordinateur{"ordinateur"};
inline constexpr Setting<QString> serie{"serie"};

/// A new dive takes tanks, gas, equipment, buddies and place from the last, and its surface interval is worked out.
inline constexpr Setting<bool> newDiveFromLast{"new dive from last", false, false};

// What the table's cells say and how they are coloured.

inline constexpr Setting<bool> displayUnits{"display units", true, true};
inline constexpr Setting<bool> depthTimeInColor{"depth time in color", true, true};
inline constexpr Setting<QColor> depthColor{"depth color", Rgb{0, 0, 1}, Rgb{0.5F, 0, 0.5F}};
inline constexpr Setting<QColor> timeColor{"time color", Rgb{0, 0, 1}, Rgb{0, 0, 0.6F}};
inline constexpr Setting<bool> colorItem{"color item", false, false};
inline constexpr Setting<QString> colouredText{"coloured text", "", ""};
/// The column that the coloured text is looked for in: 0 place, 1 site, any other visibility.
inline constexpr Setting<qint32> colouredTheme{"coloured theme", 0, 0};
inline constexpr Setting<bool> lowTemperatureInColor{"low temperature in color", false, false};
/// Whole degrees in the user's units.
inline constexpr Setting<qint32> lowTemperatureValue{"low temperature value"};
inline constexpr Setting<QColor> lowTemperatureColor{"low temperature color", Rgb{0, 0, 1}, Rgb{0, 0, 1}};
inline constexpr Setting<bool> mixInColor{"mix in color", {}, true};
inline constexpr Setting<bool> foreignInColor{"foreign in color", {}, true};
inline constexpr Setting<QColor> foreignColor{"foreign color", {}, Rgb{0.725F, 1, 0.674F}};
/// No window sets it.
inline constexpr Setting<bool> nocturnesInColor{"nocturnes in color"};

// Which columns the table shows. The wreck column's key is spelled with an underscore.

inline constexpr Setting<bool> columnNumero{"column numero", {}, true};
inline constexpr Setting<bool> columnDate{"column date", {}, true};
inline constexpr Setting<bool> columnLieu{"column lieu", {}, true};
inline constexpr Setting<bool> columnSite{"column site", {}, true};
inline constexpr Setting<bool> columnHeure{"column heure", {}, true};
inline constexpr Setting<bool> columnProfondeur{"column profondeur", {}, true};
inline constexpr Setting<bool> columnTemps{"column temps", {}, true};
inline constexpr Setting<bool> columnTempEau{"column temp eau", {}, true};
inline constexpr Setting<bool> columnDeco{"column deco", {}, true};
inline constexpr Setting<bool> columnCoeff{"column coeff", {}, true};
inline constexpr Setting<bool> columnVisibilite{"column visibilite", {}, true};
inline constexpr Setting<bool> columnEpave{"column_epave"};
inline constexpr Setting<bool> columnInoubliable{"column inoubliable", {}, true};
inline constexpr Setting<bool> columnGaz{"column gaz", {}, false};
inline constexpr Setting<bool> columnScaph{"column scaph", {}, false};

}  // namespace tavrel::settings
