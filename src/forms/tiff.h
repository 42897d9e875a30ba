#pragma once

#include "base/failure.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QImage>

namespace tavrel {

/// The most pixels that a picture may have.
inline constexpr qint64 mostPixels = 100'000'000;

/// Whether the bytes begin as a TIFF file does.
bool isTiff(QByteArrayView bytes);

/// The image as a TIFF file, pixel for pixel: one strip without compression, grey, colour or colour with opacity, of 8
/// or 16 bits, whichever holds it, with its resolution and colour profile.
QByteArray writeTiff(const QImage& image);

/// The first image of a TIFF file: black and white, grey, palette, RGB and CMYK of up to 16 bits, with opacity, in
/// strips, plain, packed or LZW-compressed, of either byte order, turned upright. Fails for damaged files, for other
/// kinds, and for images of more than mostPixels.
Expected<QImage> readTiff(QByteArrayView bytes);

}  // namespace tavrel
