#include "drawing/drawing.h"

#include "drawing/pages.h"
#include "support/printing.h"

#include <QImage>
#include <QPainter>
#include <QTextDocument>
#include <gtest/gtest.h>

#include <map>

namespace tavrel {

namespace {

QPainterPath rectangle(double x, double y, double width, double height) {
    QPainterPath path;
    path.addRect(x, y, width, height);
    return path;
}

/// 40 x 20 points: a red square at the lower left, a thick dashed green line along the top, an icon at the right.
Drawing sample() {
    Drawing drawing(QSizeF(40, 20));
    drawing.title = QStringLiteral("Squares & lines");
    drawing.add(Drawing::Area{rectangle(0, 0, 10, 10), QColor(Qt::red)});
    QPainterPath line(QPointF(0, 18));
    line.lineTo(40, 18);
    drawing.add(Drawing::Line{line, Qt::green, 4, 10, 5});
    drawing.add(Drawing::Icon{{26, 2}, {14, 14}, QStringLiteral("alarmeCEIL")});
    return drawing;
}

QImage painted(const Drawing& drawing, const QSize& size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    drawing.paint(painter, QRectF(QPointF(), size));
    return image;
}

TEST(Drawing, growsUpwardAndScalesWithItsTarget) {
    for (const int scale : {1, 2, 5}) {
        const QImage image = painted(sample(), QSize(40, 20) * scale);
        const auto at = [&](double x, double y) {
            return image.pixelColor(qRound(x * scale), qRound((20 - y) * scale));
        };
        EXPECT_EQ(at(5, 5), QColor(Qt::red)) << scale;
        EXPECT_EQ(at(5, 12), QColor(Qt::white)) << scale;
        EXPECT_EQ(at(12, 5), QColor(Qt::white)) << scale;
        // Dashes of ten points and gaps of five, whatever the width of the line.
        EXPECT_EQ(at(5, 18), QColor(Qt::green)) << scale;
        EXPECT_EQ(at(12, 18), QColor(Qt::white)) << scale;
        EXPECT_EQ(at(20, 18), QColor(Qt::green)) << scale;
        EXPECT_EQ(at(27, 18), QColor(Qt::white)) << scale;
        const QColor icon = at(28, 9);
        EXPECT_GT(icon.red(), icon.blue() + 60) << scale;
        EXPECT_EQ(at(22, 9), QColor(Qt::white)) << scale;
    }
}

TEST(Drawing, leavesNoGapInALongLine) {
    QPainterPath zigzag(QPointF(0, 5));
    for (int x = 4; x <= 800; x += 4) {
        zigzag.lineTo(x, x % 8 == 4 ? 15 : 5);
    }
    Drawing drawing(QSizeF(800, 20));
    drawing.add(Drawing::Line{zigzag, Qt::black, 2});
    const QImage image = painted(drawing, QSize(800, 20));
    // Halfway up, the line is crossed once every four points.
    int crossings = 0;
    for (int x = 1; x < image.width(); ++x) {
        crossings += image.pixelColor(x, 10).value() < 128 && image.pixelColor(x - 1, 10).value() >= 128 ? 1 : 0;
    }
    EXPECT_EQ(crossings, 200);
}

TEST(Drawing, keepsItsProportionsAndStaysInItsPlace) {
    Drawing drawing = sample();
    drawing.add(Drawing::Area{rectangle(15, -500, 5, 1000), QColor(Qt::blue)});
    const QRectF target(0, 0, 80, 100);
    EXPECT_EQ(drawing.placeIn(target), QRectF(0, 30, 80, 40));
    const QImage image = painted(drawing, QSize(80, 100));
    EXPECT_EQ(image.pixelColor(35, 50), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(35, 20), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(35, 80), QColor(Qt::white));
    EXPECT_EQ(drawing.pointAt({0, 70}, target), QPointF(0, 0));
    EXPECT_EQ(drawing.pointAt({40, 30}, target), QPointF(20, 20));
    EXPECT_EQ(drawing.pointAt({40, 30}, QRectF()), QPointF());
    painted(Drawing(), QSize(5, 5));
}

/// The box around everything that is not white.
QRect inked(const QImage& image) {
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white)) {
                box |= QRect(x, y, 1, 1);
            }
        }
    }
    return box;
}

