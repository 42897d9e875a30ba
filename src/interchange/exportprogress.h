#pragma once

#include "logbook/carnet.h"

namespace tavrel {

/// Writes every dive of a logbook, telling the logbook's progress; fails when that cancels.
template <class Write>
Expected<void> forEachDive(const Carnet& carnet, Write write) {
    constexpr std::size_t divesPerProgress = 32;
    const auto& dives = carnet.records();
    for (std::size_t index = 0; index < dives.size(); ++index) {
        if (index % divesPerProgress == 0 && carnet.progress() && !carnet.progress()(index, dives.size())) {
            return failure(text("Main", "Cancelled"));
        }
        if (Expected<void> written = write(static_cast<const Plongee&>(*dives[index])); !written) {
            return written;
        }
    }
    return {};
}

}  // namespace tavrel
