#include "forms/pictures.h"

#include "base/safefile.h"
#include "base/texts.h"
#include "forms/tiff.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>

#include <algorithm>

namespace tavrel {

namespace {

constexpr double pointsInMetre = 72 / 0.0254;

Failure tooLarge(const QSize& size) {
    return {textWith("Main", "Picture has too many pixels", size.width(), size.height(), mostPixels / 1'000'000), {}};
}

bool isTooLarge(const QSize& size) {
    return qint64{size.width()} * size.height() > mostPixels;
}

/// By whatever reads the format, upright.
Expected<QImage> readOther(QByteArray bytes) {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    if (!reader.canRead()) {
        return failure(text("Main", "Picture unknown format"));
    }
    const QSize size = reader.size();
    if (isTooLarge(size)) {
        return tl::unexpected(tooLarge(size));
    }
    QImageReader::setAllocationLimit(0);  // the bound on pixels is ours
    QImage image;
    if (size.isValid() && reader.imageFormat() != QImage::Format_Invalid) {
        // The reader keeps the resolution of an image that suits it where the file says nothing.
        image = QImage(size, reader.imageFormat());
        image.setDotsPerMeterX(qRound(pointsInMetre));
        image.setDotsPerMeterY(qRound(pointsInMetre));
    }
    if (!reader.read(&image) || image.isNull()) {
        return failure(text("Main", "Picture damaged"), reader.errorString());
    }
    if (isTooLarge(image.size())) {
        return tl::unexpected(tooLarge(image.size()));
    }
    return image;
}

Expected<QImage> readImage(const QByteArray& bytes) {
    if (isTiff(bytes)) {
        auto image = readTiff(bytes);
        // Kinds of TIFF that are not read here may be by a plug-in of the toolkit's.
        if (image || !QImageReader::supportedImageFormats().contains("tiff")) {
            return image;
        }
        auto other = readOther(bytes);
        return other ? other : image;
    }
    return readOther(bytes);
}

Image imageWith(QByteArray tiff, const QImage& pixels) {
    const auto points = [](int dots, int dotsPerMetre) {
        return static_cast<float>(dotsPerMetre > 0 ? dots * pointsInMetre / dotsPerMetre : dots);
    };
    return {std::move(tiff),
            points(pixels.width(), pixels.dotsPerMeterX()),
            points(pixels.height(), pixels.dotsPerMeterY()),
            {}};
}

QStringList patternsOf(const QByteArrayList& formats) {
    QStringList patterns{QStringLiteral("*.tiff"), QStringLiteral("*.tif")};
    for (const QByteArray& format : formats) {
        patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
    }
    patterns.removeDuplicates();
    patterns.sort();
    return patterns;
}

}  // namespace

Expected<Image> pictureOfFile(const QString& path) {
    const auto file = FileBytes::open(path);
    if (!file) {
        return tl::unexpected(file.error());
    }
    return pictureOfBytes(file->bytes().toByteArray()).map_error([&](const Failure& reason) {
        return openingFailure(path, reason);
    });
}

Expected<Image> pictureOfBytes(const QByteArray& bytes) {
    return readImage(bytes).and_then([&](const QImage& pixels) -> Expected<Image> {
        return isTiff(bytes) ? imageWith(bytes, pixels) : pictureOf(pixels);
    });
}

Expected<Image> pictureOf(const QImage& pixels) {
    if (pixels.isNull()) {
        return failure(text("Main", "Picture damaged"));
    }
    if (isTooLarge(pixels.size())) {
        return tl::unexpected(tooLarge(pixels.size()));
    }
    return imageWith(writeTiff(pixels), pixels);
}

Expected<QImage> pixelsOf(const Image& picture) {
    if (picture.isNull()) {
        return failure(text("Main", "Picture nowhere"));
    }
    return picture.tiff.isEmpty() ? failure(text("Main", "Picture not shown")) : readImage(picture.tiff);
}

Expected<QByteArray> pictureFile(const Image& picture, const QString& path) {
    const QByteArray format = QFileInfo(path).suffix().toLower().toUtf8();
    QByteArray bytes;
    if (picture.tiff.isEmpty()) {
        return tl::unexpected(pixelsOf(picture).error());
    }
    if (format == "tif" || format == "tiff") {
        bytes = isTiff(picture.tiff) ? picture.tiff : QByteArray();
    }
    if (bytes.isEmpty()) {
        const auto pixels = pixelsOf(picture);
        if (!pixels) {
            return tl::unexpected(pixels.error());
        }
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, format);
        if (!writer.write(*pixels)) {
            return failure(text("Main", "Picture not written"), writer.errorString());
        }
    }
    return bytes;
}

QStringList readablePictures() {
    return patternsOf(QImageReader::supportedImageFormats());
}

QStringList writablePictures() {
    return patternsOf(QImageWriter::supportedImageFormats());
}

}  // namespace tavrel
