#pragma once

#include <QCollator>

namespace tavrel {

/// Compares words as a dictionary in the language of the texts has them: é beside e.
QCollator languageOrder();

}  // namespace tavrel
