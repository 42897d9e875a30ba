#include "base/texts.h"
#include "forms/tiff.h"
#include "forms/tiffstrips.h"
#include "forms/tifftags.h"

#include <QColorSpace>
#include <QTransform>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <vector>

namespace tavrel {

namespace {

/// No packing makes a byte into more than so many.
constexpr qint64 bestPacking = 4096;

Failure damaged() {
    return {text("Main", "Picture damaged"), {}};
}

Failure unknownKind(const QString& what) {
    return {text("Main", "Picture unknown format"), what};
}

/// The entries of the first directory, and the numbers that they hold.
class Directory {
public:
    static std::optional<Directory> read(QByteArrayView bytes) {
        Directory directory(bytes);
        const auto start = directory.longAt(4);
        const auto count = start ? directory.shortAt(*start) : std::nullopt;
        if (!count) {
            return std::nullopt;
        }
        constexpr qint64 entrySize = 12;
        for (qint64 index = 0; index < *count; ++index) {
            const qint64 at = *start + 2 + entrySize * index;
            const auto tag = directory.shortAt(at);
            const auto type = directory.shortAt(at + 2);
            const auto values = directory.longAt(at + 4);
            if (!tag || !type || !values || !directory.longAt(at + 8)) {
                return std::nullopt;
            }
            const qint64 size = sizeOf(*type) * *values;
            const qint64 place = size <= 4 ? at + 8 : *directory.longAt(at + 8);
            if (place + size <= bytes.size()) {
                directory.entries_.try_emplace(*tag, Entry{*type, *values, place});
            }
        }
        return directory;
    }

    /// All numbers of an entry; none when it is not there.
    std::vector<qint64> numbers(quint16 tag) const {
        std::vector<qint64> numbers;
        if (const auto found = entries_.find(tag); found != entries_.end()) {
            const Entry& entry = found->second;
            for (qint64 index = 0; index < entry.count; ++index) {
                const qint64 at = entry.place + sizeOf(entry.type) * index;
                const auto number = entry.type == tiff::shortType  ? shortAt(at)
                                    : entry.type == tiff::longType ? longAt(at)
                                    : entry.type == tiff::byteType ? byteAt(at)
                                                                   : std::nullopt;
                numbers.push_back(number.value_or(0));
            }
        }
        return numbers;
    }
    qint64 number(quint16 tag, qint64 otherwise) const {
        const auto found = entries_.find(tag);
        const bool some = found != entries_.end() && found->second.count > 0;
        return some ? numbers(tag).front() : otherwise;
    }
    /// A fraction; 0 when it is not there.
    double fraction(quint16 tag) const {
        const auto found = entries_.find(tag);
        if (found == entries_.end() || found->second.type != tiff::rationalType || found->second.count < 1) {
            return 0;
        }
        const qint64 below = longAt(found->second.place + 4).value_or(0);
        return below == 0 ? 0
                          : static_cast<double>(longAt(found->second.place).value_or(0)) / static_cast<double>(below);
    }
    QByteArrayView raw(quint16 tag) const {
        const auto found = entries_.find(tag);
        return found == entries_.end()
                   ? QByteArrayView()
                   : bytes_.sliced(found->second.place, found->second.count * sizeOf(found->second.type));
    }
    bool has(quint16 tag) const { return entries_.contains(tag); }
    bool isLittleEndian() const { return littleEndian_; }
    QByteArrayView bytes() const { return bytes_; }

private:
    struct Entry {
        qint64 type;
        qint64 count;
        qint64 place;
    };

    explicit Directory(QByteArrayView bytes) : bytes_(bytes), littleEndian_(bytes.startsWith("II")) {}

    static qint64 sizeOf(qint64 type) {
        switch (type) {
            case tiff::shortType:
                return 2;
            case tiff::longType:
                return 4;
            case tiff::rationalType:
                return 8;
            default:
                return 1;
        }
    }

    bool holds(qint64 at, qint64 size) const { return at >= 0 && at <= bytes_.size() - size; }
    std::optional<qint64> byteAt(qint64 at) const {
        return holds(at, 1) ? std::optional<qint64>(static_cast<uchar>(bytes_[at])) : std::nullopt;
    }
    std::optional<qint64> shortAt(qint64 at) const { return wordAt<quint16>(at); }
    std::optional<qint64> longAt(qint64 at) const { return wordAt<quint32>(at); }
    template <class Word>
    std::optional<qint64> wordAt(qint64 at) const {
        if (!holds(at, sizeof(Word))) {
            return std::nullopt;
        }
        const char* place = bytes_.data() + at;
        return littleEndian_ ? qFromLittleEndian<Word>(place) : qFromBigEndian<Word>(place);
    }

