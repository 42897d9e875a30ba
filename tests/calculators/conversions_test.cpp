#include "calculators/conversions.h"

#include <gtest/gtest.h>

namespace tavrel {

namespace {

TEST(Conversions, followTheWorkedExamples) {
    const std::tuple<const char*, double, const char*, double, double> cases[] = {
        {"bar", 200, "psi", 2900.754, 1e-9},
        {"psi", 3000, "bar", 206.8427, 1e-4},
        {"litres", 12, "cubicFeet", 0.423774, 1e-6},
        {"litres", 12, "cubicInches", 732.288, 1e-9},
        {"cubicInches", 732.288, "litres", 11.99998, 1e-6},
        {"cubicFeet", 2, "cubicInches", 3455.944, 1e-9},
        {"cubicInches", 3455.944, "cubicFeet", 2, 1e-9},
        {"cubicFeet", 2, "litres", 56.634, 1e-9},
        {"metres", 30, "feet", 98.42500, 1e-4},
        {"feet", 100, "metres", 30.48006, 1e-9},
        {"pounds", 10, "kilograms", 4.535924, 1e-9},
        {"kilograms", 4.535924, "pounds", 10, 1e-9},
        {"celsius", -40, "celsius", -40, 0},
        {"celsius", -40, "fahrenheit", -40, 1e-9},
        {"celsius", -40, "kelvin", 233.15, 1e-9},
        {"fahrenheit", 212, "celsius", 100, 1e-9},
        {"fahrenheit", 212, "kelvin", 373.15, 1e-9},
        {"kelvin", 0, "celsius", -273.15, 1e-9},
        {"kelvin", 0, "fahrenheit", -459.67, 1e-9},
    };
    for (const auto& [from, value, to, result, tolerance] : cases) {
        EXPECT_NEAR(inUnit(to, from, value), result, tolerance) << from << " to " << to;
    }
    EXPECT_FALSE(conversionUnit(QStringLiteral("fathoms")).tab);
}

}  // namespace

}  // namespace tavrel
