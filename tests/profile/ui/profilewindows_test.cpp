#include "desktop/preferences.h"
#include "drawing/ui/datatablewindow.h"
#include "profile/profiles.h"
#include "profile/ui/profileeditorwindow.h"
#include "profile/ui/profileview.h"
#include "profile/ui/profilewindow.h"
#include "support/testdesktop.h"

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <optional>

namespace tavrel {

namespace {

/// Forty samples of ten seconds, ten points to the metre, at 42 m from the third sample on.
ProfileDive fortySamples() {
    std::vector<double> depths(40, 42);
    depths[0] = 0;
    depths[1] = 20;
    return diveOf(depths);
}

/// At the size of the picture, where its points are pixels from the lower left corner.
void showAtItsSize(ProfileView& view) {
    view.resize(700, 625);
}

void moveTo(ProfileView& view, double x, double y) {
    QMouseEvent move(QEvent::MouseMove, QPointF(x, 625 - y), QPointF(x, 625 - y), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &move);
}

TEST(ProfileWindow, readsThePointerByTheIntervalChosen) {
    TestDesktop desktop;
    ProfileWindow window(desktop.desktop());
    window.setProfile(fortySamples(), plainStyle(), QStringLiteral("Dive 7"));
    EXPECT_EQ(window.windowTitle(), u"Dive 7");
    EXPECT_TRUE(window.readOut().startsWith(QStringLiteral("40 samples")));
    showAtItsSize(window.view());
    moveTo(window.view(), 330, 383);
    EXPECT_EQ(window.readOut(), u"Depth: 20.0 m   Time: 3.0 min");
    moveTo(window.view(), 330, 140);
    EXPECT_EQ(window.readOut(), u"Time: 3.0 min");
    auto* interval = window.findChild<QComboBox*>(QStringLiteral("samplingRatePopUp"));
    EXPECT_EQ(interval->currentText(), u"10 s");
    interval->setCurrentIndex(interval->findText(QStringLiteral("20 s")));
    EXPECT_EQ(window.readOut(), u"Time: 6.0 min");
    window.setProfile(diveOf({0, 1}, 3), plainStyle(), {});
    EXPECT_EQ(interval->currentText(), u"1 min");
    EXPECT_FALSE(window.readOut().isEmpty());
}

TEST(ProfileWindow, marksSamplesByPointerAndKeys) {
    TestDesktop desktop;
    ProfileWindow window(desktop.desktop());
    window.setProfile(fortySamples(), plainStyle(), QStringLiteral("Dive 7"));
    ProfileView& view = window.view();
    showAtItsSize(view);
    EXPECT_FALSE(view.markedSample());
    EXPECT_EQ(window.sampleValues(), QString());
    moveTo(view, 30 + 650.0 / 40, 300);
    EXPECT_EQ(view.markedSample(), 1);
    EXPECT_EQ(window.sampleValues(), u"0:10  ·  20.0 m  ·  ppO₂ 0.63 bar");
    EXPECT_EQ(view.accessibleDescription(), window.sampleValues());
    // The marker stands on the picture, and goes with the sample.
    const QImage marked = view.grab().toImage();
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_EQ(view.markedSample(), 2);
    EXPECT_NE(view.grab().toImage(), marked);
    QTest::keyClick(&view, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(view.markedSample(), 12);
    QTest::keyClick(&view, Qt::Key_End);
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_EQ(view.markedSample(), 39);
    QTest::keyClick(&view, Qt::Key_Home);
    QTest::keyClick(&view, Qt::Key_Left);
    EXPECT_EQ(view.markedSample(), 0);

    view.showData();
    EXPECT_TRUE(view.dataWindow()->isVisible());
    window.setProfile(diveOf({0}), plainStyle(), {});
    QTest::keyClick(&view, Qt::Key_Right);
    moveTo(view, 300, 300);
    EXPECT_FALSE(view.markedSample()) << "a lone sample is no profile";
}

struct ProfileEditorTest : testing::Test {
    ProfileEditorTest() : window(desktop.desktop()) {
        profile.profilProfondeur = Series::ofReals({0, 5.5, 12});
        profile.SLOW_Flag = Series::ofIntegers({0, 1, 0});
        profile.profilArraysDefaultContent();
        window.updateProfilInfo(profile, 12);
        QObject::connect(&window, &ProfileEditorWindow::importRequested,
                         [this](const SeriesTexts& texts) { imported = texts; });
    }

    template <class Widget>
    Widget& find(const char* name) {
        return *window.findChild<Widget*>(QLatin1StringView(name));
    }

    TestDesktop desktop;
    ProfileSeries profile;
    ProfileEditorWindow window;
    std::optional<SeriesTexts> imported;
};

TEST_F(ProfileEditorTest, showsTextsAndCounts) {
    EXPECT_EQ(find<QPlainTextEdit>("importSLOW_Field").toPlainText(), u"0\n1\n0");
    EXPECT_EQ(find<QPlainTextEdit>("importPRESS_Field").toPlainText(), QString());
    EXPECT_EQ(find<QLabel>("countGAZ_Field").text(), u"No data");
    for (const QCheckBox* each : window.findChildren<QCheckBox*>()) {
        EXPECT_FALSE(each->isChecked()) << each->objectName().toStdString();
    }
    EXPECT_FALSE(find<QPushButton>("importProfil").isEnabled());
}

TEST_F(ProfileEditorTest, importsTheSeriesThatAreMarked) {
    find<QPlainTextEdit>("importSLOW_Field").setPlainText(QStringLiteral("1\n1\n"));
    find<QCheckBox>("eraseSLOW_Switch").setChecked(true);
    find<QPushButton>("importProfil").click();
    ASSERT_TRUE(imported);
    for (std::size_t index = 0; index < imported->size(); ++index) {
        EXPECT_EQ((*imported)[index].has_value(), index == 2) << index;
    }
    EXPECT_EQ((*imported)[2], u"1\n1\n");
    // Typing marks a series; showing the dive again unmarks it.
    QTest::keyClicks(&find<QPlainTextEdit>("importGAZ_Field"), QStringLiteral("1"));
    EXPECT_TRUE(find<QCheckBox>("eraseGAZ_Switch").isChecked());
    window.updateProfilInfo(profile, 12);
    EXPECT_FALSE(find<QCheckBox>("eraseGAZ_Switch").isChecked());
    EXPECT_EQ(find<QPlainTextEdit>("importSLOW_Field").toPlainText(), u"0\n1\n0");
}

TEST_F(ProfileEditorTest, followsTheDiveAndSaysWhoseTextsStay) {
    QTest::keyClicks(&find<QPlainTextEdit>("importGAZ_Field"), QStringLiteral("1"));
    profile.profilProfondeur = Series::ofReals({0, 7});
    window.followDive(profile, 13);
    EXPECT_EQ(find<QPlainTextEdit>("importProfondeurField").toPlainText(), u"0.0\n7.0");
    EXPECT_EQ(find<QLabel>("countProfondeurField").text(), u"2 values");
    EXPECT_EQ(find<QPlainTextEdit>("importGAZ_Field").toPlainText(), u"1");
    EXPECT_EQ(find<QLabel>("countGAZ_Field").text(), u"Typed for dive 12");
    EXPECT_EQ(window.chosenTexts()[0], std::nullopt);

    desktop.alerts.answerNext(1);
    find<QPushButton>("importProfil").click();
    EXPECT_FALSE(imported) << "into a dive that it was not typed for";
    EXPECT_TRUE(desktop.alerts.questions.back().message.contains(u"for dive 12. Import them into dive 13?"));
    desktop.alerts.answerNext(0);
    find<QPushButton>("importProfil").click();
    EXPECT_TRUE(imported);
}

TEST_F(ProfileEditorTest, allSwitchEmptiesAndMarksEverySeries) {
    find<QCheckBox>("eraseAllSwitch").click();
    find<QPushButton>("importProfil").click();
    ASSERT_TRUE(imported);
    for (const auto& text : *imported) {
        ASSERT_TRUE(text);
        EXPECT_EQ(*text, QString());
    }
    // Turned off again, the dive's own series are back.
    find<QCheckBox>("eraseAllSwitch").click();
    EXPECT_EQ(find<QPlainTextEdit>("importProfondeurField").toPlainText(), u"0.0\n5.5\n12.0");
    EXPECT_EQ(window.chosenTexts(), SeriesTexts());
}

}  // namespace

}  // namespace tavrel
