#pragma once

#include <QByteArray>
#include <QColor>

namespace tavrel {

/// The typed-stream archive of one colour object, calibrated RGB with its alpha, or calibrated white for a pure grey.
QByteArray archivedColor(const QColor& color);
/// The colour of such an archive (calibrated or device RGB and white, CMYK, named); invalid when it holds none.
QColor unarchivedColor(const QByteArray& archive);

}  // namespace tavrel
