#include "profile/profileeditor.h"
#include "profile/profilesummary.h"
#include "profile/sampling.h"
#include "profile/seriestext.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tavrel {

namespace {

const double nan = std::numeric_limits<double>::quiet_NaN();

TEST(SeriesText, writesALinePerElement) {
    EXPECT_EQ(editProfil(Series::ofReals({0, 5.5, 12}), 1), u"0.0\n5.5\n12.0");
    EXPECT_EQ(editProfil(Series::ofIntegers({0, 7}), 1), u"0.0\n7.0");
    EXPECT_EQ(editProfil(Series::ofReals({nan, -0.25}), 1), u"nan\n-0.2");
    EXPECT_EQ(editProfil(Series::ofIntegers({0, 1, -2147483647}), 0), u"0\n1\n-2147483647");
    EXPECT_EQ(editProfil(Series::ofReals({1.25, 3}), 0), u"1.25\n3");
    EXPECT_EQ(editProfil(Series::ofIntegers({1, 2, 3}), 2), u"\n\n");
}

TEST(SeriesText, isReadLineByLine) {
    // A text that ends with a line break has one element more than numbers.
    EXPECT_EQ(seriesFromText(u"3\n7\n", true), Series::ofReals({3, 7, nan}));
    EXPECT_EQ(seriesFromText(u"", true), Series::ofReals({nan}));
    EXPECT_EQ(seriesFromText(u"", false), Series::ofIntegers({0}));
    EXPECT_EQ(seriesFromText(u"1.5\nx\n 2,5\n-3e1", true), Series::ofReals({1.5, nan, 2.5, -30}));
    EXPECT_EQ(seriesFromText(u"1\n2.9\nyes\n\n -4", false), Series::ofIntegers({1, 2, 0, 0, -4}));
    // Nothing but "\n" parts lines.
    EXPECT_EQ(seriesFromText(u"1\r\n0\r2", false), Series::ofIntegers({1, 0}));
}

TEST(SeriesText, numbersComeAsTheyAreWhateverTheirType) {
    Series singles = Series::empty();
    const float half[] = {0.5F, 2};
    singles.append(std::span(half));
    EXPECT_EQ(realsOf(singles), (std::vector<double>{0.5, 2}));
    EXPECT_EQ(realsOf(Series::ofIntegers({1, -70000})), (std::vector<double>{1, -70000}));
    Series mixed = Series::ofIntegers({4});
    mixed.appendReal(0.25);
    EXPECT_EQ(realsOf(mixed), (std::vector<double>{4, 0.25}));
    EXPECT_TRUE(realsOf(Series()).empty());
}

TEST(Sampling, followsTheStoredCodes) {
    const double samples[] = {30, 15, 10, 5, 2.5, 75, 300, 60};
    for (qint32 code = 0; code < 8; ++code) {
        EXPECT_EQ(samplesPerFiveMinutes(code), samples[code]) << code;
    }
    for (const qint32 code : {-1, 8, 9, 2147483647}) {
        EXPECT_EQ(samplesPerFiveMinutes(code), 30) << code;
    }
}

TEST(ProfileSummary, countsOverTheDepthsOnly) {
    ProfileSeries profile;
    profile.profilProfondeur = Series::ofReals({0, 12.5, 30.1, 4});
    profile.SLOW_Flag = Series::ofIntegers({0, 1, 1, 0, 1});
    profile.CEIL_Flag = Series::ofIntegers({0, 3});
    profile.SURF_Flag = Series::ofIntegers({1, 0, 0, 1});
    profile.GAZ_Flag = Series::ofIntegers({0, 1, 0, 3});
    const ProfileSummary summary = summaryOf(profile);
    EXPECT_EQ(summary.maximum, 30.1F);
    EXPECT_EQ(summary.average, (12.5F + 30.1F + 4.0F) / 4);
    EXPECT_EQ(std::tuple(summary.samples, summary.slow, summary.ceiling, summary.surface, summary.gasSwitches),
              std::tuple(4, 2, 3, 2, 2));
    EXPECT_TRUE(summary.endsAtSurface);

    profile.SURF_Flag = Series::ofIntegers({1, 0, 0, 0});
    EXPECT_FALSE(summaryOf(profile).endsAtSurface);
    profile.SURF_Flag = Series::ofIntegers({1, 0, 0, 2});
    EXPECT_FALSE(summaryOf(profile).endsAtSurface);
    profile.profilProfondeur = Series::ofReals({-2, nan});
    EXPECT_EQ(summaryOf(profile).maximum, 0);
    EXPECT_TRUE(std::isnan(summaryOf(profile).average));
}

TEST(ProfileSummary, ofALoneSampleIsNoProfile) {
    ProfileSeries profile;
    EXPECT_TRUE(std::isnan(summaryOf(profile).average));
    profile.profilArraysDefaultContent();
    const ProfileSummary summary = summaryOf(profile);
    EXPECT_EQ(summary.samples, 0);
    EXPECT_EQ(summary.average, 0);
    EXPECT_FALSE(summary.endsAtSurface);
}

TEST(ProfileEditor, replacesTheChosenSeriesOnly) {
    ProfileSeries profile;
    profile.profilProfondeur = Series::ofReals({0, 10, 0});
    profile.SLOW_Flag = Series::ofIntegers({0, 0, 0});
    profile.PRESS_Data = Series::ofReals({200, 150, 100});
    const ProfileSeries before = profile;
    SeriesTexts texts;
    texts[2] = QStringLiteral("0\n1\n1");
    texts[6] = QString();
    importProfil(profile, texts);
    EXPECT_EQ(profile.SLOW_Flag, Series::ofIntegers({0, 1, 1}));
    EXPECT_EQ(profile.PRESS_Data, Series::ofReals({nan}));
    EXPECT_EQ(profile.profilProfondeur, before.profilProfondeur);
    EXPECT_TRUE(profile.CEIL_Flag.isNull());
    // What the editor shows reads back as it was.
    texts = {};
    texts[0] = editorText(before, editedSeries[0]);
    importProfil(profile, texts);
    EXPECT_EQ(profile.profilProfondeur, before.profilProfondeur);
}

}  // namespace

}  // namespace tavrel
