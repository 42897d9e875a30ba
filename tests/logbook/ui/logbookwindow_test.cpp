#include "logbook/ui/logbookwindow.h"

#include "book/bookfilter.h"
#include "book/ui/bookeditwindow.h"
#include "book/ui/bookfilterbar.h"
#include "book/ui/booktableview.h"
#include "logbook/ui/convertunitswindow.h"
#include "logbook/ui/divedetails.h"
#include "logbook/ui/profilecommands.h"
#include "logbook/ui/renumberwindow.h"
#include "profile/ui/profileeditorwindow.h"
#include "profile/ui/profileview.h"
#include "support/records.h"
#include "support/testdesktop.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>

namespace tavrel {

namespace {

struct LogbookWindowTest : testing::Test {
    TestDesktop desktop;
    Carnet carnet{desktop.desktop()};
    LogbookWindow window{carnet, desktop.desktop()};
};

TEST_F(LogbookWindowTest, renumbersFromTheNumberGiven) {
    carnet.appendDives(QStringLiteral("Add"), std::vector<Plongee>(3));
    desktop.notifications.post(Notification::renumDives);
    auto& dialog = window.renumberWindow();
    EXPECT_TRUE(dialog.isVisible());
    dialog.findChild<QSpinBox*>(QStringLiteral("firstNumber"))->setValue(10);

    // What was typed is settled first; a user who would rather go on typing finds all numbers as they were.
    carnet.newDive();
    carnet.form().state().type(carnet.form().controls().siteField.index, QStringLiteral("Reef"));
    desktop.alerts.answerNext(2);
    dialog.findChild<QPushButton*>()->click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(carnet.record(2).noPlongee, 0);
    desktop.alerts.answerNext(1);
    dialog.findChild<QPushButton*>()->click();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(carnet.record(2).noPlongee, 12);
    EXPECT_EQ(carnet.count(), 3);
}

TEST_F(LogbookWindowTest, showsAtOnceWhatASiteFills) {
    carnet.appendDives(QStringLiteral("Add"), {filled<Plongee>("noPlongee=5|site=Arche|lieu=Nice")});
    desktop.pickLists.append(PickList::tableauDesSites, QStringLiteral("Arche"));
    carnet.newDive();
    const auto* site = window.editWindow().findChild<QComboBox*>(QStringLiteral("siteField"));
    QTest::keyClicks(site->lineEdit(), QStringLiteral("Arche"));
    Q_EMIT site->lineEdit()->editingFinished();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.editWindow().findChild<QLabel*>(QStringLiteral("siteFieldHint"))->text(),
              u"From dive no. 5: Place");
}

TEST_F(LogbookWindowTest, asksAboutSeriesTypedIntoTheEditor) {
    carnet.appendDives(QStringLiteral("Add"), {filled<Plongee>("noPlongee=5")});
    carnet.selectRows({0});
    window.profileCommands().profilInfo();
    ProfileEditorWindow& editor = window.profileCommands().editorWindow();
    auto* depths = editor.findChild<QPlainTextEdit*>(QStringLiteral("importProfondeurField"));
    const auto typeThenAnswer = [&](int answer) {
        QTest::keyClicks(depths, QStringLiteral("9"));
        desktop.alerts.answerNext(answer);
    };
    enum { import, discard, cancel };
    typeThenAnswer(cancel);
    EXPECT_FALSE(editor.close());
    EXPECT_TRUE(depths->toPlainText().contains(u'9'));
    desktop.alerts.answerNext(cancel);
    EXPECT_FALSE(window.leaveEditing(Settling::leaving));
    desktop.alerts.answerNext(discard);
    EXPECT_TRUE(editor.close());
    EXPECT_EQ(depths->toPlainText(), QString());
    window.profileCommands().profilInfo();
    typeThenAnswer(import);
    EXPECT_TRUE(window.leaveEditing(Settling::leaving));
    EXPECT_EQ(carnet.record(0).profilProfondeur.real(0), 9);
}

TEST_F(LogbookWindowTest, showsWhatBecomesOfTheDivesBeforeItConvertsThem) {
    carnet.appendDives(QStringLiteral("Add"),
                       {filled<Plongee>("noPlongee=5|profondeur=100|tempEau=-50"), filled<Plongee>("altitude=1500")});
    desktop.preferences.set(QStringLiteral("us units"), false);
    ConvertUnitsWindow dialog(carnet, &window);
    const auto* preview = dialog.findChild<QTableWidget*>(QStringLiteral("preview"));
    const auto cell = [&](int row, int column) { return preview->item(row, column)->text(); };
    EXPECT_EQ(preview->rowCount(), 2);
    // The user's numbers are in metres, so these are taken to be in feet.
    EXPECT_EQ((QStringList{cell(0, 0), cell(0, 2), cell(0, 3), cell(0, 5)}.join(u' ')), u"5 100 30.48 –");
    EXPECT_TRUE(dialog.findChild<QLabel*>(QStringLiteral("altitudeWarning"))->isHidden());
    dialog.findChild<QRadioButton*>(QStringLiteral("toFeet"))->setChecked(true);
    EXPECT_EQ(cell(0, 3), u"328.08");
    EXPECT_FALSE(dialog.findChild<QLabel*>(QStringLiteral("altitudeWarning"))->isHidden())
        << "4921 ft is more than the form takes";
    EXPECT_FLOAT_EQ(carnet.record(0).profondeur, 100);
    dialog.accept();
    EXPECT_FLOAT_EQ(carnet.record(0).profondeur, 328.08F);
}

TEST_F(LogbookWindowTest, showsADecimalCommaInFrenchAndKeepsThePoint) {
    setTextLanguage(QStringLiteral("fr"));
    LogbookWindow french(carnet, desktop.desktop());
    carnet.appendDives(QStringLiteral("Add"), {filled<Plongee>("profondeur=82.6|site=Puits 2.5|profilProfondeur=0,9"),
                                               filled<Plongee>("profondeur=9")});
    carnet.selectRows({0});
    french.show();
    const BookTable plain(carnet);
    const auto cell = [&](const char* field) {
        return french.table().model()->index(0, plain.columnOf(field)).data().toString();
    };
    EXPECT_EQ(cell("profondeur"), u"82,6 m");
    EXPECT_EQ(cell("site"), u"Puits 2.5") << "words stay";
    EXPECT_EQ(plain.cell(0, plain.columnOf("profondeur")).text, u"82.6 m");
    EXPECT_EQ(french.details().findChild<QLabel*>(QStringLiteral("Label maximum depth"))->text(), u"82,6 m");
    EXPECT_EQ(french.details().profile().drawing().description,
              u"2 points sur 0 minutes, profondeur maximale 9,0 m, profondeur moyenne 4,5 m.");

    // What is being typed stays as it is typed; looking changes nothing.
    carnet.editWindow();
    auto* depth = french.editWindow().findChild<QLineEdit*>(QStringLiteral("profondeurField"));
    EXPECT_EQ(depth->text(), u"82,6");
    EXPECT_FALSE(carnet.hasEntries());
    depth->clear();
    QTest::keyClicks(depth, QStringLiteral("7.5"));
    EXPECT_EQ(depth->text(), u"7.5");
    carnet.updateDive();
    EXPECT_EQ(carnet.record(0).profondeur, 7.5F);

    const Column& column = *plain.columns()[std::size_t(plain.columnOf("profondeur"))].column;
    for (const char* typed : {"7,5", "7.5"}) {
        french.filterBar().field().setText(QLatin1StringView(typed));
        EXPECT_EQ(carnet.filter().shownRows(), std::vector<int>{0}) << typed;
        EXPECT_FALSE(carnet.filter().marksIn(column, cell("profondeur")).isEmpty()) << typed;
    }
}

}  // namespace

}  // namespace tavrel
