#include "profile/profilegeometry.h"

#include "desktop/preferences.h"
#include "profile/profilereadout.h"
#include "profile/profiles.h"
#include "profile/profilesample.h"
#include "profile/profilesettings.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tavrel {

namespace {

using Stroke = ProfileGeometry::Stroke;
const double nan = std::numeric_limits<double>::quiet_NaN();

/// "text x y" of the labels of a kind, in order.
std::vector<std::string> labelsOf(const ProfileGeometry& geometry, ProfileGeometry::LabelKind kind) {
    std::vector<std::string> all;
    for (const auto& label : geometry.labels) {
        if (label.kind == kind) {
            all.push_back(QStringLiteral("%1 %2 %3").arg(label.text).arg(label.at.x()).arg(label.at.y()).toStdString());
        }
    }
    return all;
}

std::vector<std::string> iconsOf(const ProfileGeometry& geometry) {
    std::vector<std::string> all;
    for (const auto& icon : geometry.icons) {
        all.push_back(QStringLiteral("%1 %2 %3").arg(icon.name).arg(icon.at.x()).arg(icon.at.y()).toStdString());
    }
    return all;
}

using Strings = std::vector<std::string>;
using Kind = ProfileGeometry::LabelKind;

TEST(ProfileGeometry, placesSamplesAndAxes) {
    // The deepest is 42, so D is 43 and a metre takes ten points; 13 samples stand 50 points apart.
    std::vector<double> depths(13, 42);
    depths[0] = 0;
    depths[1] = 5.5;
    const ProfileGeometry geometry = profileGeometry(diveOf(depths), plainStyle());
    Stroke profile{{30, 583}, {30, 583}, {80, 528}};
    for (int sample = 2; sample < 13; ++sample) {
        profile.emplace_back(30 + 50 * sample, 163);
    }
    profile.emplace_back(680, 583);
    EXPECT_EQ(geometry.profile, profile);
    EXPECT_EQ(geometry.surface, (Stroke{{30, 583}, {680, 583}}));
    EXPECT_EQ(geometry.axes, (std::vector<Stroke>{{{30, 143}, {680, 143}, {675, 138}}, {{30, 143}, {30, 598}}}));
    EXPECT_EQ(labelsOf(geometry, Kind::axis), (Strings{"Time (min) 600 153", "Depth (m) 8 603"}));
    EXPECT_TRUE(geometry.dashed.empty() && geometry.limit.empty() && geometry.icons.empty());
}

TEST(ProfileGeometry, marksEveryFiveMinutesAndMetres) {
    // A hundred samples of ten seconds: five minutes take 660 / 100 x 30 = 198 points.
    ProfileStyle style = plainStyle();
    std::vector<double> depths(100, 20.5);
    const ProfileGeometry plain = profileGeometry(diveOf(depths), style);
    EXPECT_EQ(labelsOf(plain, Kind::time), (Strings{"0 25 123", "5 223 123", "10 421 123", "15 619 123"}));
    // D is 21.5, so 20 points to the metre.
    EXPECT_EQ(labelsOf(plain, Kind::depth), (Strings{"0 8 575", "5 8 475", "10 8 375", "15 8 275", "20 8 175"}));
    ASSERT_EQ(plain.ticks.size(), 9U);
    EXPECT_EQ(plain.ticks[1], (Stroke{{228, 143}, {228, 151}}));
    EXPECT_EQ(plain.ticks[8], (Stroke{{30, 183}, {38, 183}}));

    style.xMinorTicks = true;
    const ProfileGeometry minutes = profileGeometry(diveOf(depths), style);
    // 39.6 points to the minute, whole points only, below 640: 17 of them.
    ASSERT_EQ(minutes.ticks.size(), 9U + 17);
    EXPECT_EQ(minutes.ticks[5], (Stroke{{69, 143}, {69, 148}}));
    style.xMinorTicks = false;
    style.yMinorTicks = true;
    const ProfileGeometry metres = profileGeometry(diveOf(depths), style);
    ASSERT_EQ(metres.ticks.size(), 9U + 22);
    EXPECT_EQ(metres.ticks[4 + 21], (Stroke{{30, 163}, {35, 163}}));
}

TEST(ProfileGeometry, timeStepFollowsTheSamplingCode) {
    const std::vector<double> depths(60, 10);
    const auto last = [&](qint32 code) {
        return labelsOf(profileGeometry(diveOf(depths, code), plainStyle()), Kind::time).back();
    };
    EXPECT_EQ(last(2), "25 575 123");  // ten samples to five minutes, 110 points
    EXPECT_EQ(last(6), "0 25 123");
    EXPECT_EQ(last(4), "115 657 123");  // two and a half samples, 27.5 points
    EXPECT_EQ(last(9), last(0));
    // Nothing stands in the last twenty points: the sixth tick of 108.2 points would.
    EXPECT_EQ(labelsOf(profileGeometry(diveOf(std::vector<double>(61, 10), 2), plainStyle()), Kind::time).size(), 6U);
}

TEST(ProfileGeometry, dashedLinesLeaveRoomForTheTimeLabel) {
    ProfileStyle style = plainStyle();
    style.dashedLines = true;
    const ProfileGeometry geometry = profileGeometry(diveOf({0, 20.5}), style);
    ASSERT_EQ(geometry.dashed.size(), 5U);
    EXPECT_EQ(geometry.dashed[3], (Stroke{{30, 283}, {680, 283}}));
    EXPECT_EQ(geometry.dashed[4], (Stroke{{30, 183}, {680, 183}}));
    const ProfileGeometry lower = profileGeometry(diveOf({0, 20}), style);
    // 430 / 21 points to the metre put 20 m at 173.48; and 40 / 41 of 430 below the surface is 163.5, which is low.
    EXPECT_EQ(lower.dashed[4].back().x(), 680);
    EXPECT_EQ(profileGeometry(diveOf({0, 40}), style).dashed[8].back().x(), 590);
}

TEST(ProfileGeometry, limitOfOxygenDependsOnCodeAndGas) {
    ProfileStyle style = plainStyle();
    ProfileDive dive = diveOf({0, 42});
    dive.fracO2 = 40;
    dive.ppO2 = 4;
    EXPECT_TRUE(profileGeometry(dive, style).limit.empty());
    style.ppO2Line = true;
    // 1.5 bar of 40 % are reached at 27.5 m.
    const ProfileGeometry geometry = profileGeometry(dive, style);
    EXPECT_EQ(geometry.limit, (Stroke{{30, 308}, {680, 308}}));
    const auto label = geometry.labels.end() - 1;
    EXPECT_EQ(label->text, u"ppO₂ 1.5 bar");
    EXPECT_EQ(label->at.x(), 610);
    EXPECT_NEAR(label->at.y(), 583 - 27.5 * 425 / 43, 1e-9);
    EXPECT_EQ(label->colour, QColor(Qt::red));

    // Drawn when the deepest and two metres pass it.
    dive = diveOf({0, 25.5});
    dive.fracO2 = 40;
    dive.ppO2 = 4;
    EXPECT_TRUE(profileGeometry(dive, style).limit.empty());
    dive.series.profilProfondeur = Series::ofReals({0, 25.6});
    EXPECT_EQ(profileGeometry(dive, style).limit.back().x(), 590);
    EXPECT_EQ(labelsOf(profileGeometry(dive, style), Kind::limit).front().substr(0, 19), "ppO₂ 1.5 bar 520 ");

    // Code 0 keeps its limit of 0 bar: ten metres above the surface.
    dive.ppO2 = 0;
    dive.series.profilProfondeur = Series::ofReals({0, 42});
    EXPECT_EQ(profileGeometry(dive, style).limit.front(), QPointF(30, 683));
    dive.fracO2 = 0;
    dive.ppO2 = 3;
    EXPECT_TRUE(profileGeometry(dive, style).limit.empty());

    const float limits[] = {0.0F, 1.2F, 1.3F, 1.4F, 1.5F, 1.6F, 1.6F};
    for (qint32 code = 0; code < 7; ++code) {
        EXPECT_EQ(ppO2Limit(code), limits[code]) << code;
    }
    EXPECT_EQ(ppO2Limit(-1), 1.6F);
}

TEST(ProfileGeometry, pressuresRunBelowTheTimeAxis) {
    ProfileDive dive = diveOf({0, 10, 10, 10, 0});
    dive.series.PRESS_Data = Series::ofReals({200, 150, 0, nan, 50});
    EXPECT_EQ(profileGeometry(dive, plainStyle()).pressure, (Stroke{{30, 80}, {30, 80}, {160, 65}, {550, 35}}));
    // A lone pressure stands for none: then start and end are the tank's, and a set ceiling flag is a point between.
    dive.series.PRESS_Data = Series::ofReals({123});
    dive.series.CEIL_Flag = Series::ofIntegers({1, 0, 1, 0, 1});
    dive.pressDepart = 200;
    dive.pressFin = 100;
    EXPECT_EQ(profileGeometry(dive, plainStyle()).pressure, (Stroke{{30, 80}, {30, 80}, {290, 20.3}, {550, 50}}));
    dive.pressDepart = 0;
    dive.pressFin = 0;
    dive.series.CEIL_Flag = Series::ofIntegers({0, 0, 0, 0, 0});
    EXPECT_EQ(profileGeometry(dive, plainStyle()).pressure, (Stroke{{30, 80}}));
}

TEST(ProfileGeometry, alarmsStandAtTheirSamples) {
    // Five samples 130 points apart; ten points to the metre.
    ProfileDive dive = diveOf({0, 42, 10, 20, 0});
    dive.series.ASC_Flag = Series::ofIntegers({0, 1, 0, 0, 0});
    dive.series.SLOW_Flag = Series::ofIntegers({0, 0, 1, 2, 0});
    dive.series.CEIL_Flag = Series::ofIntegers({0, 0, 0, 1, 0});
    dive.series.SURF_Flag = Series::ofIntegers({1, 0, 1, 0, 1});
    const ProfileGeometry geometry = profileGeometry(dive, plainStyle());
    EXPECT_EQ(iconsOf(geometry), (Strings{"alarmeASC 156 155", "alarmeSLOW 283 483", "alarmeCEIL 413 383"}));
    // Not at the first and last samples.
    EXPECT_EQ(geometry.surfaceExcursions, (std::vector<Stroke>{{{160, 164}, {225, 582}, {290, 484}}}));

    // A series of another length is left out; the slow-down flags decide for the surface excursions.
    dive.series.ASC_Flag = Series::ofIntegers({1, 1, 1, 1});
    dive.series.SURF_Flag = Series::ofIntegers({1, 1});
    EXPECT_EQ(iconsOf(profileGeometry(dive, plainStyle())).size(), 2U);
    EXPECT_EQ(profileGeometry(dive, plainStyle()).surfaceExcursions.size(), 1U);
    dive.series.SLOW_Flag = Series::ofIntegers({1});
    EXPECT_EQ(iconsOf(profileGeometry(dive, plainStyle())).size(), 1U);
    EXPECT_TRUE(profileGeometry(dive, plainStyle()).surfaceExcursions.empty());
    dive.series.CEIL_Flag = dive.series.GAZ_Flag = Series::ofIntegers({0, 0, 0, 1, 0, 1});
    EXPECT_TRUE(iconsOf(profileGeometry(dive, plainStyle())).empty());
}

TEST(ProfileGeometry, gasSwitchesNameTheirGas) {
    ProfileDive dive = diveOf({42, 42, 21, 6, 0});
    dive.series.GAZ_Flag = Series::ofIntegers({1, 8, 2, 7, 3});
    dive.ean = {50, 97, 0, 0, 0, 98};
    ProfileStyle style = plainStyle();
    const ProfileGeometry geometry = profileGeometry(dive, style);
    EXPECT_EQ(iconsOf(geometry),
              (Strings{"alarmeGAZ -27 163", "alarmeGAZ 233 373", "alarmeGAZO2 390 523", "alarmeGAZ 493 583"}));
    EXPECT_EQ(labelsOf(geometry, Kind::gas),
              (Strings{"Bottom -12 177", "EAN50 235 387", "O₂ 393 541", "EAN97 495 597"}));
    EXPECT_EQ(geometry.labels.back().colour, QColor(Qt::black));
    style.gradientLinesColor = QColor(1, 2, 3);
    EXPECT_EQ(profileGeometry(dive, style).labels.back().colour, QColor(Qt::black));
    style.gradientYes = true;
    EXPECT_EQ(profileGeometry(dive, style).labels.back().colour, QColor(1, 2, 3));
}

TEST(ProfileGeometry, ofDefaultContentIsAxesAndSurface) {
    ProfileDive dive;
    dive.series.profilArraysDefaultContent();
    const ProfileGeometry geometry = profileGeometry(dive, plainStyle());
    EXPECT_EQ(geometry.profile, (Stroke{{30, 583}, {30, 583}, {680, 583}}));
    EXPECT_EQ(labelsOf(geometry, Kind::time), Strings{"0 25 123"});
    EXPECT_EQ(labelsOf(geometry, Kind::depth), Strings{"0 8 575"});
    EXPECT_TRUE(geometry.icons.empty());
}

TEST(ProfileGeometry, survivesWhatADamagedFileMayHold) {
    ProfileStyle style;
    style.dashedLines = style.ppO2Line = style.gradientYes = true;
    for (const double depth : {1e30, std::numeric_limits<double>::infinity(), nan, -1e30}) {
        const ProfileGeometry geometry = profileGeometry(diveOf({0, depth, 3}), style);
        EXPECT_LT(geometry.ticks.size(), 100000U) << depth;
    }
    EXPECT_TRUE(profileGeometry(ProfileDive(), style).icons.empty());
}

TEST(ProfileStyle, comesFromThePreferences) {
    const QTemporaryDir folder;
    Preferences preferences(folder.filePath(QStringLiteral("store")));
    ProfileStyle style = ProfileStyle::read(preferences);
    EXPECT_EQ(style.plotColor, QColor(Qt::red));
    EXPECT_EQ(style.fillColor, QColor(Qt::blue));
    EXPECT_EQ(style.alphaFill, 0.5);
    EXPECT_TRUE(style.fillPlot && style.xMinorTicks && style.yMinorTicks);
    EXPECT_FALSE(style.gradientYes || style.dashedLines || style.ppO2Line || style.shadow);
    EXPECT_EQ(style.gradientLinesColor, QColor(Qt::black)) << "never chosen";
    EXPECT_EQ(style.paper().name(), u"#bfbfbf");
    preferences.set(QStringLiteral("ppO2 line"), true);
    preferences.set(QStringLiteral("dashed lines"), true);
    preferences.set(QStringLiteral("alpha background color"), 0.0);
    preferences.set(settings::gradientLinesColor, QColor(Qt::green));
    style = ProfileStyle::read(preferences);
    EXPECT_TRUE(style.ppO2Line && style.dashedLines);
    EXPECT_EQ(style.paper(), QColor(Qt::white));
    EXPECT_EQ(style.gradientLinesColor.name(), u"#00ff00");
}

TEST(ProfileReadOut, followsThePointer) {
    // 40 samples of ten seconds, ten points to the metre.
    std::vector<double> depths(40, 10);
    depths[7] = 42;
    const ProfileScale scale = profileScale(diveOf(depths));
    const ProfileReadOut middle = profileReadOut({330, 383}, scale, 0);
    EXPECT_EQ(middle.minutes, 300.0 * 39 / 3900);
    EXPECT_EQ(middle.depth, 20);
    EXPECT_EQ(middle.words(), u"Depth: 20.0 m   Time: 3.0 min");
    EXPECT_EQ(profileReadOut({10, 600}, scale, 0).minutes, 0);
    EXPECT_EQ(profileReadOut({10, 600}, scale, 0).depth, 0);
    // On the time axis and two points above there is no depth.
    EXPECT_FALSE(profileReadOut({330, 145}, scale, 0).depth);
    EXPECT_TRUE(profileReadOut({330, 145.5}, scale, 0).depth);
    EXPECT_EQ(profileReadOut({330, 100}, scale, 0).words(), u"Time: 3.0 min");
    EXPECT_TRUE(std::isinf(profileReadOut({330, 383}, scale, 4).minutes));
    EXPECT_EQ(profileReadOut({330, 383}, {1, 43}, 0).depth, 0);
    EXPECT_EQ(profileReadOut({330, 383}, {1, 43}, 4).minutes, 0);

    const int scales[] = {3900, 1950, 1300, 650, 0, 9750, 39000, 7800, 3900};
    for (qint32 code = 0; code < 9; ++code) {
        EXPECT_EQ(readOutTimeScale(code), scales[code]) << code;
    }
    EXPECT_EQ(sampleNear({30 + 7.4 * 650 / 40, 0}, scale), 7);
    EXPECT_EQ(sampleNear({-500, 0}, scale), 0);
    EXPECT_EQ(sampleNear({9000, 0}, scale), 39);
}

TEST(ProfileSamples, tellDepthPressureAndTheGasBreathed) {
    ProfileDive dive = diveOf({0, 40, 21, 6}, 2);
    dive.series.PRESS_Data = Series::ofReals({200, 150, 0, 90});
    dive.series.GAZ_Flag = Series::ofIntegers({0, 0, 2, 0});
    dive.series.SLOW_Flag = Series::ofIntegers({0, 1, 0, 0});
    dive.fracO2 = 28;
    dive.ean[0] = 50;
    const ProfileSamples samples(dive);
    EXPECT_EQ(samples.at(1).minutes, 0.5);
    EXPECT_EQ(samples.at(1).pressure, 150);
    EXPECT_NEAR(*samples.at(1).ppO2, 0.28 * 5, 1e-12);
    EXPECT_FALSE(samples.at(2).pressure);
    EXPECT_NEAR(*samples.at(2).ppO2, 0.5 * 3.1, 1e-12);
    EXPECT_NEAR(*samples.at(3).ppO2, 0.5 * 1.6, 1e-12);
    EXPECT_EQ(samples.words(1), u"0:30  ·  40.0 m  ·  150 bar  ·  ppO₂ 1.40 bar  ·  slow down");

    dive.series.GAZ_Flag = Series::ofIntegers({2, 0, 1, 0});
    dive.series.ASC_Flag = dive.series.CEIL_Flag = dive.series.SURF_Flag = Series::ofIntegers({1, 0, 0, 0});
    EXPECT_NEAR(*ProfileSamples(dive).at(1).ppO2, 0.5 * 5, 1e-12);
    EXPECT_NEAR(*ProfileSamples(dive).at(3).ppO2, 0.28 * 1.6, 1e-12);
    EXPECT_EQ(ProfileSamples(dive).at(0).events, u"ascent alarm, ceiling violated, at the surface, change to 50 % O₂");
    dive.series.GAZ_Flag = Series::ofIntegers({0, 0, 2, 0});

    // A closed rebreather holds its set point, as far as the pressure around it allows.
    dive.setPoint = 1.3;
    EXPECT_EQ(ProfileSamples(dive).at(1).ppO2, 1.3);
    EXPECT_EQ(ProfileSamples(dive).at(0).ppO2, 1.0);

    const DataTable table = sampleTable(std::make_shared<const ProfileSamples>(dive));
    EXPECT_EQ(table.rows, 4);
    EXPECT_EQ(table.text().section(u'\n', 3, 3), u"3\t1:00\t21.0\t\t50 %\t1.30\tchange to 50 % O₂");
}

}  // namespace

}  // namespace tavrel
