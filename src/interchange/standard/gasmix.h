#pragma once

#include <QString>

namespace tavrel {

/// A breathing gas in whole percent, as a dive holds it.
struct GasMix {
    qint32 oxygen = 21;
    qint32 helium = 0;
    qint32 kind = 0;  ///< as Plongee::gaz: 0 air, 1 nitrox, 2 trimix, 3 heliox, 4 triox, 5 heliair

    bool operator==(const GasMix&) const = default;
};

/// The gas of an oxygen and a helium share, fractions of 1 (what is above 1 is percent); its name decides where the
/// shares allow more than one kind.
GasMix gasMix(double oxygen, double helium, const QString& name = {});
/// The gas that a name tells: "EAN32", "Nitrox 36", "Tx 18/45", "Heliox 21/79", "air", "oxygen". Air when it tells
/// none.
GasMix gasMixNamed(const QString& name);

/// What the gas is called in a file: "Air", "EAN32", "Trimix 18/45", "Heliox 10/90", "Triox 25/25", "Heliair 15/30".
QString gasName(const GasMix& mix);

}  // namespace tavrel
