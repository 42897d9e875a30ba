#pragma once

#include "calculators/ui/calculatorwindow.h"
#include "desktop/ui/bringtofront.h"

namespace tavrel {

/// The three trimix pages.
class TrimixController : public CalculatorWindow {
    Q_OBJECT

public:
    using CalculatorWindow::CalculatorWindow;

    void calcEAD_END() { calculate(CalculatorId::TrimixEadEnd); }
    void profMin() { calculate(CalculatorId::TrimixProfMin); }
    void calcBestTx() { calculate(CalculatorId::BestTrimix); }
    /// Brings the page's window to the front.
    void showWin() { bringToFront(this); }
};

}  // namespace tavrel
