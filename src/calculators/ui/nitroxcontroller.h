#pragma once

#include "calculators/ui/calculatorwindow.h"

namespace tavrel {

/// The five nitrox pages. Each operation reads the page's inputs and writes its result.
class NitroxController : public CalculatorWindow {
    Q_OBJECT

public:
    using CalculatorWindow::CalculatorWindow;

    void profMax() { calculate(CalculatorId::ProfMax); }
    void bestMix() { calculate(CalculatorId::BestMix); }
    void profEquivalente() { calculate(CalculatorId::EquivalentDepth); }
    void oxygenWindow() { calculate(CalculatorId::OxygenWindow); }
    void blendNitrox() { calculate(CalculatorId::BlendNitrox); }
};

}  // namespace tavrel