    QByteArrayView bytes_;
    bool littleEndian_;
    std::map<qint64, Entry> entries_;
};

/// What an image is made of.
struct Kind {
    int width, height;
    int bits;     ///< of a sample: 1, 2, 4, 8 or 16
    int samples;  ///< of a pixel
    int photometric;
    int alpha = -1;  ///< which sample is the opacity; -1 for none
    bool premultiplied = false;
    bool planes = false;  ///< the samples of all pixels one after the other
    bool predicts = false;
    int compression;

    int colours() const { return photometric == tiff::rgb ? 3 : photometric == tiff::cmyk ? 4 : 1; }
    /// Bytes of a row as it is packed.
    qint64 rowSize() const { return (qint64{width} * bits * (planes ? 1 : samples) + 7) / 8; }
};

Expected<Kind> kindOf(const Directory& directory) {
    const qint64 width = directory.number(tiff::imageWidth, 0);
    const qint64 height = directory.number(tiff::imageLength, 0);
    if (width <= 0 || height <= 0) {
        return tl::unexpected(damaged());
    }
    if (width > mostPixels || height > mostPixels || width * height > mostPixels) {
        return failure(textWith("Main", "Picture has too many pixels", width, height, mostPixels / 1'000'000));
    }
    Kind kind{};
    kind.width = static_cast<int>(width);
    kind.height = static_cast<int>(height);
    const auto bits = directory.numbers(tiff::bitsPerSample);
    const qint64 bitCount = bits.empty() ? 1 : bits.front();
    const qint64 samples = directory.number(tiff::samplesPerPixel, 1);
    const qint64 photometric = directory.number(tiff::photometric, -1);
    const qint64 compression = directory.number(tiff::compression, tiff::plain);
    const bool wide = bitCount == 8 || bitCount == 16;
    const bool known =
        (photometric == tiff::rgb && samples >= 3 && wide) || (photometric == tiff::cmyk && samples >= 4 && wide) ||
        ((photometric == tiff::whiteIsZero || photometric == tiff::blackIsZero) && (samples == 1 || wide)) ||
        (photometric == tiff::palette && samples == 1 && bitCount <= 8);
    const bool bitsFit = (wide || bitCount == 1 || bitCount == 2 || bitCount == 4) &&
                         std::all_of(bits.begin(), bits.end(), [&](qint64 each) { return each == bitCount; });
    constexpr qint64 mostSamples = 16;
    if (!known || !bitsFit || samples < 1 || samples > mostSamples ||
        (compression != tiff::plain && compression != tiff::lzw && compression != tiff::packBits) ||
        directory.number(tiff::fillOrder, 1) != 1 || directory.number(tiff::sampleFormat, 1) != 1 ||
        !directory.has(tiff::stripOffsets)) {
        return tl::unexpected(
            unknownKind(QStringLiteral("TIFF %1/%2/%3").arg(photometric).arg(bitCount).arg(compression)));
    }
    kind.bits = static_cast<int>(bitCount);
    kind.samples = static_cast<int>(samples);
    kind.photometric = static_cast<int>(photometric);
    kind.compression = static_cast<int>(compression);
    kind.planes = directory.number(tiff::planarConfiguration, 1) == 2 && samples > 1;
    kind.predicts = compression == tiff::lzw && directory.number(tiff::predictor, 1) == 2;
    if (kind.predicts && !wide) {
        return tl::unexpected(unknownKind(QStringLiteral("TIFF")));
    }
    if (samples > kind.colours() && wide) {
        const qint64 extra = directory.number(tiff::extraSamples, tiff::unspecified);
        kind.alpha = extra == tiff::unspecified ? -1 : kind.colours();
        kind.premultiplied = extra == tiff::premultiplied;
    }
    return kind;
}

/// The packed rows of all planes in one block; 16-bit samples in the byte order of this machine.
std::optional<std::vector<uchar>> unpackedRows(const Directory& directory, const Kind& kind) {
    const auto offsets = directory.numbers(tiff::stripOffsets);
    auto sizes = directory.numbers(tiff::stripByteCounts);
    const qint64 planes = kind.planes ? kind.samples : 1;
    const qint64 rowsPerStrip = std::clamp<qint64>(directory.number(tiff::rowsPerStrip, kind.height), 1, kind.height);
    const qint64 stripsPerPlane = (kind.height + rowsPerStrip - 1) / rowsPerStrip;
    const qint64 rowSize = kind.rowSize();
    if (sizes.empty() && offsets.size() == 1 && kind.compression == tiff::plain) {
        sizes.push_back(rowSize * kind.height);  // some old writers leave it out
    }
    if (static_cast<qint64>(offsets.size()) < stripsPerPlane * planes || sizes.size() < offsets.size()) {
        return std::nullopt;
    }
    qint64 stored = 0;
    for (std::size_t strip = 0; strip < offsets.size(); ++strip) {
        if (offsets[strip] + sizes[strip] > directory.bytes().size()) {
            return std::nullopt;
        }
        stored += sizes[strip];
    }
    const qint64 total = rowSize * kind.height * planes;
    if (total > stored * (kind.compression == tiff::plain ? 1 : bestPacking)) {
        return std::nullopt;
    }

    const auto unpack = kind.compression == tiff::lzw        ? tiff::unpackLzw
                        : kind.compression == tiff::packBits ? tiff::unpackBits
                                                             : tiff::unpackPlain;
    std::vector<uchar> rows(static_cast<std::size_t>(total));
    for (qint64 plane = 0; plane < planes; ++plane) {
        for (qint64 strip = 0; strip < stripsPerPlane; ++strip) {
            const auto index = static_cast<std::size_t>(plane * stripsPerPlane + strip);
            const qint64 first = strip * rowsPerStrip;
            const qint64 count = std::min(rowsPerStrip, kind.height - first);
            const auto target =
                std::span(rows).subspan(static_cast<std::size_t>((plane * kind.height + first) * rowSize),
                                        static_cast<std::size_t>(count * rowSize));
            if (!unpack(directory.bytes().sliced(offsets[index], sizes[index]), target)) {
                return std::nullopt;
            }
        }
    }
    const bool swaps = kind.bits == 16 && directory.isLittleEndian() != (Q_BYTE_ORDER == Q_LITTLE_ENDIAN);
    if (swaps) {
        qbswap<2>(rows.data(), static_cast<qsizetype>(rows.size() / 2), rows.data());
    }
    return rows;
}

/// The samples of the pixels, a row at a time.
class Samples {
public:
    Samples(const Kind& kind, const std::vector<uchar>& rows)
        : kind_(kind),
          rows_(rows),
          line_(static_cast<std::size_t>(kind.width) * static_cast<std::size_t>(kind.samples)) {}

