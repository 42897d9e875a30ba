#pragma once

#include <QByteArray>
#include <QColor>

namespace tavrel {

/// The typed-stream archive of one colour object: calibrated RGB with its alpha.
QByteArray archivedColor(const QColor& color);
/// The archive of an opaque grey: calibrated white, from 0 (black) to 1 (white).
QByteArray archivedWhite(float level);
/// The colour of such an archive (calibrated or device RGB and white, CMYK, named); invalid when it holds none.
QColor unarchivedColor(const QByteArray& archive);

}  // namespace tavrel
