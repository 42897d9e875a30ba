#pragma once

#include "logbook/carnet.h"
#include "logbook/tablecells.h"

#include <QAbstractTableModel>
#include <QFont>

namespace tavrel {

/// The dives of a logbook as rows, every column of diveColumns as a column. A cell is worked out when it is asked for;
/// nothing is kept per row.
class LogbookTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    LogbookTableModel(Carnet& carnet, const Preferences& preferences, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    /// Text, image, font and colours as the preferences have it; a text that does not fit is in the tool tip. Colours
    /// are those of the data: where a cell has none, there is no value.
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Reads the preferences again and shows everything anew.
    void reload();

private:
    const Plongee& dive(int row) const { return *carnet_.records()[static_cast<std::size_t>(row)]; }

    Carnet& carnet_;
    const Preferences& preferences_;
    TableStyle style_;
    QFont bold_;
};

}  // namespace tavrel
