#include "interchange/standard/resampling.h"
#include "interchange/standard/sourcereading.h"
#include "interchange/standard/uddfwriting.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Reads arbitrary bytes as a file with dives, whatever it is, and writes what was found as UDDF, which has to come back
// with as many dives.

namespace {

using namespace tavrel;

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void requireSane(const Plongee& dive) {
    require(std::isfinite(dive.profondeur) && dive.profondeur >= 0);
    require(dive.o2Mix >= 1 && dive.o2Mix <= 100 && dive.heMix >= 0 && dive.o2Mix + dive.heMix <= 100);
    require(dive.profilProfondeur.size() <= mostSamples);
    for (const Series* flags : {&dive.ASC_Flag, &dive.SLOW_Flag, &dive.SURF_Flag, &dive.CEIL_Flag, &dive.GAZ_Flag}) {
        require(!dive.hasProfile() || flags->size() == dive.profilProfondeur.size());
    }
    for (std::size_t sample = 0; sample < dive.profilProfondeur.size(); ++sample) {
        require(std::isfinite(dive.profilProfondeur.real(sample)));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const auto source = readSource(bytes);
    if (!source || source->kind == SourceKind::logbook || source->kind == SourceKind::table) {
        return 0;
    }
    RecordList dives;
    for (const FoundDive& found : source->found.dives) {
        requireSane(found.dive);
        dives.push_back(std::make_shared<const Plongee>(found.dive));
    }
    const auto written = writeUddf(dives, {});
    require(written.has_value());
    const auto again = readSource(*written);
    require(again && again->found.dives.size() == dives.size());
    return 0;
}
