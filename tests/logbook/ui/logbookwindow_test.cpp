#include "logbook/ui/logbookwindow.h"

#include "logbook/ui/convertunitswindow.h"
#include "logbook/ui/renumberwindow.h"
#include "support/records.h"
#include "support/testdesktop.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableWidget>
#include <gtest/gtest.h>

namespace tavrel {

namespace {

class LogbookWindowTest : public testing::Test {
protected:
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

TEST_F(LogbookWindowTest, showsWhatBecomesOfTheDivesBeforeItConvertsThem) {
    carnet.appendDives(QStringLiteral("Add"),
                       {filled<Plongee>("noPlongee=5|profondeur=100|tempEau=-50"), filled<Plongee>("altitude=1500")});
    desktop.preferences.set(QStringLiteral("us units"), false);
    ConvertUnitsWindow dialog(carnet, &window);
    const auto* preview = dialog.findChild<QTableWidget*>(QStringLiteral("preview"));
    const auto cell = [&](int row, int column) { return preview->item(row, column)->text(); };
    EXPECT_EQ(preview->rowCount(), 2);
    // The user's numbers are in metres, so these are taken to be in feet.
    EXPECT_EQ(cell(0, 0), u"5");
    EXPECT_EQ(cell(0, 2), u"100");
    EXPECT_EQ(cell(0, 3), u"30.48");
    EXPECT_EQ(cell(0, 5), u"–");
    EXPECT_TRUE(dialog.findChild<QLabel*>(QStringLiteral("altitudeWarning"))->isHidden());
    dialog.findChild<QRadioButton*>(QStringLiteral("toFeet"))->setChecked(true);
    EXPECT_EQ(cell(0, 3), u"328.08");
    EXPECT_FALSE(dialog.findChild<QLabel*>(QStringLiteral("altitudeWarning"))->isHidden())
        << "4921 ft is more than the form takes";
    EXPECT_FLOAT_EQ(carnet.record(0).profondeur, 100);
    dialog.accept();
    EXPECT_FLOAT_EQ(carnet.record(0).profondeur, 328.08F);
}

TEST_F(LogbookWindowTest, keepsItsImportsInAMenuOfTheirOwn) {
    EXPECT_TRUE(window.importActions().isEmpty());
    QStringList imports;
    window.addImport(literal("UDCF"), "importUDCF", [&] { imports.append(QStringLiteral("UDCF")); });
    window.addImport(literal("Handheld"), nullptr, [&] { imports.append(QStringLiteral("handheld")); });
    for (QAction* action : window.importActions()) {
        action->trigger();
        EXPECT_FALSE(window.ownMenuActions().contains(action));
    }
    EXPECT_EQ(imports, (QStringList{QStringLiteral("UDCF"), QStringLiteral("handheld")}));
}

}  // namespace

}  // namespace tavrel
