#include "archive/recordarchive.h"
#include "support/streambytes.h"

#include <gtest/gtest.h>

#include <string>

namespace tavrel {

namespace {

struct Paper : Record {
    QString title;
    Image copy;
};

constexpr Item paperItems[] = {{"title", member<&Paper::title>}, {"copy", member<&Paper::copy>}};
constexpr RecordLayout paperLayout = recordLayout<Paper>("Paper", 1, paperItems);

/// A file of so many papers: a title and what stands in the place of the picture, each with all of its groups.
QByteArray fileOf(int count, const std::string& papers) {
    return streamBytes(R"(
        04 "streamtyped" 81e803 84"@"
        8484 84"NSMutableArray"00 8484"NSArray"00 8484"NSObject"00 85 84"i"0)" +
                       std::to_string(count) + R"( 92 8484 84"Paper"01 95 )" + papers + " 86");
}

const Image& copyOf(const RecordFile& file, std::size_t row) {
    return static_cast<const Paper&>(*file.records[row]).copy;
}

/// Reads a file and writes it again, which must give the same bytes.
RecordFile readAndWritten(const QByteArray& bytes) {
    auto file = readRecords(bytes, paperLayout);
    EXPECT_TRUE(file) << file.error().message().toStdString();
    if (!file) {
        return {};
    }
    EXPECT_EQ(writeRecords(file->records, paperLayout).toHex(' '), bytes.toHex(' '));
    return *file;
}

// As they are written: a TIFF file of three bytes "abc", of 2 by 1 points.
const std::string image = R"(92 8484 84"NSImage"2e 95 92 85
    84"c"00 9900 9901 9900 9900 9900 9900 9900 9901 9901 9900 9900 9900 9900 84"ff"02 01 84"s"01 9900
    92 8484 84"NSBitmapImageRep"11 8484"NSImageRep"11 95 9603 84"[3c]"616263 86
    92 8484 84"NSColor"00 95 9903 9a0000 86 92 85 86 )";

// Objects: 0 to 3 the list and its classes, 4 and 5 the paper, 6 and 7 the image. Strings: 6 is "NSImage".
TEST(ImageArchive, keepsOtherLayoutsOfPicturesAsTheyWere) {
    // A name, another version, a representation of an unknown class, with values of many types, referring to the image.
    const RecordFile named = readAndWritten(fileOf(1, R"(92 85 92 8484 84"NSImage"30 95
        92 8484 84"NSString"01 95 84"+" "scan" 86 84"s"02
        92 8484 84"NSBitmapImageRep"11 8484"NSImageRep"11 95 9603 84"[3c]"616263 86
        92 8484 84"NSOtherRep"02 9e 84"{_NSSize=ff}"05 8300004841 84"*" 84 84"d" 84"#" 95 92 98
            84"[2i]"01 81e803 84"q"87 0102030405060708 84"C"ff 84"I" 82ffffffff 86
        86 86)"));
    EXPECT_EQ(copyOf(named, 0).tiff, QByteArray("abc"));
    EXPECT_FALSE(copyOf(named, 0).stored.isEmpty());

    // No bitmap in it at all, and something that is no image.
    const RecordFile drawn = readAndWritten(fileOf(1, R"(92 85 92 8484 84"NSImage"2e 95 92 85 84"ff"02 01 86 86)"));
    EXPECT_TRUE(copyOf(drawn, 0).tiff.isEmpty());
    EXPECT_FALSE(copyOf(drawn, 0).isNull());
    readAndWritten(fileOf(1, R"(92 85 92 8484 84"NSPICT"01 95 84"[2c]"aabb 86 86)"));
    const RecordFile bare = readAndWritten(
        fileOf(1, R"(92 85 92 8484 84"NSBitmapImageRep"11 8484"NSImageRep"11 95 9603 84"[3c]"616263 86 86)"));
    EXPECT_EQ(copyOf(bare, 0).tiff, QByteArray("abc"));

    // The user's own picture takes the place of all of it.
    Paper other = static_cast<const Paper&>(*named.records[0]);
    other.copy = {"xyz", 1, 1, {}};
    const QByteArray written = writeRecords({std::make_shared<Paper>(other)}, paperLayout);
    EXPECT_FALSE(written.contains("NSOtherRep"));
    EXPECT_EQ(copyOf(*readRecords(written, paperLayout), 0), other.copy);
}

TEST(ImageArchive, givesEachPictureWhatItShares) {
    EXPECT_EQ(copyOf(readAndWritten(fileOf(1, "92 85 " + image + "86")), 0), (Image{"abc", 2, 1, {}}));
    // The second paper holds the first one's picture by reference; the third has its background in common with it, and
    // its title is the text that names the second picture of another layout.
    const std::string second = "92 84 97 92 85 92 98 86 ";
    const RecordFile same = *readRecords(fileOf(2, "92 85 " + image + "86 " + second), paperLayout);
    EXPECT_EQ(copyOf(same, 0), copyOf(same, 1));
    EXPECT_EQ(copyOf(same, 1), (Image{"abc", 2, 1, {}}));

    // Objects 8 to 10 are the bitmap and its classes, 11 the background.
    const std::string shares = R"(92 84 97 92 85 92 84 99 92 85
        9900 9900 9901 9900 9900 9900 9900 9900 9901 9901 9900 9900 9900 9900 9a 02 01 9b 01 9900
        92 84 9b 9603 84"[3C]"646566 86 92 9d 92 85 86 86 )";
    const RecordFile shared = *readRecords(fileOf(2, "92 85 " + image + "86 " + shares), paperLayout);
    EXPECT_EQ(copyOf(shared, 1).tiff, QByteArray("def"));
    const QByteArray written = writeRecords({shared.records[1]}, paperLayout);
    EXPECT_TRUE(written.contains("NSColor"));
    EXPECT_EQ(copyOf(*readRecords(written, paperLayout), 0), copyOf(shared, 1));

    const RecordFile texts = readAndWritten(fileOf(1, R"(92 8484 84"NSString"01 95 84"+" "scan" 86
        92 8484 84"NSImage"2e 95 92 85 84"ff"02 01 86 86)"));
    EXPECT_FALSE(copyOf(texts, 0).isNull());
    const RecordFile named = *readRecords(fileOf(1, R"(92 8484 84"NSString"01 95 84"+" "scan" 86
        92 8484 84"NSImage"2e 95 92 98 84"ff"02 01 86 86)"),
                                          paperLayout);
    EXPECT_TRUE(copyOf(named, 0).stored.contains("scan"));
}

TEST(ImageArchive, refusesWhatIsNoPicture) {
    EXPECT_FALSE(readRecords(fileOf(1, R"(92 85 92 8484 84"NSString"01 95 84"+" "x" 86 86)"), paperLayout));
    const QByteArray whole = fileOf(1, "92 85 " + image + "86");
    for (qsizetype size = 0; size < whole.size(); ++size) {
        EXPECT_FALSE(readRecords(whole.left(size), paperLayout)) << size;
    }
}

}  // namespace

}  // namespace tavrel
