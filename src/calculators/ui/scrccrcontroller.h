#pragma once

#include "calculators/ui/calculatorwindow.h"

namespace tavrel {

/// The three rebreather pages.
class SCRCCRController : public CalculatorWindow {
    Q_OBJECT

public:
    using CalculatorWindow::CalculatorWindow;

    void calcSodaTime() { calculate(CalculatorId::SodaTime); }
    void calcBreathedFracO2() { calculate(CalculatorId::BreathedFraction); }
    void calcIdealFlow() { calculate(CalculatorId::IdealFlow); }
};

}  // namespace tavrel
