#pragma once

#include "calculators/calculatorpage.h"

#include <QDialog>

#include <array>
#include <vector>

class QGridLayout;
class QGroupBox;
class QLabel;

namespace tavrel {

class ResultMark;

/// The window of a calculator page: its inputs, the button that calculates (also on Enter), the result, the table where
/// the page has one, and the formula. The controls bear the field names of the page as object names.
class CalculatorWindow : public QDialog {
    Q_OBJECT

public:
    explicit CalculatorWindow(CalculatorId id, QWidget* parent = nullptr);

    /// Calculates from the fields and shows the result.
    void calculate();

    /// The result as shown, and the table's rows below it.
    QString resultText() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    QGroupBox* newInputs();
    QGroupBox* newResult();
    QGroupBox* newTable();
    /// A result to reserve room for, so that the window does not grow under the user's hand.
    CalculatorResult ordinaryResult() const;
    double inputValue(const CalculatorInput& input) const;
    void showRows(const std::vector<CalculatorRow>& rows);
    void colourRows();
    /// Shows each fault beside its input, none while the result does not belong to the inputs.
    void showFaults();

    const CalculatorPage& page_;
    ResultMark* mark_;
    std::vector<InputFault> faults_;
    std::vector<QLabel*> faultLabels_;  ///< in the order of the inputs
    /// What each row shows now; Unchanged never stands here.
    std::array<RowColour, tableConsumptions.size()> rowColours_;
};

}  // namespace tavrel
