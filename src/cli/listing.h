#pragma once

#include "cli/documentdriver.h"

#include <QList>
#include <QString>

#include <iosfwd>
#include <vector>

namespace tavrel {

/// Prints the records at the rows as a table of aligned columns under their headings, the row's number first.
void printRecords(const DocumentDriver& driver, const std::vector<ListColumn>& columns, const QList<int>& rows,
                  std::ostream& out);

}  // namespace tavrel
