#include "forms/pictures.h"

#include "base/texts.h"
#include "forms/tiff.h"
#include "support/files.h"

#include <QBuffer>
#include <QTemporaryDir>

namespace tavrel {

namespace {

struct Pictures : testing::Test {
    QString path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
    QString written(const char* name, const QByteArray& bytes) const {
        writeContents(path(name), bytes);
        return path(name);
    }
    static QImage painted() {
        QImage image(6, 4, QImage::Format_ARGB32);
        for (int pixel = 0; pixel < 24; ++pixel) {
            image.setPixel(pixel % 6, pixel / 6, qRgba(pixel * 10, 255 - pixel, pixel * pixel % 256, 255 - pixel * 3));
        }
        return image;
    }

    QTemporaryDir folder;
};

TEST_F(Pictures, goInAndOutPixelForPixel) {
    QImage image = painted();
    image.setDotsPerMeterX(5669);  // 144 dots per inch
    image.setDotsPerMeterY(2835);  // 72
    ASSERT_TRUE(image.save(path("in.png")));
    const auto picture = pictureOfFile(path("in.png"));
    ASSERT_TRUE(picture);
    EXPECT_TRUE(isTiff(picture->tiff));
    EXPECT_NEAR(picture->width, 3, 0.01);
    EXPECT_NEAR(picture->height, 4, 0.01);
    EXPECT_EQ(
        QImage::fromData(*pictureFile(*picture, QStringLiteral("out.png"))).convertToFormat(QImage::Format_ARGB32),
        QImage(path("in.png")).convertToFormat(QImage::Format_ARGB32));

    // A TIFF file stays what it is, both ways.
    const QByteArray tiff = writeTiff(image);
    const auto same = pictureOfFile(written("in.tif", tiff));
    ASSERT_TRUE(same);
    EXPECT_EQ(same->tiff, tiff);
    EXPECT_EQ(*pictureFile(*same, QStringLiteral("out.TIFF")), tiff);
}

TEST_F(Pictures, withoutAResolutionMeasureAPointAPixel) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(painted().save(&buffer, "PNG"));
    // The block of the resolution, with its length before and its sum behind.
    bytes.remove(bytes.indexOf("pHYs") - 4, 4 + 4 + 9 + 4);
    const auto picture = pictureOfBytes(bytes);
    ASSERT_TRUE(picture);
    EXPECT_NEAR(picture->width, 6, 0.01);
    EXPECT_NEAR(picture->height, 4, 0.01);
}

TEST_F(Pictures, sayWhatIsWrong) {
    const auto reason = [](const auto& result) {
        return result ? std::string() : result.error().message().toStdString();
    };
    EXPECT_EQ(reason(pictureOfFile(path("none.png"))).find("“none.png” could not be opened: There is no such file."),
              0U);
    EXPECT_NE(reason(pictureOfFile(written("text.png", "Hello"))).find("is no picture"), std::string::npos);
    ASSERT_TRUE(painted().save(path("in.png")));
    EXPECT_NE(reason(pictureOfFile(written("cut.png", contentsOf(path("in.png")).left(60)))).find("is damaged"),
              std::string::npos);
    EXPECT_EQ(reason(pixelsOf({"II*\0garbage", 1, 1, {}})), "The file is no picture that this program can read.");
    EXPECT_EQ(reason(pixelsOf({QByteArray("II*\0\xff\xff\xff\xff", 8), 1, 1, {}})), "The picture is damaged.");
    EXPECT_EQ(reason(pixelsOf({{}, 0, 0, "kept"})),
              "The picture is of a kind that cannot be shown. It is kept as it is.");
    EXPECT_EQ(reason(pixelsOf({})), "There is no picture.");
    EXPECT_FALSE(pictureFile({}, QStringLiteral("out.png")));
    const auto picture = pictureOf(painted());
    EXPECT_NE(reason(pictureFile(*picture, QStringLiteral("out.xyz"))).find("could not be written"), std::string::npos);
    EXPECT_FALSE(pictureOf(QImage()));
}

TEST_F(Pictures, refuseTwoHundredMegapixels) {
    QImage image(20000, 10000, QImage::Format_Mono);
    image.fill(0);
    ASSERT_TRUE(image.save(path("huge.png"), "PNG", 100));
    const auto huge = pictureOfFile(path("huge.png"));
    ASSERT_FALSE(huge);
    EXPECT_TRUE(huge.error().message().contains(u"20000 × 10000 pixels")) << huge.error().message().toStdString();
    EXPECT_FALSE(pictureOf(image));
}

}  // namespace

}  // namespace tavrel
