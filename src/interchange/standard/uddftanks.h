#pragma once

#include "interchange/standard/founddive.h"
#include "interchange/standard/uddfdocument.h"
#include "interchange/standard/uddfprofile.h"

namespace tavrel {

/// Gives a dive its tanks and gases: the gas breathed at the greatest depth and its tank as the first, another bottom
/// gas as the second, gases of the ascent as stage bottles with the gases of the stops, and with a rebreather oxygen
/// first, the diluent second and the rest as bail-outs. Marks the gas switches in the profile. The mix of an id that a
/// dive names outside its tanks is `namedMix`. The dive comes as its parts, the dive itself last.
void giveUddfTanks(const UddfDocument& document, const std::vector<XmlElement>& parts, const UddfProfile& profile,
                   const std::string& namedMix, const std::optional<Resampled>& samples, FoundDive& found);

}  // namespace tavrel
