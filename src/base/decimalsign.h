#pragma once

#include <QString>

namespace tavrel {

/// Figures as the language of the texts writes them, for the screen: in French the point of a number becomes a comma,
/// those of a day (24.12.2023) stay. Files, exports and the command line keep the point.
QString withDecimalSign(QString words);

}  // namespace tavrel