TEST(Drawing, putsTextsWhereTheirAlignmentSays) {
    const auto boxOf = [](Qt::Alignment alignment) {
        Drawing drawing(QSizeF(100, 100));
        drawing.add(Drawing::Text{{50, 50}, QStringLiteral("HHHH"), Qt::black, 12, alignment});
        return inked(painted(drawing, QSize(200, 200)));
    };
    const QRect lowerLeft = boxOf(Qt::AlignLeft | Qt::AlignBottom);
    EXPECT_GE(lowerLeft.left(), 100);
    EXPECT_LT(lowerLeft.bottom(), 100);
    EXPECT_GT(lowerLeft.top(), 60);
    const QRect upperRight = boxOf(Qt::AlignRight | Qt::AlignTop);
    EXPECT_LE(upperRight.right(), 100);
    EXPECT_GE(upperRight.top(), 100);
    const QRect centred = boxOf(Qt::AlignCenter);
    EXPECT_NEAR(centred.center().x(), 100, 2);
    EXPECT_NEAR(centred.center().y(), 100, 3);
    // Twice the 12 points: capitals are about 70 % of the font's size.
    EXPECT_NEAR(centred.height(), 2 * 12 * 0.72, 3);
}

TEST(Drawing, shadesLabelsUntilTheyCanBeRead) {
    EXPECT_EQ(legible(Qt::black, Qt::white), QColor(Qt::black));
    const QColor grey = QColor::fromRgbF(0.702F, 0.702F, 0.702F);
    EXPECT_EQ(legible(grey, Qt::black), grey);
    EXPECT_LT(legible(grey, Qt::white).lightnessF(), 0.48F);
    EXPECT_GT(legible(Qt::blue, Qt::black).lightnessF(), 0.6F);
    EXPECT_EQ(blended(QColor(255, 0, 0, 51), Qt::white), QColor(255, 204, 204));
}

QByteArray bytesOf(const Pages& pages, PictureFormat format, int page = 0) {
    const auto bytes = pictureBytes(pages, format, page);
    EXPECT_TRUE(bytes) << (bytes ? "" : bytes.error().message().toStdString());
    return bytes.value_or(QByteArray());
}

int pdfPages(const QByteArray& pdf) {
    return static_cast<int>(pdf.count("/Type /Page\n"));
}

TEST(Pictures, ofADrawingHaveItsSizeAndTitle) {
    const Pages pages = pagesOf(sample());
    const QImage png = QImage::fromData(bytesOf(pages, PictureFormat::png));
    EXPECT_EQ(png.size(), QSize(80, 40));
    EXPECT_EQ(png.text(QStringLiteral("Title")), sample().title);
    EXPECT_EQ(png.pixelColor(10, 30), QColor(Qt::red));

    const QByteArray svg = bytesOf(pages, PictureFormat::svg);
    EXPECT_TRUE(svg.contains("viewBox=\"0 0 40 20\"")) << svg.toStdString();
    EXPECT_TRUE(svg.contains("#ff0000") && svg.contains("stroke-dasharray"));
    EXPECT_TRUE(svg.contains("<title>Squares &amp; lines</title>"));
    EXPECT_FALSE(svg.contains("<image")) << "icons stay lines";

    const QByteArray pdf = bytesOf(pages, PictureFormat::pdf);
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_EQ(pdfPages(pdf), 1);
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 40.0"));
}

TEST(Pictures, takeTheRoomOfAPaperAboveTheFoot) {
    // Half as large on 200 by 100 inside the margins; the lower left quarter stands ten points above the edge.
    Drawing picture(QSizeF(400, 180));
    picture.add(Drawing::Area{rectangle(0, 0, 200, 90), QColor(Qt::red)});
    const Paper paper{QSizeF(220, 100), {0, 0, 10, 10, 1}, QStringLiteral("Reef"), QDate(2024, 6, 15)};
    const Pages pages = pagesOf(picture, paper);
    EXPECT_EQ(pages.paper(), paper.size);
    const QImage png = QImage::fromData(bytesOf(pages, PictureFormat::png));
    for (const auto& [x, y, colour] : {std::tuple(109, 46, Qt::red),
                                       {109, 89, Qt::red},
                                       {109, 44, Qt::white},
                                       {111, 60, Qt::white},
                                       {9, 60, Qt::white},
                                       {70, 91, Qt::white}}) {
        EXPECT_EQ(png.pixelColor(2 * x, 2 * y), QColor(colour)) << x << ' ' << y;
    }
    const Drawing page = pages.page(0);
    EXPECT_EQ(std::get<Drawing::Text>(page.primitives().front()).text, u"Reef");
}