    /// Those of a row, pixel by pixel, each 0 to 2^bits - 1.
    const std::vector<quint16>& row(int row) {
        const int planes = kind_.planes ? kind_.samples : 1;
        const int together = kind_.planes ? 1 : kind_.samples;
        for (int plane = 0; plane < planes; ++plane) {
            const uchar* packed =
                &rows_[static_cast<std::size_t>(kind_.rowSize() * (qint64{plane} * kind_.height + row))];
            for (int index = 0; index < kind_.width * together; ++index) {
                const int place = kind_.planes ? index * kind_.samples + plane : index;
                line_[static_cast<std::size_t>(place)] = sample(packed, index);
            }
        }
        if (kind_.predicts) {
            const auto step = static_cast<std::size_t>(kind_.samples);
            const unsigned highest = kind_.bits == 8 ? 0xff : 0xffff;
            for (std::size_t at = step; at < line_.size(); ++at) {
                line_[at] = static_cast<quint16>((unsigned{line_[at]} + line_[at - step]) & highest);
            }
        }
        return line_;
    }

private:
    quint16 sample(const uchar* packed, int index) const {
        if (kind_.bits == 16) {
            quint16 value;
            std::memcpy(&value, packed + 2 * qsizetype{index}, sizeof value);
            return value;
        }
        if (kind_.bits == 8) {
            return packed[index];
        }
        const int perByte = 8 / kind_.bits;
        const int shift = 8 - kind_.bits * (index % perByte + 1);
        return static_cast<quint16>(packed[index / perByte] >> shift & ((1 << kind_.bits) - 1));
    }

    const Kind& kind_;
    const std::vector<uchar>& rows_;
    std::vector<quint16> line_;
};

QImage::Format formatOf(const Kind& kind) {
    const bool wide = kind.bits == 16;
    if (kind.alpha >= 0) {
        return kind.premultiplied ? wide ? QImage::Format_RGBA64_Premultiplied : QImage::Format_RGBA8888_Premultiplied
               : wide             ? QImage::Format_RGBA64
                                  : QImage::Format_RGBA8888;
    }
    if (kind.colours() == 1 && kind.photometric != tiff::palette) {
        return wide ? QImage::Format_Grayscale16 : QImage::Format_Grayscale8;
    }
    return wide ? QImage::Format_RGBX64 : QImage::Format_RGB888;
}

/// Puts the samples of pixels into an image whose channels are Channel wide.
template <class Channel>
class Painter {
public:
    Painter(const Kind& kind, std::vector<qint64> colours)
        : kind_(kind), colours_(std::move(colours)), highest_((1 << kind.bits) - 1) {}

