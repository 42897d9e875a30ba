#pragma once

#include "base/failure.h"
#include "records/image.h"

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>

namespace tavrel {

// Pictures of records: taken from files of any format that the program reads, kept as TIFF, and given back pixel for
// pixel. One of more than mostPixels is refused.

/// The picture in a file or its bytes. A TIFF file that can be shown is kept as it is; the pixels of any other become
/// one. Its size in points follows from its resolution, 72 dots per inch where it has none.
Expected<Image> pictureOfFile(const QString& path);
Expected<Image> pictureOfBytes(const QByteArray& bytes);
Expected<Image> pictureOf(const QImage& pixels);

/// The pixels of a picture; a failure for a damaged one and for one that cannot be shown.
Expected<QImage> pixelsOf(const Image& picture);

/// The bytes of a picture's file in the format that its name ends in: a TIFF file is the stored one.
Expected<QByteArray> pictureFile(const Image& picture, const QString& path);

/// Patterns of the files that can be read, and of those that can be written: "*.png".
QStringList readablePictures();
QStringList writablePictures();

}  // namespace tavrel
