#include "profile/profiledrawing.h"

#include "drawing/thinning.h"
#include "profile/profiles.h"
#include "support/primitives.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tavrel {

namespace {

/// Ten thousand samples of a second with every flag set: what a picture must make legible.
ProfileDive crowded() {
    std::vector<double> depths(10000);
    for (std::size_t sample = 0; sample < depths.size(); ++sample) {
        depths[sample] = 25 + 20 * std::sin(static_cast<double>(sample) * 0.01);
    }
    depths[5001] = 180;
    ProfileDive dive = diveOf(depths, 0);
    const std::vector<qint32> ones(depths.size(), 1);
    dive.series.ASC_Flag = dive.series.SLOW_Flag = dive.series.CEIL_Flag = dive.series.SURF_Flag =
        dive.series.GAZ_Flag = Series::ofIntegers(ones);
    return dive;
}

TEST(ThinnedPath, keepsWhatShows) {
    EXPECT_EQ(thinnedPath({}, 1).elementCount(), 0);
    const std::vector<QPointF> line{{0, 0}, {0.1, 5}, {0.2, 1}, {0.3, -3}, {0.4, 2}, {0.5, 1}, {2, 2}, {3.5, 1}};
    const QPainterPath path = thinnedPath(line, 1);
    std::vector<QPointF> kept;
    for (int index = 0; index < path.elementCount(); ++index) {
        kept.push_back(path.elementAt(index));
    }
    EXPECT_EQ(kept, (std::vector<QPointF>{{0, 0}, {0.1, 5}, {0.3, -3}, {0.5, 1}, {2, 2}, {3.5, 1}}));
    const double nan = std::nan("");
    EXPECT_EQ(thinnedPath({{0, 0}, {1, nan}, {2, 1e300}, {3, 0}}, 1).boundingRect(), QRectF(0, 0, 3, 1e5));
}

TEST(ProfileDrawing, staysLegibleWhereFlagsAndLabelsCrowd) {
    ProfileStyle style;
    style.dashedLines = true;
    style.plotColor = QColor(1, 2, 3);
    const ProfileDive dive = crowded();
    const ProfileGeometry geometry = profileGeometry(dive, style);
    EXPECT_EQ(geometry.icons.size(), 40000U) << "the figures are all there";
    const Drawing drawing = profileDrawing(geometry, dive, style);

    int points = 0;
    double deepest = 1000;
    for (const auto& line : all<Drawing::Line>(drawing)) {
        points += line.path.elementCount();
        if (line.colour == style.plotColor) {
            deepest = line.path.boundingRect().top();
        }
    }
    EXPECT_LT(points, 12000);
    EXPECT_NEAR(deepest, 583 - 180 * 430.0 / 181, 1e-9) << "the deepest sample is among the points kept";

    const auto icons = all<Drawing::Icon>(drawing);
    EXPECT_LT(icons.size(), 600U);
    EXPECT_GT(icons.size(), 100U);
    std::vector<QRectF> flags;
    for (const auto& icon : icons) {
        if (icon.name == u"alarmeGAZ") {
            const QRectF place(icon.at, icon.size);
            EXPECT_TRUE(QRectF(QPointF(), drawing.size()).contains(place));
            for (const QRectF& other : flags) {
                EXPECT_FALSE(place.intersects(other));
            }
            flags.push_back(place);
        }
    }
    EXPECT_FALSE(flags.empty());

    std::vector<double> times;
    for (const auto& text : all<Drawing::Text>(drawing)) {
        if (text.at.y() == 123) {
            times.push_back(text.at.x());
        }
    }
    ASSERT_GT(times.size(), 3U);
    for (std::size_t label = 1; label < times.size(); ++label) {
        EXPECT_GT(times[label] - times[label - 1], 28);
    }
    EXPECT_LT(all<Drawing::Text>(profileDrawing(diveOf({0, 1e30, 5}, 0), style)).size(), 100U);
}

TEST(ProfileDrawing, flagMovedAsideIsTiedToItsSample) {
    ProfileDive dive = diveOf({0, 10, 20, 10, 0}, 0);
    dive.series.GAZ_Flag = Series::ofIntegers({1, 0, 0, 1, 0});
    const Drawing drawing = profileDrawing(dive, plainStyle());
    std::vector<QPointF> ends;
    for (const auto& line : all<Drawing::Line>(drawing)) {
        if (line.width == 0.5 && line.dash == 0) {
            ends.push_back(line.path.currentPosition());
        }
    }
    // The first stands where the axis is: its flag moves, its tail's end, 57 points right of its left, does not.
    EXPECT_EQ(ends, (std::vector<QPointF>{{31, 583}}));
}

TEST(ProfileDrawing, lettersOfASmallPictureGrowWithoutLeavingTheirPlaces) {
    ProfileDive dive = diveOf(std::vector<double>(200, 48), 0);
    std::vector<qint32> flags(200);
    flags[100] = 1;
    dive.series.SLOW_Flag = dive.series.GAZ_Flag = Series::ofIntegers(flags);
    const ProfileGeometry geometry = profileGeometry(dive, plainStyle());
    const Drawing usual = profileDrawing(geometry, dive, plainStyle());
    const Drawing large = profileDrawing(geometry, dive, plainStyle(), 2);
    std::vector<QRectF> boxes;
    for (const auto& text : all<Drawing::Text>(large)) {
        EXPECT_EQ(text.size, 22);
        if (text.alignment == (Qt::AlignLeft | Qt::AlignBottom)) {
            // A letter of 11 points is taken as 6.6 wide; what may touch is the empty part of the line.
            const QRectF box(text.at.x(), text.at.y() + 4, 13.2 * static_cast<double>(text.text.size()), 20);
            EXPECT_TRUE(QRectF(QPointF(), large.size()).contains(box)) << text.text.toStdString();
            for (const QRectF& other : boxes) {
                EXPECT_FALSE(other.intersects(box)) << text.text.toStdString();
            }
            boxes.push_back(box);
        }
    }
    EXPECT_GT(boxes.size(), 10U);
    // The foot of the flag and the middle of the alarm stay at their sample.
    for (const auto& icon : all<Drawing::Icon>(large)) {
        const auto same = all<Drawing::Icon>(usual);
        const auto before =
            std::find_if(same.begin(), same.end(), [&](const auto& other) { return other.name == icon.name; });
        ASSERT_NE(before, same.end());
        EXPECT_EQ(icon.size, before->size * 2);
        const double part = icon.name == u"alarmeGAZ" ? 1 : 0.5;
        EXPECT_DOUBLE_EQ(icon.at.x() + part * icon.size.width(), before->at.x() + part * before->size.width());
        EXPECT_DOUBLE_EQ(icon.at.y(), before->at.y());
    }
}

TEST(ProfileDrawing, paintsInTheChosenColours) {
    ProfileStyle style;
    style.plotColor = QColor(255, 128, 0);
    style.backgroundColor = Qt::green;
    style.alphaBackground = 0.5;
    style.fillColor = Qt::black;
    style.alphaFill = 1;
    // From 40 m to the surface and back in one line each way; ten points to the metre.
    const ProfileDive dive = diveOf({0, 42, 42, 42});
    const auto painted = [&](int scale) {
        const Drawing drawing = profileDrawing(dive, style);
        QImage image(drawing.size().toSize() * scale, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        drawing.paint(painter, image.rect());
        return image;
    };
    for (const int scale : {1, 2}) {
        const QImage image = painted(scale);
        const auto at = [&](double x, double y) {
            return image.pixelColor(qRound(x * scale), qRound((625 - y) * scale));
        };
        EXPECT_EQ(at(300, 400), QColor(Qt::black)) << "filled";
        EXPECT_EQ(at(660, 200), QColor(127, 255, 127)) << "the background at half its strength on white";
        const QColor curve = at(300, 163);
        EXPECT_GT(curve.red(), 100);
        EXPECT_LT(curve.blue(), 80);
    }
    style.fillPlot = false;
    style.gradientYes = true;
    const QImage gradient = painted(1);
    EXPECT_EQ(gradient.pixelColor(600, 625 - 145).blue(), 1);
    EXPECT_NEAR(gradient.pixelColor(600, 625 - 363).blue(), 128, 2);
    EXPECT_NEAR(gradient.pixelColor(600, 625 - 580).blue(), 253, 2);
}

TEST(ProfileDrawing, dashesItsLinesAndThrowsItsShadowToTheLowerRight) {
    ProfileStyle style = plainStyle();
    style.dashedLines = style.ppO2Line = style.shadow = true;
    const ProfileDive dive = diveOf({0, 42, 42, 42});
    std::string dashed;
    QRectF shadow;
    for (const auto& line : all<Drawing::Line>(profileDrawing(dive, style))) {
        if (line.dash > 0) {
            dashed += QStringLiteral("%1 %2 %3/").arg(line.width).arg(line.dash).arg(line.gap).toStdString();
        }
        shadow = line.colour.alpha() < 255 && shadow.isNull() ? line.path.boundingRect() : shadow;
    }
    EXPECT_EQ(dashed, "0.5 5 3/1 3 3/");
    EXPECT_EQ(shadow, QRectF(QPointF(35, 158), QPointF(685, 578)));
}

TEST(ProfileDrawing, describesItself) {
    const Drawing drawing = profileDrawing(diveOf({0, 30, 20, 0}, 3), plainStyle());
    EXPECT_EQ(drawing.description, u"4 samples over 3 minutes, maximum depth 30.0 m, average depth 12.5 m.");
    EXPECT_EQ(drawing.table.rows, 4);
    EXPECT_EQ(profileDrawing(diveOf({0, 30, std::nan("")}, 3), plainStyle()).description,
              u"3 samples over 2 minutes, maximum depth 30.0 m; some depths are no numbers.");
    EXPECT_EQ(profileDrawing(diveOf({0}), plainStyle()).description, u"This dive has no recorded profile.");
}

}  // namespace

}  // namespace tavrel
