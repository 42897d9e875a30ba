#include "forms/tiff.h"
#include "forms/tifftags.h"

#include <QColorSpace>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <vector>

namespace tavrel {

namespace {

constexpr quint32 headerSize = 8;

bool isOpaque(const QImage& straight) {
    for (int row = 0; row < straight.height(); ++row) {
        const uchar* line = straight.constScanLine(row);
        for (int column = 0; column < straight.width(); ++column) {
            if (line[4 * column + 3] != 0xff) {
                return false;
            }
        }
    }
    return true;
}

/// The image in the smallest of five formats that holds all of its pixels.
QImage inWrittenFormat(const QImage& image) {
    if (image.format() == QImage::Format_Grayscale16) {
        return image;
    }
    if (image.depth() > 32) {
        return image.convertToFormat(QImage::Format_RGBA64);
    }
    if (image.hasAlphaChannel()) {
        QImage straight = image.convertToFormat(QImage::Format_RGBA8888);
        if (!isOpaque(straight)) {
            return straight;
        }
    }
    return image.convertToFormat(image.isGrayscale() ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
}

struct Entry {
    tiff::Tag tag;
    tiff::Type type;
    quint32 count;
    quint32 value;  ///< or where it stands
};

class Writer {
public:
    explicit Writer(const QImage& image) : image_(image) {}

    QByteArray write() {
        const int bytesPerSample = image_.depth() > 32 || image_.format() == QImage::Format_Grayscale16 ? 2 : 1;
        const int samples = image_.depth() / 8 / bytesPerSample;
        const qsizetype lineSize = qsizetype{image_.width()} * samples * bytesPerSample;
        const qsizetype size = lineSize * image_.height();
        bytes_.reserve(size + 4096);
        bytes_.append("II*\0", 4);
        putWord<quint32>(0);  // where the directory stands, known below
        for (int row = 0; row < image_.height(); ++row) {
            appendLine(image_.constScanLine(row), lineSize, bytesPerSample);
        }

        add(tiff::imageWidth, static_cast<quint32>(image_.width()));
        add(tiff::imageLength, static_cast<quint32>(image_.height()));
        addShorts(tiff::bitsPerSample, samples, static_cast<quint16>(8 * bytesPerSample));
        add(tiff::compression, tiff::plain);
        add(tiff::photometric, samples == 1 ? tiff::blackIsZero : tiff::rgb);
        add(tiff::stripOffsets, headerSize);
        add(tiff::samplesPerPixel, static_cast<quint32>(samples));
        add(tiff::rowsPerStrip, static_cast<quint32>(image_.height()));
        add(tiff::stripByteCounts, static_cast<quint32>(size));
        addResolution(tiff::xResolution, image_.dotsPerMeterX());
        addResolution(tiff::yResolution, image_.dotsPerMeterY());
        add(tiff::planarConfiguration, 1);
        add(tiff::resolutionUnit, tiff::centimetre);
        if (samples == 4) {
            add(tiff::extraSamples, tiff::straight);
        }
        addProfile();
        putDirectory();
        return std::move(bytes_);
    }

private:
    template <class Word>
    void putWord(Word word) {
        std::array<char, sizeof(Word)> bytes;
        qToLittleEndian(word, bytes.data());
        bytes_.append(bytes.data(), bytes.size());
    }

    void appendLine(const uchar* line, qsizetype size, int bytesPerSample) {
        bytes_.append(reinterpret_cast<const char*>(line), size);
        if (bytesPerSample == 2 && Q_BYTE_ORDER == Q_BIG_ENDIAN) {
            char* start = bytes_.data() + bytes_.size() - size;
            qbswap<2>(start, size / 2, start);
        }
    }

    /// Where what an entry does not hold itself may stand.
    quint32 place() {
        if (bytes_.size() % 2 != 0) {
            bytes_.append('\0');
        }
        return static_cast<quint32>(bytes_.size());
    }

    void add(tiff::Tag tag, quint32 value) { entries_.push_back({tag, tiff::longType, 1, value}); }

    void addShorts(tiff::Tag tag, int count, quint16 value) {
        if (count == 1) {
            entries_.push_back({tag, tiff::shortType, 1, value});
            return;
        }
        entries_.push_back({tag, tiff::shortType, static_cast<quint32>(count), place()});
        for (int index = 0; index < count; ++index) {
            putWord(value);
        }
    }

    /// Dots per centimetre, to the dot per metre.
    void addResolution(tiff::Tag tag, int dotsPerMetre) {
        entries_.push_back({tag, tiff::rationalType, 1, place()});
        putWord(static_cast<quint32>(std::max(dotsPerMetre, 1)));
        putWord<quint32>(100);
    }

    void addProfile() {
        const QByteArray profile = image_.colorSpace().iccProfile();
        if (!profile.isEmpty()) {
            entries_.push_back({tiff::iccProfile, tiff::undefinedType, static_cast<quint32>(profile.size()), place()});
            bytes_.append(profile);
        }
    }

    void putDirectory() {
        qToLittleEndian(place(), bytes_.data() + 4);
        putWord(static_cast<quint16>(entries_.size()));
        for (const Entry& entry : entries_) {
            putWord<quint16>(entry.tag);
            putWord<quint16>(entry.type);
            putWord(entry.count);
            putWord(entry.value);
        }
        putWord<quint32>(0);  // no further image
    }

    QImage image_;
    QByteArray bytes_;
    std::vector<Entry> entries_;
};

}  // namespace

QByteArray writeTiff(const QImage& image) {
    return image.isNull() ? QByteArray() : Writer(inWrittenFormat(image)).write();
}

}  // namespace tavrel
