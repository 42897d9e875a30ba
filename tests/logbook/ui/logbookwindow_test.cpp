#include "logbook/ui/logbookwindow.h"

#include "logbook/ui/renumberwindow.h"
#include "support/testdesktop.h"

#include <QPushButton>
#include <QSpinBox>
#include <gtest/gtest.h>

namespace tavrel {

namespace {

TEST(LogbookWindow, renumbersFromTheNumberGiven) {
    TestDesktop desktop;
    Carnet carnet(desktop.desktop());
    LogbookWindow window(carnet, desktop.desktop());
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

TEST(LogbookWindow, keepsItsImportsInAMenuOfTheirOwn) {
    TestDesktop desktop;
    Carnet carnet(desktop.desktop());
    LogbookWindow window(carnet, desktop.desktop());
    EXPECT_TRUE(window.importActions().isEmpty());
    QStringList imports;
    window.addImport(QStringLiteral("Handheld"), [&] { imports.append(QStringLiteral("handheld")); });
    window.provideCommand(QStringLiteral("importUDCF"), [&] { imports.append(QStringLiteral("UDCF")); });
    for (QAction* action : window.importActions()) {
        action->trigger();
        EXPECT_FALSE(window.ownMenuActions().contains(action));
    }
    EXPECT_EQ(imports, (QStringList{QStringLiteral("UDCF"), QStringLiteral("handheld")}));
}

}  // namespace

}  // namespace tavrel
