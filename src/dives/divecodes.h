#pragma once

#include <QtGlobal>

// The codes that a dive's fields hold, named once. Records, files and preferences keep the numbers. A field may hold a
// number that is named here for nothing: whoever reads it says what shows then.
namespace tavrel {

/// A temperature that was not given; at once the lowest air temperature that the form takes.
inline constexpr qint32 temperatureNotGiven = -50;

/// Gas of a tank.
struct Gas {
    enum Code : qint32 { air, nitrox, trimix, heliox, triox, heliair };
};

/// Breathing apparatus.
struct Apparatus {
    enum Code : qint32 { openCircuit, semiClosed, manualClosed, electronicClosed, hybridClosed };
    static constexpr bool isClosed(qint32 code) { return code >= manualClosed && code <= hybridClosed; }
};

struct Tide {
    enum Code : qint32 { none, high, low };
};

/// Datum of a position; any other code is an unknown one.
struct Datum {
    enum Code : qint32 { ed50, wgs84, unknown };
};

struct Weather {
    enum Code : qint32 { clear, cloudy, foggy, rainy, hail, snowy, thundery, notGiven };
};

/// Sector the wind blows from.
struct WindSector {
    enum Code : qint32 { notGiven, north, northEast, east, southEast, south, southWest, west, northWest };
};

struct Current {
    enum Code : qint32 { none, weak, moderate, strong, veryStrong, violent, notGiven };
};

/// The best of all came last and has the highest code.
struct Visibility {
    enum Code : qint32 { excellent, veryGood, good, medium, bad, veryBad, execrable, notGiven, exceptional };
};

/// Kind of dive; 2 means nothing.
struct DiveKind {
    enum Code : qint32 {
        wreck = 0,
        recreational = 1,
        photo = 3,
        tek = 4,
        cave = 5,
        movies = 6,
        work = 7,
        other = 8,
        drift = 9,
        underIce = 10,
        training = 11,
        biology = 12,
        quarry = 13,
        recuperation = 14,
    };
};

/// The diver's overall rating.
struct Rating {
    enum Code : qint32 { none, unforgettable, good, poor, neverAgain };
};

struct DecoMethod {
    enum Code : qint32 { computer, airTables, nitroxTables, runTime };
};

struct TankMaterial {
    enum Code : qint32 { aluminium, carbon, steel };
};

struct Suit {
    enum Code : qint32 { wet, dry, shorty, none, semiDry, tShirt, tropical };
};

struct Configuration {
    enum Code : qint32 { noTek, tek };
};

/// Oxygen set point of a rebreather.
struct SetPoint {
    /// Tenths of a bar: codes 1 to 5 rise from 12 to 16, 6 to 10 fall from 11 to 7; 0 for a code that is none.
    static constexpr int tenthsOfBar(qint32 code) {
        return code < 1 || code > 10 ? 0 : code <= 5 ? 11 + code : 17 - code;
    }
};

/// Percent of oxygen from which a gas counts as nitrox.
inline constexpr qint32 leastNitrox = 22;

}  // namespace tavrel
