#pragma once

#include "documents/ui/documentwindow.h"
#include "logbook/carnet.h"

#include <QDialog>

class QSpinBox;

namespace tavrel {

/// Asks for the first number and numbers all dives of a logbook from it on. Closes when the logbook has done so.
class RenumberWindow : public QDialog {
    Q_OBJECT

public:
    RenumberWindow(Carnet& carnet, DocumentWindow* parent);

    void bringToFront();
    void accept() override;

private:
    Carnet& carnet_;
    DocumentWindow& window_;
    QSpinBox* first_;
};

}  // namespace tavrel
