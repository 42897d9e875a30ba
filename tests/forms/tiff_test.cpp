#include "forms/tiff.h"

#include "base/texts.h"
#include "forms/tiffstrips.h"
#include "support/files.h"
#include "support/streambytes.h"

#include <QColor>
#include <QtEndian>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace tavrel {

namespace {

/// A TIFF file put together by hand: the strips, the numbers that take more than their place, the directory.
class TiffFile {
public:
    explicit TiffFile(bool littleEndian = true) : littleEndian_(littleEndian) {}

    TiffFile& shorts(quint16 tag, const std::vector<quint16>& values) { return numbers(tag, 3, values); }
    TiffFile& longs(quint16 tag, const std::vector<quint32>& values) { return numbers(tag, 4, values); }
    TiffFile& strip(std::string_view hex) {
        strips_.push_back(streamBytes(hex));
        return *this;
    }
    /// Width, height, bits, samples, photometric, compression, in one strip or of so many rows each.
    TiffFile& image(quint32 width, quint32 height, std::vector<quint16> bits, quint16 photometric,
                    quint16 compression = 1, quint32 rowsPerStrip = 0) {
        const auto samples = static_cast<quint16>(bits.size());
        return longs(256, {width})
            .longs(257, {height})
            .shorts(258, bits)
            .shorts(259, {compression})
            .shorts(262, {photometric})
            .shorts(277, {samples})
            .longs(278, {rowsPerStrip == 0 ? height : rowsPerStrip});
    }

    QByteArray bytes() {
        QByteArray file = littleEndian_ ? QByteArray("II*\0\0\0\0\0", 8) : QByteArray("MM\0*\0\0\0\0", 8);
        std::vector<quint32> offsets, sizes;
        for (const QByteArray& strip : strips_) {
            offsets.push_back(static_cast<quint32>(file.size()));
            sizes.push_back(static_cast<quint32>(strip.size()));
            file.append(strip);
        }
        longs(273, offsets).longs(279, sizes);
        for (auto& [tag, entry] : entries_) {
            if (entry.bytes.size() > 4) {
                QByteArray place;
                put(place, static_cast<quint32>(file.size()));
                file.append(entry.bytes);
                entry.bytes = place;
            }
            entry.bytes.resize(4, '\0');
        }
        QByteArray start;
        put(start, static_cast<quint32>(file.size()));
        file.replace(4, 4, start);
        put(file, static_cast<quint16>(entries_.size()));
        for (const auto& [tag, entry] : entries_) {
            put(file, tag);
            put(file, entry.type);
            put(file, entry.count);
            file.append(entry.bytes);
        }
        put(file, quint32{0});
        return file;
    }

private:
    struct Entry {
        quint16 type = 0;
        quint32 count = 0;
        QByteArray bytes;
    };

    template <class Word>
    TiffFile& numbers(quint16 tag, quint16 type, const std::vector<Word>& values) {
        entries_[tag] = {type, static_cast<quint32>(values.size()), {}};
        for (const Word value : values) {
            put(entries_[tag].bytes, value);
        }
        return *this;
    }
    template <class Word>
    void put(QByteArray& bytes, Word word) const {
        const Word placed = littleEndian_ ? qToLittleEndian(word) : qToBigEndian(word);
        bytes.append(reinterpret_cast<const char*>(&placed), sizeof placed);
    }

