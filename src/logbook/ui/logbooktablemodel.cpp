#include "logbook/ui/logbooktablemodel.h"

#include "desktop/ui/icons.h"
#include "logbook/divecolumns.h"

namespace tavrel {

LogbookTableModel::LogbookTableModel(Carnet& carnet, const Preferences& preferences, QObject* parent)
    : QAbstractTableModel(parent), carnet_(carnet), preferences_(preferences), style_(TableStyle::read(preferences)) {
    bold_.setBold(true);
    connect(&carnet, &Carnet::listChanged, this, &LogbookTableModel::reload);
    connect(&carnet, &Carnet::tableReloadRequested, this, &LogbookTableModel::reload);
}

int LogbookTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : carnet_.count();
}

int LogbookTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(diveColumns.size());
}

void LogbookTableModel::reload() {
    beginResetModel();
    style_ = TableStyle::read(preferences_);
    endResetModel();
}

QVariant LogbookTableModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Plongee& shown = dive(index.row());
    const DiveColumn& column = diveColumns[static_cast<std::size_t>(index.column())];
    switch (role) {
        case Qt::DisplayRole:
            return cellText(shown, column.field, style_);
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return cellWords(shown, column.field, style_);
        case Qt::DecorationRole: {
            const QString name = column.showsImage ? cellImage(shown, column.field) : QString();
            return name.isEmpty() ? QVariant() : QVariant(iconNamed(name));
        }
        case Qt::TextAlignmentRole:
            return QVariant(column.alignment | Qt::AlignVCenter);
        case Qt::FontRole:
            return cellStyle(shown, column.field, style_).bold ? QVariant(bold_) : QVariant();
        case Qt::BackgroundRole: {
            const auto background = cellStyle(shown, column.field, style_).background;
            return background ? QVariant(*background) : QVariant();
        }
        case Qt::ForegroundRole: {
            const CellStyle style = cellStyle(shown, column.field, style_);
            if (style.text) {
                return *style.text;
            }
            return style.background ? QVariant(QColor(Qt::black)) : QVariant();
        }
        default:
            return {};
    }
}

QVariant LogbookTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    const DiveColumn& column = diveColumns[static_cast<std::size_t>(section)];
    switch (role) {
        case Qt::DisplayRole:
            return column.title.text();
        case Qt::TextAlignmentRole:
            return QVariant(column.alignment | Qt::AlignVCenter);
        default:
            return {};
    }
}

}  // namespace tavrel