    bool paint(Samples& samples, QImage& image) const {
        const int channels = image.depth() / 8 / static_cast<int>(sizeof(Channel));
        if (kind_.photometric == tiff::palette && colours_.size() < 3U << kind_.bits) {
            return false;
        }
        for (int row = 0; row < kind_.height; ++row) {
            auto* target = reinterpret_cast<Channel*>(image.scanLine(row));
            const quint16* pixel = samples.row(row).data();
            for (int column = 0; column < kind_.width; ++column, pixel += kind_.samples, target += channels) {
                paintPixel(pixel, target, channels);
            }
        }
        return true;
    }

private:
    void paintPixel(const quint16* pixel, Channel* target, int channels) const {
        constexpr auto full = static_cast<Channel>(~Channel{0});
        for (int channel = 0; channel < std::min(channels, 3); ++channel) {
            target[channel] = colour(pixel, channel);
        }
        if (channels == 4) {
            target[3] = kind_.alpha < 0 ? full : static_cast<Channel>(pixel[kind_.alpha]);
            if (kind_.premultiplied) {
                // A colour beyond its opacity would not be one.
                for (int channel = 0; channel < 3; ++channel) {
                    target[channel] = std::min(target[channel], target[3]);
                }
            }
        }
    }

    Channel colour(const quint16* pixel, int channel) const {
        switch (kind_.photometric) {
            case tiff::rgb:
                return static_cast<Channel>(pixel[channel]);
            case tiff::cmyk:
                return static_cast<Channel>(qint64{highest_ - pixel[channel]} * (highest_ - pixel[3]) / highest_);
            case tiff::palette:
                return static_cast<Channel>(colours_[(static_cast<std::size_t>(channel) << kind_.bits) + pixel[0]] >>
                                            8);
            default: {
                const int grey = kind_.photometric == tiff::whiteIsZero ? highest_ - pixel[0] : pixel[0];
                return static_cast<Channel>(kind_.bits < 8 ? grey * 255 / highest_ : grey);
            }
        }
    }

    const Kind& kind_;
    std::vector<qint64> colours_;  ///< all reds, all greens, all blues, each of 16 bits
    int highest_;
};

void setResolution(const Directory& directory, QImage& image) {
    constexpr double inchesInMetre = 1 / 0.0254;
    constexpr double usual = 72 * inchesInMetre;  // where none is given
    const qint64 unit = directory.number(tiff::resolutionUnit, tiff::inch);
    const double factor = unit == tiff::centimetre ? 100 : unit == tiff::inch ? inchesInMetre : 0;
    const auto dots = [&](quint16 tag) {
        const double perMetre = directory.fraction(tag) * factor;
        return static_cast<int>(std::lround(perMetre >= 1 && perMetre < 1e7 ? perMetre : usual));
    };
    image.setDotsPerMeterX(dots(tiff::xResolution));
    image.setDotsPerMeterY(dots(tiff::yResolution));
}

/// Turns an image upright whose first row and column stand at another edge.
QImage upright(const QImage& image, qint64 orientation) {
    switch (orientation) {
        case 2:
            return image.mirrored(true, false);
        case 3:
            return image.mirrored(true, true);
        case 4:
            return image.mirrored(false, true);
        case 5:
            return image.transformed(QTransform().rotate(90)).mirrored(true, false);
        case 6:
            return image.transformed(QTransform().rotate(90));
        case 7:
            return image.transformed(QTransform().rotate(270)).mirrored(true, false);
        case 8:
            return image.transformed(QTransform().rotate(270));
        default:
            return image;
    }
}

}  // namespace

bool isTiff(QByteArrayView bytes) {
    return bytes.size() >= 8 &&
           (bytes.startsWith(QByteArrayView("II*\0", 4)) || bytes.startsWith(QByteArrayView("MM\0*", 4)));
}

Expected<QImage> readTiff(QByteArrayView bytes) {
    const auto directory = isTiff(bytes) ? Directory::read(bytes) : std::nullopt;
    if (!directory) {
        return tl::unexpected(damaged());
    }
    const auto kind = kindOf(*directory);
    if (!kind) {
        return tl::unexpected(kind.error());
    }
    const auto rows = unpackedRows(*directory, *kind);
    QImage image = rows ? QImage(kind->width, kind->height, formatOf(*kind)) : QImage();
    if (image.isNull()) {
        return tl::unexpected(damaged());
    }
    Samples samples(*kind, *rows);
    const auto colours = directory->numbers(tiff::colorMap);
    const bool painted = kind->bits == 16 ? Painter<quint16>(*kind, colours).paint(samples, image)
                                          : Painter<uchar>(*kind, colours).paint(samples, image);
    if (!painted) {
        return tl::unexpected(damaged());
    }
    if (const auto profile = directory->raw(tiff::iccProfile); !profile.isEmpty()) {
        image.setColorSpace(QColorSpace::fromIccProfile(profile.toByteArray()));
    }
    setResolution(*directory, image);
    return upright(image, directory->number(tiff::orientation, 1));
}

}  // namespace tavrel