    bool littleEndian_;
    std::map<quint16, Entry> entries_;
    std::vector<QByteArray> strips_;
};

/// The pixels row by row, as "aarrggbb" in hexadecimal.
std::string pixelsIn(TiffFile file) {
    const auto image = readTiff(file.bytes());
    if (!image) {
        return image.error().message().toStdString();
    }
    QString words;
    for (int row = 0; row < image->height(); ++row) {
        for (int column = 0; column < image->width(); ++column) {
            words += QString::number(image->pixelColor(column, row).rgba(), 16).rightJustified(8, u'0') +
                     (column + 1 < image->width() ? u' ' : u'/');
        }
    }
    return words.toStdString();
}

TEST(Tiff, readsTheKindsThatScannersWrite) {
    const std::string rgb = "ff010203 ff0a0b0c/ffff0000 ff00ff00/";
    EXPECT_EQ(pixelsIn(TiffFile().image(2, 2, {8, 8, 8}, 2).strip("0102030a0b0c ff000000ff00")), rgb);
    EXPECT_EQ(pixelsIn(TiffFile(false).image(2, 2, {8, 8, 8}, 2, 1, 1).strip("0102030a0b0c").strip("ff000000ff00")),
              rgb);
    const auto planes = TiffFile().image(2, 2, {8, 8, 8}, 2).shorts(284, {2});
    EXPECT_EQ(pixelsIn(TiffFile(planes).strip("010aff00").strip("020b00ff").strip("030c0000")), rgb);
    const auto packed = TiffFile().image(2, 2, {8, 8, 8}, 2, 32773);
    EXPECT_EQ(pixelsIn(TiffFile(packed).strip("05 0102030a0b0c 80 00ff f700")), "The picture is damaged.");
    EXPECT_EQ(pixelsIn(TiffFile(packed).strip("05 0102030a0b0c 80 00ff fe00 01ff00")), rgb);
    // Black and white, and grey of four bits, rows beginning at bytes; white as 0.
    EXPECT_EQ(pixelsIn(TiffFile().image(3, 2, {1}, 1).strip("a0 40")),
              "ffffffff ff000000 ffffffff/ff000000 ffffffff ff000000/");
    EXPECT_EQ(pixelsIn(TiffFile().image(3, 1, {4}, 0).strip("0f80")), "ffffffff ff000000 ff777777/");
    // A palette of two bits.
    const std::vector<quint16> palette{0, 0xff00, 0, 0x1234, 0, 0, 0xff00, 0, 0, 0, 0, 0xffff};
    EXPECT_EQ(pixelsIn(TiffFile().image(4, 1, {2}, 3).shorts(320, palette).strip("1b")),
              "ff000000 ffff0000 ff00ff00 ff1200ff/");
    EXPECT_EQ(pixelsIn(TiffFile().image(2, 1, {8, 8, 8, 8}, 5).strip("00ff0000 ff00ff80")), "ffff00ff ff007f00/");
    // Opacity: straight, multiplied, and a fourth sample that is none.
    const auto rgba = TiffFile().image(1, 1, {8, 8, 8, 8}, 2);
    EXPECT_EQ(pixelsIn(TiffFile(rgba).shorts(338, {2}).strip("0a141e80")), "800a141e/");
    EXPECT_EQ(pixelsIn(TiffFile(rgba).shorts(338, {1}).strip("40201080")), "80804020/");
    EXPECT_EQ(pixelsIn(TiffFile(rgba).strip("0a141e80")), "ff0a141e/");
    EXPECT_EQ(pixelsIn(TiffFile().image(1, 1, {8, 8}, 1).shorts(338, {2}).strip("6440")), "40646464/");
    // 16 bits in both byte orders.
    EXPECT_EQ(readTiff(TiffFile(false).image(1, 1, {16}, 1).strip("1234").bytes())->pixelColor(0, 0).rgba64().red(),
              0x1234);
    EXPECT_EQ(
        readTiff(TiffFile().image(1, 1, {16, 16, 16}, 2).strip("341200004321").bytes())->pixelColor(0, 0).rgba64(),
        QRgba64::fromRgba64(0x1234, 0, 0x2143, 0xffff));
}

TEST(Tiff, turnsImagesUpright) {
    const char* upright[] = {"12/34/56/", "21/43/65/", "65/43/21/", "56/34/12/",
                             "135/246/",  "531/642/",  "642/531/",  "246/135/"};
    for (quint16 orientation = 1; orientation <= 8; ++orientation) {
        const auto image =
            readTiff(TiffFile().image(2, 3, {8}, 1).shorts(274, {orientation}).strip("010203040506").bytes());
        ASSERT_TRUE(image);
        std::string shown;
        for (int row = 0; row < image->height(); ++row) {
            for (int column = 0; column < image->width(); ++column) {
                shown += static_cast<char>('0' + image->pixelColor(column, row).red());
            }
            shown += '/';
        }
        EXPECT_EQ(shown, upright[orientation - 1]) << orientation;
    }
}

TEST(Tiff, unpacksLzw) {
    // Written down bit by bit: clear, 7, the string 7 7 that is only being defined, 7 7 7, end.
    EXPECT_EQ(pixelsIn(TiffFile().image(3, 2, {8}, 1, 5).strip("8001e0503808")),
              "ff070707 ff070707 ff070707/ff070707 ff070707 ff070707/");
    std::string text;
    quint32 noise = 1;
    for (int index = 0; index < 30000; ++index) {
        noise = noise * 1664525 + 1013904223;
        text += static_cast<char>(noise >> 24 & (index % 3 == 0 ? 0xff : 0x03));
    }
    std::vector<uchar> rows(text.size());
    // The same noise as codes of all widths, with strings of many lengths and a table that is cleared when it is full.
    const QByteArray packed = contentsOf(QStringLiteral(TAVREL_TEST_DATA "/pictures/noise.lzw"));
    ASSERT_TRUE(tiff::unpackLzw(packed, rows));
    EXPECT_EQ(std::string(rows.begin(), rows.end()), text);
    rows.resize(rows.size() + 1);
    EXPECT_FALSE(tiff::unpackLzw(packed, rows));
    // Differences from the pixel before: 10, 1, 255.
    EXPECT_EQ(pixelsIn(TiffFile().image(3, 1, {8}, 1, 5).shorts(317, {2}).strip("8002802ff808")),
              "ff0a0a0a ff0b0b0b ff0a0a0a/");
    EXPECT_EQ(pixelsIn(TiffFile().image(2, 1, {8}, 1, 5).strip("8040bfffff")), "The picture is damaged.");
}

TEST(Tiff, givesBackWhatItWrote) {
    const auto painted = [](QImage::Format format) {
        QImage image(5, 3, QImage::Format_RGBA64);
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 5; ++column) {
                image.setPixelColor(column, row,
                                    QColor::fromRgba64(quint16(column * 10007), quint16(row * 20011), 777,
                                                       quint16(column == 2 ? row * 30000 : 0xffff)));
            }
        }
        return image.convertToFormat(format);
    };
    for (const auto format : {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_Grayscale8,
                              QImage::Format_Grayscale16, QImage::Format_RGB16, QImage::Format_RGB888,
                              QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_RGBA64}) {
        QImage image = painted(format);
        image.setDotsPerMeterX(11811);
        image.setDotsPerMeterY(5906);
        const auto back = readTiff(writeTiff(image));
        ASSERT_TRUE(back) << format;
        EXPECT_EQ(std::pair(back->dotsPerMeterX(), back->dotsPerMeterY()), std::pair(11811, 5906));
        EXPECT_EQ(back->convertToFormat(QImage::Format_RGBA64), image.convertToFormat(QImage::Format_RGBA64)) << format;
    }
    // An opaque image takes no opacity along, a grey one no colour.
    EXPECT_EQ(readTiff(writeTiff(painted(QImage::Format_RGB888).convertToFormat(QImage::Format_ARGB32)))->format(),
              QImage::Format_RGB888);
    EXPECT_EQ(readTiff(writeTiff(painted(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32)))->format(),
              QImage::Format_Grayscale8);
    EXPECT_TRUE(writeTiff(QImage()).isEmpty());
}

