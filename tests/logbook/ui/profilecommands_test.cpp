#include "logbook/ui/profilecommands.h"

#include "logbook/ui/logbookwindow.h"
#include "profile/profilesettings.h"
#include "profile/ui/profileeditorwindow.h"
#include "profile/ui/profileview.h"
#include "profile/ui/profilewindow.h"
#include "support/records.h"
#include "support/testdesktop.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace tavrel {

namespace {

/// A logbook of two dives with profiles, the first selected.
struct ProfileCommandsTest : testing::Test {
    ProfileCommandsTest() : carnet(desktop.desktop()), window(carnet, desktop.desktop()) {
        carnet.appendDives(QStringLiteral("Add"), {filled<Plongee>("noPlongee=7|profilProfondeur=0,20,0"),
                                                   filled<Plongee>("noPlongee=8|profilProfondeur=0,30,30,0|o2Mix=32")});
        carnet.selectRows({0});
    }

    QPlainTextEdit& depths() {
        return *commands().editorWindow().findChild<QPlainTextEdit*>(QStringLiteral("importProfondeurField"));
    }
    QCheckBox& marked() {
        return *commands().editorWindow().findChild<QCheckBox*>(QStringLiteral("eraseProfondeurSwitch"));
    }
    void import() { commands().editorWindow().findChild<QPushButton*>(QStringLiteral("importProfil"))->click(); }
    ProfileCommands& commands() { return window.profileCommands(); }

    TestDesktop desktop;
    Carnet carnet;
    LogbookWindow window;
};

TEST_F(ProfileCommandsTest, profileWindowFollowsTheDiveShown) {
    commands().displayProfilWindow();
    ProfileWindow& shown = commands().profileWindow();
    EXPECT_TRUE(shown.isVisible());
    EXPECT_EQ(shown.windowTitle(), u"Profile of dive 7");
    EXPECT_EQ(shown.view().scale().samples, 3);
    carnet.selectRows({1});
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.windowTitle() == u"Profile of dive 8"; }));
    EXPECT_EQ(shown.view().scale().deepest, 31);
    shown.view().markSample(1);
    EXPECT_TRUE(shown.sampleValues().contains(QStringLiteral("1.28 bar"))) << shown.sampleValues().toStdString();

    // An entry that is not stored yet counts, and so does a setting.
    carnet.form().state().type(carnet.form().controls().o2MixField[0].index, QStringLiteral("50"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !shown.view().markedSample(); }));
    shown.view().markSample(1);
    EXPECT_TRUE(shown.sampleValues().contains(QStringLiteral("2.00 bar")));
    const std::size_t before = shown.view().drawing().primitives().size();
    desktop.preferences.set(settings::dashedLines, true);
    desktop.notifications.post(Notification::profile);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.view().drawing().primitives().size() > before; }));
    EXPECT_TRUE(window.furtherWindows().contains(&shown));
}

TEST_F(ProfileCommandsTest, importStoresTheDive) {
    commands().profilInfo();
    EXPECT_EQ(commands().editorWindow().windowTitle(), u"Profile data of dive 7");
    EXPECT_EQ(depths().toPlainText(), u"0.0\n20.0\n0.0");
    depths().setPlainText(QStringLiteral("0\n25.5\n12\n0"));
    marked().setChecked(true);
    import();
    EXPECT_EQ(carnet.record(0).profilProfondeur, Series::ofReals({0, 25.5, 12, 0}));
    EXPECT_EQ(carnet.record(0).SLOW_Flag, Series::ofIntegers({0}));
    EXPECT_EQ(carnet.record(1).profilProfondeur.size(), 4U);
    EXPECT_EQ(depths().toPlainText(), u"0.0\n25.5\n12.0\n0.0");
    EXPECT_FALSE(marked().isChecked());
    carnet.undoStack().undo();
    EXPECT_EQ(carnet.record(0).profilProfondeur, Series::ofReals({0, 20, 0}));
}

TEST_F(ProfileCommandsTest, textsThatAreMarkedStayForTheNextDive) {
    commands().profilInfo();
    carnet.selectRows({1});
    EXPECT_TRUE(QTest::qWaitFor([&] { return depths().toPlainText() == u"0.0\n30.0\n30.0\n0.0"; }));
    depths().setPlainText(QStringLiteral("1\n2"));
    marked().setChecked(true);
    carnet.selectRows({0});
    EXPECT_TRUE(QTest::qWaitFor([&] { return commands().editorWindow().windowTitle() == u"Profile data of dive 7"; }));
    EXPECT_EQ(depths().toPlainText(), u"1\n2");
    desktop.alerts.answerNext(0);
    import();
    EXPECT_EQ(carnet.record(0).profilProfondeur, Series::ofReals({1, 2}));
}

TEST_F(ProfileCommandsTest, newDiveKeepsItsSeriesInTheForm) {
    carnet.newDive();
    commands().profilInfo();
    depths().setPlainText(QStringLiteral("0\n9"));
    marked().setChecked(true);
    import();
    EXPECT_EQ(carnet.count(), 2);
    EXPECT_EQ(carnet.record(0).profilProfondeur, Series::ofReals({0, 20, 0}));
    carnet.addDive();
    EXPECT_EQ(carnet.record(2).profilProfondeur, Series::ofReals({0, 9}));
}

}  // namespace

}  // namespace tavrel
