#pragma once

#include "desktop/desktop.h"

#include <QDialog>

#include <utility>
#include <vector>

class QGridLayout;
class QLineEdit;

namespace tavrel {

/// The dives logged before this logbook: a number for each count and measure of the statistics, kept in the
/// preferences.
class PreviousTotalsWindow : public QDialog {
    Q_OBJECT

public:
    explicit PreviousTotalsWindow(Desktop& desktop, QWidget* parent = nullptr);

    /// Fills the fields from the preferences and comes to the front.
    void showEditStatisticsWindow();
    /// Stores what the fields hold, as they hold it, closes, and tells every window of statistics.
    void validateStatisticsValues();

private:
    QLineEdit* addField(QGridLayout* grid, int row, const QString& label, const QString& name);
    void build();

    Desktop& desktop_;
    std::vector<std::pair<QString, QLineEdit*>> fields_;  ///< by the key of the value
};

}  // namespace tavrel