TEST(Tiff, refusesDamagedAndHugeImages) {
    const QByteArray whole =
        writeTiff(readTiff(TiffFile().image(2, 2, {8, 8, 8}, 2).strip("0102030a0b0cff000000ff00").bytes()).value());
    for (qsizetype size = 0; size + 4 < whole.size(); ++size) {
        EXPECT_FALSE(readTiff(whole.left(size))) << size;
    }
    const std::string damaged = "The picture is damaged.";
    EXPECT_EQ(pixelsIn(TiffFile().image(0, 2, {8}, 1).strip("00")), damaged);
    EXPECT_EQ(pixelsIn(TiffFile().image(20000, 10000, {1}, 1).strip("00")),
              "The picture is too large: 20000 × 10000 pixels, and 100 million at most.");
    EXPECT_EQ(pixelsIn(TiffFile().image(0xffffffff, 0xffffffff, {8}, 1).strip("00")).substr(0, 25),
              "The picture is too large:");
    // Of many pixels and few bytes.
    for (const quint16 compression : {quint16(1), quint16(5), quint16(32773)}) {
        EXPECT_EQ(pixelsIn(TiffFile().image(9000, 9000, {8}, 1, compression).strip("0000")), damaged);
    }
    EXPECT_EQ(pixelsIn(TiffFile().image(2, 2, {8}, 1, 1, 1).strip("0102")), damaged);
    EXPECT_EQ(pixelsIn(TiffFile().image(2, 1, {8}, 3).shorts(320, {1, 2, 3}).strip("0102")), damaged);
    const std::string unknown = "The file is no picture that this program can read.";
    for (TiffFile file : {TiffFile().image(2, 1, {8}, 1, 7), TiffFile().image(2, 1, {8, 8}, 2),
                          TiffFile().image(2, 1, {3}, 1), TiffFile().image(2, 1, {8, 4, 8}, 2),
                          TiffFile().image(2, 1, {8}, 1).shorts(339, {3}), TiffFile().image(2, 1, {8}, 9)}) {
        EXPECT_EQ(pixelsIn(file.strip("0102030405060708")).substr(0, unknown.size()), unknown);
    }
    // Every byte of a file changed in turn is no reason to fall.
    for (qsizetype at = 0; at < whole.size(); ++at) {
        for (const char value : {'\0', '\x7f', '\xff'}) {
            QByteArray changed = whole;
            changed[at] = value;
            static_cast<void>(readTiff(changed));
        }
    }
}

}  // namespace

}  // namespace tavrel
