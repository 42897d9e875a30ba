#pragma once

#include <QString>

#include <optional>

namespace tavrel {

/// Degrees, positive to the north and to the east.
struct Position {
    double latitude = 0;
    double longitude = 0;
};

/// The position that a text gives, in the ways divers write one: "N 43° 12.345' E 005° 23.456'", "43°12'20.7\"N
/// 5°23'27.4\"E", "43.20575, 5.39093", "-8.5 115.25". Nothing where it is none, and for 0, 0, which stands for none.
std::optional<Position> positionOf(const QString& text);

/// As degrees and minutes with three decimals, less than two metres apart: "N 43° 12.345'  E 005° 23.456'".
QString positionText(const Position& position);

}  // namespace tavrel
