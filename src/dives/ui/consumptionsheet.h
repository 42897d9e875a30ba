#pragma once

#include "desktop/desktop.h"
#include "desktop/printsettings.h"
#include "dives/gasreadings.h"

#include <QDialog>

class QLabel;

namespace tavrel {

/// The gas consumption of the dive in the form, as a sheet on the edit window. Nothing of it is stored.
class ConsumptionSheet : public QDialog {
    Q_OBJECT

public:
    ConsumptionSheet(Desktop& desktop, const PrintSettings& print, QWidget* parent = nullptr);

    /// Opens the sheet and works out the consumption. The title names the dive.
    void consommation(const GasReadings& readings, const QString& title);
    /// Hides the sheet and ends it.
    void endConsoSheet() { done(1); }

private:
    void print();

    Desktop& desktop_;
    PrintSettings print_;
    QLabel* consoField_;
    QLabel* explanations_;
};

}  // namespace tavrel
