#pragma once

#include "interchange/standard/founddive.h"
#include "interchange/standard/uddfdocument.h"
#include "interchange/standard/uddfprofile.h"

#include <string>
#include <vector>

namespace tavrel {

/// What a dive links outside its tanks that they need.
struct UddfEquipment {
    std::string mix;                 ///< the id of its gas
    std::vector<std::string> tanks;  ///< ids of pieces of equipment
};

/// Gives a dive its tanks and gases: the gas breathed at the greatest depth and its tank as the first, another bottom
/// gas as the second, gases of the ascent as stage bottles with the gases of the stops, and with a rebreather oxygen
/// first, the diluent second and the rest as bail-outs. The gas of a stage that no switch names goes to a free stop.
/// Marks the gas switches in the profile, those to tanks as to their gases. The dive comes as its parts, the dive
/// itself last.
void giveUddfTanks(const UddfDocument& document, const std::vector<XmlElement>& parts, UddfProfile& profile,
                   const UddfEquipment& equipment, const std::optional<Resampled>& samples, FoundDive& found);

}  // namespace tavrel
