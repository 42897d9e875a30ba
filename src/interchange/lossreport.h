#pragma once

#include "interchange/exports.h"

#include <QStringList>

#include <vector>

namespace tavrel {

/// A field that an export would lose or change, and of how many dives.
struct FieldLoss {
    QString field;  ///< the record's key
    int dives;
};

/// What an export of these dives would lose: it is tried, read back by its meaning and compared field by field. Of a
/// format that cannot be read back, the fields that it has no place for count where they say something.
/// The columns are those chosen; none stand for all.
Expected<std::vector<FieldLoss>> lossesOf(const Carnet& carnet, const LogbookExport& format, const RecordList& dives,
                                          const QStringList& columns = {});

/// What the dive form calls a field, with its key.
QString fieldTitle(const QString& field);

/// The field as the dive form labels it, and the count.
QString lossText(const FieldLoss& loss);
/// All losses as lines for the user; one that says so when there is none.
QStringList lossLines(const std::vector<FieldLoss>& losses);

}  // namespace tavrel
