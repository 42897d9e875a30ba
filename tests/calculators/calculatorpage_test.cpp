#include "calculators/calculatorpage.h"

#include "support/printing.h"

#include <limits>

namespace tavrel {

namespace {

TEST(CalculatorPages, showEveryResult) {
    const double extremes[] = {
        0, 1, 16, -5, 1e300, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()};
    for (const CalculatorPage& page : calculatorPages()) {
        const char* where = calculator(page.id).command;
        EXPECT_FALSE(formulaLine(page).contains(u"error") || rowLegend(page).contains(u"error")) << where;
        for (const double value : extremes) {
            const CalculatorResult result = page.evaluate(std::vector<double>(page.inputs.size(), value));
            EXPECT_FALSE(result.text.isEmpty() || result.text.contains(u"error")) << where << ' ' << value;
            EXPECT_EQ(result.rows.size(), page.rowFieldLetter ? 11U : 0U) << where;
            for (const CalculatorRow& row : result.rows) {
                EXPECT_FALSE(row.text.contains(u"error")) << where;
            }
        }
    }
    setTextLanguage(QStringLiteral("fr"));
    EXPECT_EQ(calculatorPage(CalculatorId::BestTrimix)->evaluate(std::vector{60.0, 30.0, 1.4}).text,
              u"Meilleur trimix : 20.0 % O₂, 34.9 % He");
}

}  // namespace

}  // namespace tavrel
