#pragma once

#include <QColor>

// The colours of cards and printed texts.
namespace tavrel::cardcolours {

inline const QColor heading = QColor::fromRgbF(0.0F, 0.5F, 0.0F);
inline const QColor label = QColor::fromRgbF(0.0F, 0.0F, 0.0F);
inline const QColor value = QColor::fromRgbF(0.0F, 0.0F, 1.0F);

}  // namespace tavrel::cardcolours
