#pragma once

#include "desktop/setting.h"

namespace tavrel::settings {

// Settings that several rooms read.

/// Depths in feet, temperatures in degrees Fahrenheit.
inline constexpr Setting<bool> usUnits{"us units", {}, false};
/// Of the user's home: new dives get it, and dives elsewhere are abroad.
inline constexpr Setting<QString> countryCode{"country code", {}, "FRA"};
/// How long an oxygen cell of a rebreather lasts, in months.
inline constexpr Setting<qint32> cellLife{"cell life", {}, 18};

}  // namespace tavrel::settings