TEST(Pictures, haveFilesByTheEndingOfTheName) {
    Pages two = pagesOf(sample());
    two.count = 2;
    const auto named = [&](const char* path) {
        return eachOf(*pictureFiles(QLatin1StringView(path), two), [](const FileContents& each) { return each.path; });
    };
    EXPECT_EQ(named("b.c/a.PNG"), u"b.c/a.PNG|b.c/a-2.PNG");
    EXPECT_EQ(named("a.pdf"), u"a.pdf");
    EXPECT_EQ(named("a.svg"), u"a.svg|a-2.svg");
    const auto refused = pictureFiles(QStringLiteral("a.gif"), two);
    ASSERT_FALSE(refused);
    EXPECT_TRUE(refused.error().sentence.contains(QStringLiteral("a.gif")));
}

StyledText lines(int count) {
    StyledText text;
    for (int line = 1; line <= count; ++line) {
        text.append(QStringLiteral("Line %1%2").arg(line).arg(line % 2 ? QStringLiteral("\r") : QStringLiteral("\n")),
                    line % 2 ? Qt::red : Qt::black);
    }
    return text;
}

Paper paperOf(QSizeF size, const PrintSettings& settings = {}) {
    return {size, settings, QStringLiteral("Lines"), QDate(2024, 6, 15)};
}

TEST(StyledPages, breakLinesAtBothEndsAndKeepColours) {
    const auto document = textDocumentOf(lines(3));
    EXPECT_EQ(document->toPlainText(), u"Line 1\nLine 2\nLine 3\n");
    StyledText text = lines(3);
    text.append(QStringLiteral("left\tright"), Qt::blue);
    const Drawing page = pagesOf(text, paperOf(QSizeF(300, 400))).page(0);
    std::map<QString, Drawing::Text> drawn;
    for (const auto& primitive : page.primitives()) {
        const auto& each = std::get<Drawing::Text>(primitive);
        drawn[each.text] = each;
    }
    EXPECT_EQ(drawn.size(), 7U) << "five texts, title, day and number";
    EXPECT_EQ(drawn[QStringLiteral("Line 1")].colour, QColor(Qt::red));
    EXPECT_EQ(drawn[QStringLiteral("Line 2")].colour, QColor(Qt::black));
    EXPECT_GT(drawn[QStringLiteral("Line 1")].at.y(), drawn[QStringLiteral("Line 2")].at.y());
    EXPECT_EQ(drawn[QStringLiteral("left")].at.y(), drawn[QStringLiteral("right")].at.y());
    EXPECT_GT(drawn[QStringLiteral("right")].at.x(), 50);
}

TEST(StyledPages, holdEveryLineOnceWithinTheMargins) {
    const PrintSettings settings{20, 20, 30, 10, 0.5};
    const Pages pages = pagesOf(lines(60), paperOf(QSizeF(200, 200), settings));
    EXPECT_GT(pages.count, 1);
    QString drawn;
    for (int page = 0; page < pages.count; ++page) {
        drawn += QString::fromUtf8(bytesOf(pages, PictureFormat::svg, page));
    }
    for (int line = 1; line <= 60; ++line) {
        EXPECT_EQ(drawn.count(QStringLiteral(">Line %1<").arg(line)), 1) << line;
    }
    EXPECT_EQ(drawn.count(QStringLiteral("Page 1 of %1<").arg(pages.count)), 1);
    EXPECT_EQ(drawn.count(QStringLiteral(">Lines</text>")), pages.count);
    EXPECT_EQ(pdfPages(bytesOf(pages, PictureFormat::pdf)), pages.count);

    const QImage first = QImage::fromData(bytesOf(pages, PictureFormat::png));
    EXPECT_EQ(first.size(), QSize(400, 400));
    const QRect ink = inked(first);
    EXPECT_GE(ink.left(), 60);
    EXPECT_LE(ink.right(), 380);
    EXPECT_GE(ink.top(), 40);
    EXPECT_LE(ink.bottom(), 360);
    // Half the size: a line of 13 points takes some 15 pixels at two pixels to the point.
    EXPECT_NEAR(inked(first.copy(0, 0, 400, 54)).height(), 10, 4);
}

}  // namespace

}  // namespace tavrel
