#pragma once

#include "interchange/standard/founddive.h"
#include "interchange/standard/uddfdocument.h"
#include "interchange/standard/uddfprofile.h"

#include <string>
#include <vector>

namespace tavrel {

/// Where a tank of the file goes.
enum class TankRole { unknown, first, second, stage, bailout };

/// A tank as the data of a dive and the linked piece of equipment tell it.
struct UddfTank {
    std::string mix;                 ///< the id of its gas; empty when unknown
    std::vector<std::string> names;  ///< ids that pressures of waypoints may refer to
    QString title;                   ///< of the linked piece of equipment
    TankRole role = TankRole::unknown;
    bool piece = false;   ///< whether it is a linked piece of equipment
    qint32 volume = 0;    ///< litres
    qint32 full = 0;      ///< bar
    qint32 start = 0;     ///< bar
    qint32 end = 0;       ///< bar
    qint32 material = 0;  ///< as Plongee::alliageBloc
};

/// The pressures that waypoints give under one of the names; null for none.
const std::vector<TimedValue>* pressuresOf(const UddfProfile& profile, const std::vector<std::string>& names);

/// The tanks of a dive, which comes as its parts, with those that it only links, by their ids. Names what they hold
/// beyond that.
std::vector<UddfTank> readUddfTanks(const UddfDocument& document, const std::vector<XmlElement>& parts,
                                    const std::vector<std::string>& pieces, const UddfProfile& profile,
                                    FoundDive& found);

}  // namespace tavrel
