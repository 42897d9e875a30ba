#pragma once

#include <QString>

namespace tavrel {

/// Figures as the language of the texts writes them, for the screen: in French each point between two digits becomes a
/// comma. Files, exports and the command line keep the point.
QString withDecimalSign(QString words);

}  // namespace tavrel
