#pragma once

#include "calculators/calculators.h"

#include <QWidget>

#include <array>
#include <functional>
#include <memory>

class QMenu;

namespace tavrel {

/// The application's calculator windows: each is made on its first use and kept, with what was typed in it, until the
/// end.
class CalculatorWindows {
public:
    /// Shows the calculator's window in front and returns it; it stays owned here.
    QWidget* show(CalculatorId id);
    /// The window when it has been shown before; null otherwise.
    QWidget* window(CalculatorId id) const { return windows_[static_cast<std::size_t>(id)].get(); }

private:
    std::array<std::unique_ptr<QWidget>, calculatorCount> windows_;
};

/// Fills a menu with a submenu per group and an action per calculator, named after the AppDelegate function it stands
/// for.
void addCalculatorActions(QMenu& menu, const std::function<void(CalculatorId)>& show);

}  // namespace tavrel
