#pragma once

#include "calculators/conversions.h"

#include <QDialog>

class QTabWidget;

namespace tavrel {

/// The unit conversions: a tab per quantity, a radio button per unit that makes it the source. Typing into a field
/// chooses its unit too.
class PhysiqueController : public QDialog {
    Q_OBJECT

public:
    explicit PhysiqueController(QWidget* parent = nullptr);

    /// Converts the source field of the tab in front into the tab's other fields.
    void convertir();

private:
    QWidget* newTab(const ConversionTab& tab);
    QString resultText() const;
    /// Dims the figures of the tab in front that no longer belong to the one typed, and says so.
    void dimOthers(bool stale);

    QTabWidget* conversionsTabView;
};

}  // namespace tavrel
