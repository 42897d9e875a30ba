#pragma once

#include "records/series.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace tavrel {

/// A series as text: one line per element, parted by "\n", none after the last. Precision 1 writes one decimal,
/// precision 0 the number's own shortest text, any other precision empty lines.
QString editProfil(const Series& series, int precision);

/// A series read from text, split at "\n" and nowhere else, so that a text which ends with one gives an element more
/// than it has lines. Of each line the leading number counts: a decimal for reals, where a line without a number is
/// not-a-number, and an integer for flags, where it is 0.
Series seriesFromText(QStringView text, bool real);

/// All numbers of a series as doubles.
std::vector<double> realsOf(const Series& series);

}  // namespace tavrel
