#include "interchange/logbookunits.h"

#include "desktop/commonsettings.h"
#include "logbook/unitconversion.h"

namespace tavrel {

void toLogbookUnits(const Preferences& preferences, FoundDives& found) {
    if (found.asStored || !preferences.get(settings::usUnits)) {
        return;
    }
    for (FoundDive& it : found.dives) {
        it.dive = convertedDive(it.dive, UnitSystem::us);
    }
    found.asStored = true;
}

RecordList inFileUnits(const Preferences& preferences, const RecordList& dives) {
    // Of a millimetre, so that hundredths of a foot come back.
    constexpr double tenthsOfMillimetres = 10'000;
    RecordList converted = dives;
    if (preferences.get(settings::usUnits)) {
        for (RecordPointer& dive : converted) {
            dive =
                std::make_shared<const Plongee>(convertedDive(asDive(dive), UnitSystem::metric, tenthsOfMillimetres));
        }
    }
    return converted;
}

}  // namespace tavrel
