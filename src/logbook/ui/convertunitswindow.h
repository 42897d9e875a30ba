#pragma once

#include "documents/ui/documentwindow.h"
#include "logbook/carnet.h"
#include "logbook/unitconversion.h"

#include <QDialog>

class QLabel;
class QRadioButton;
class QTableWidget;

namespace tavrel {

/// Converts the numbers of all dives of a logbook from one system of units to the other, after a look at what becomes
/// of them.
class ConvertUnitsWindow : public QDialog {
    Q_OBJECT

public:
    ConvertUnitsWindow(Carnet& carnet, DocumentWindow* parent);

    void accept() override;

private:
    UnitSystem target() const;
    void showPreview();

    Carnet& carnet_;
    DocumentWindow& window_;
    QRadioButton* toFeet_;
    QRadioButton* toMetres_;
    QTableWidget* preview_;
    QLabel* count_;
    QLabel* warning_;
};

}  // namespace tavrel
