#include "records/date.h"

#include "support/printing.h"

#include <limits>

namespace tavrel {

namespace {

constexpr double day = 86400;

TEST(Date, givesItsIsoTextInAnyYear) {
    const std::pair<double, const char*> cases[] = {
        {0, "2001-01-01T00:00:00Z"},
        {736182000, "2024-04-30T15:00:00Z"},
        {-0.25, "2000-12-31T23:59:59.75Z"},
        {0.1, "2001-01-01T00:00:00.1Z"},
        {59 * day - 1, "2001-02-28T23:59:59Z"},
        // Five times 146,097 days from the year 0 to 2000, which has 366.
        {-730851 * day, "0000-01-01T00:00:00Z"},
        {-730851 * day - 1, "-000001-12-31T23:59:59Z"},
        {2921574 * day - 0.5, "9999-12-31T23:59:59.5Z"},
        {2921574 * day, "+010000-01-01T00:00:00Z"},
        {1e15, "1e+15"},
        {std::numeric_limits<double>::infinity(), "inf"},
    };
    for (const auto& [seconds, iso] : cases) {
        EXPECT_EQ(Date(seconds).toIso(), QLatin1String(iso)) << iso;
    }
    EXPECT_EQ(Date().toIso(), QString());
}

}  // namespace

}  // namespace tavrel
