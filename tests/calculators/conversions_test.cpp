#include "calculators/conversions.h"

#include <gtest/gtest.h>

namespace tavrel {

namespace {

double converted(const char* from, double value, const char* to) {
    const FoundUnit source = conversionUnit(QString::fromLatin1(from));
    const FoundUnit target = conversionUnit(QString::fromLatin1(to));
    EXPECT_EQ(source.tab, target.tab);
    return source.tab->convert(source.tab->units[source.position].tag, value)[target.position];
}

TEST(Conversions, followTheWorkedExamples) {
    struct Case {
        const char* from;
        double value;
        const char* to;
        double result, tolerance;
    };
    const Case cases[] = {
        {"bar", 200, "psi", 2900.754, 1e-9},
        {"psi", 3000, "bar", 206.8427, 1e-4},
        {"litres", 12, "cubicFeet", 0.423774, 1e-6},
        {"litres", 12, "cubicInches", 732.288, 1e-9},
        {"cubicInches", 732.288, "litres", 11.99998, 1e-6},
        {"cubicFeet", 2, "cubicInches", 3455.944, 1e-9},
        {"metres", 30, "feet", 98.42500, 1e-4},
        {"feet", 100, "metres", 30.48006, 1e-9},
        {"pounds", 10, "kilograms", 4.535924, 1e-9},
        {"celsius", -40, "fahrenheit", -40, 1e-9},
        {"celsius", -40, "kelvin", 233.15, 1e-9},
        {"fahrenheit", 212, "kelvin", 373.15, 1e-9},
        {"kelvin", 0, "celsius", -273.15, 1e-9},
        {"kelvin", 0, "fahrenheit", -459.67, 1e-9},
    };
    for (const Case& it : cases) {
        EXPECT_NEAR(converted(it.from, it.value, it.to), it.result, it.tolerance) << it.from << " to " << it.to;
    }
    EXPECT_FALSE(conversionUnit(QStringLiteral("fathoms")).tab);
}

TEST(Conversions, comeBackWithinTheirFactorsOwnAsymmetry) {
    for (const ConversionTab& tab : conversionTabs()) {
        // 61.024 against 61.0241, and 28.317 against 1727.972 / 61.0241.
        const double tolerance = QLatin1StringView(tab.identifier) == QLatin1StringView("volume") ? 3e-5 : 1e-14;
        for (std::size_t from = 0; from < tab.units.size(); ++from) {
            const std::vector<double> there = tab.convert(tab.units[from].tag, 123.4);
            ASSERT_EQ(there.size(), tab.units.size());
            EXPECT_EQ(there[from], 123.4);
            for (std::size_t to = 0; to < tab.units.size(); ++to) {
                const double back = tab.convert(tab.units[to].tag, there[to])[from];
                EXPECT_NEAR(back, 123.4, 123.4 * tolerance + 1e-12)
                    << tab.units[from].name << ' ' << tab.units[to].name;
            }
        }
    }
    EXPECT_NE(converted("cubicInches", converted("litres", 12, "cubicInches"), "litres"), 12);
}

}  // namespace

}  // namespace tavrel
