#include "interchange/standard/csvtext.h"
#include "interchange/standard/divedifference.h"
#include "interchange/standard/tablereading.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Reads arbitrary bytes as a table of dives; written as a table again, they have to come back as they were.

namespace {

using namespace tavrel;

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto table = readTable(QByteArrayView(data, static_cast<qsizetype>(size)));
    if (!table) {
        return 0;
    }
    require(table->found.dives.empty() || holdsDay(table->columns));
    RecordList dives;
    for (const FoundDive& found : table->found.dives) {
        dives.push_back(std::make_shared<const Plongee>(found.dive));
    }
    const auto written = writeCsv(dives);
    require(written.has_value());
    const auto again = readTable(*written);
    require(again && again->found.dives.size() == dives.size());
    for (std::size_t index = 0; index < dives.size(); ++index) {
        require(differingFields(asDive(dives[index]), again->found.dives[index].dive).empty());
    }
    return 0;
}
