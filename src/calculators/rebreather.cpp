#include "calculators/rebreather.h"

#include "calculators/divingconstants.h"

#include <limits>

namespace tavrel {

namespace {

// Toward zero; what does not fit, not-a-number included, is the smallest integer.
qint32 truncated(double value) {
    constexpr double below = -2147483649.0;
    constexpr double above = 2147483648.0;
    return value > below && value < above ? static_cast<qint32>(value) : std::numeric_limits<qint32>::min();
}

}  // namespace

SodaTime sodaTime(double weight, double capacity, double production) {
    const double duration = weight * capacity / production;
    const qint32 hours = truncated(duration / 60);
    return {hours, truncated(duration - hours * 60.0)};
}

double breathedFraction(double supplyOxygen, double flow, double consumption) {
    return (flow * (supplyOxygen / 100) - consumption) / (flow - consumption) * 100;
}

double idealFlow(double supplyOxygen, double consumption, double wantedOxygen) {
    const double wanted = wantedOxygen / 100;
    return consumption * (1 - wanted) / (supplyOxygen / 100 - wanted);
}

RowColour breathedFractionColour(double percent) {
    if (percent < airOxygenPercent) {
        return RowColour::Red;
    }
    return percent >= airOxygenPercent ? RowColour::Black : RowColour::Unchanged;
}

RowColour idealFlowColour(double flow) {
    if (flow < lowestSupplyFlow || flow > highestSupplyFlow) {
        return RowColour::Red;
    }
    return flow >= lowestSupplyFlow && flow < highestSupplyFlow ? RowColour::Black : RowColour::Unchanged;
}

}  // namespace tavrel
