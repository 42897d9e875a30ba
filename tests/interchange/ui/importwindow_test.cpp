#include "interchange/ui/importwindow.h"

#include "support/files.h"
#include "support/testdesktop.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QThread>
#include <QTreeWidget>

namespace tavrel {

namespace {

struct FoundDivesWindow : testing::Test {
    void show(const QByteArray& bytes, bool waits = true) {
        const QString path = desktop.path(QStringLiteral("source"));
        writeContents(path, bytes);
        window = new ImportWindow(
            carnet, desktop.desktop(), path, [this] { return carnet.leaveForm(Leaving::elsewhere); }, nullptr);
        window->show();
        if (waits) {
            waitForReading();
        }
    }
    void clickImport() { window->findChild<QPushButton*>(QStringLiteral("importChosen"))->click(); }
    void waitForReading() {
        window->findChildren<QThread*>().constLast()->wait();
        QCoreApplication::processEvents();
    }
    static QByteArray table() {
        return "Nr,When,Max\n1,2020-05-01 10:00,20\n2,2020-05-02 10:00,\n3,2020-05-01 10:01,20.5\n";
    }
    QTableWidget* columns() { return window->findChild<QTableWidget*>(QStringLiteral("tableColumns")); }
    void take(int row, const char* field) {
        auto* choice = static_cast<QComboBox*>(columns()->cellWidget(row, 2));
        choice->setCurrentIndex(choice->findData(QLatin1String(field)));
        waitForReading();
    }

    TestDesktop desktop;
    Carnet carnet{desktop.desktop()};
    QPointer<ImportWindow> window;
};

TEST_F(FoundDivesWindow, takesTheTickedDivesAsOneStep) {
    Plongee held = unknownDive();
    setStart(held, QDate(2020, 5, 1), QTime(10, 0));
    held.profondeur = 20;
    held.noPlongee = 8;
    carnet.appendDives(QStringLiteral("add"), {held});
    show("date,heure,profondeur\n2020-05-01,10:01,20\n2020-04-01,9:00,10\n2099-01-01,9:00,10\n");
    ASSERT_EQ(window->list().topLevelItemCount(), 3);
    EXPECT_EQ(window->list().topLevelItem(0)->checkState(0), Qt::Unchecked) << "there already";
    window->list().topLevelItem(2)->setCheckState(0, Qt::Unchecked);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    QTest::keyClick(window, Qt::Key_Return);
    ASSERT_EQ(carnet.count(), 2);
    EXPECT_EQ(carnet.record(1).profondeur, 10.0F);
    EXPECT_EQ(carnet.record(1).noPlongee, 9);
    EXPECT_EQ(desktop.alerts.told.value(0), u"One dive was imported.");
    carnet.undoStack().undo();
    EXPECT_EQ(carnet.count(), 1);
}

TEST_F(FoundDivesWindow, closedLeavesNothing) {
    show("date,profondeur\n2020-05-01,20\n");
    const auto* import = window->findChild<QPushButton*>(QStringLiteral("importChosen"));
    EXPECT_TRUE(import->isEnabled());
    window->list().topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    EXPECT_FALSE(import->isEnabled());
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(window);
    EXPECT_EQ(carnet.count(), 0);
    EXPECT_EQ(carnet.undoStack().count(), 0);
    show("no dives here");
    EXPECT_EQ(window->list().topLevelItemCount(), 0);
    EXPECT_FALSE(window->findChild<QPushButton*>(QStringLiteral("importChosen"))->isEnabled());
    delete window;
    show("date,profondeur\n" + QByteArray("2020-05-01,20\n").repeated(200'000), false);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    QTest::keyClick(window, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(window) << "in the middle of the reading";
}

TEST_F(FoundDivesWindow, asksAboutWhatWasTypedWhileItWasOpen) {
    show("date,profondeur\n2020-05-01,20\n");
    carnet.newDive();
    carnet.form().state().type(carnet.form().controls().lieuField.index, QStringLiteral("Here"));
    desktop.alerts.answerNext(2);
    clickImport();
    EXPECT_TRUE(window && carnet.hasEntries()) << "cancelled: everything stays";
    EXPECT_EQ(carnet.count(), 0);
    desktop.alerts.answerNext(0);
    clickImport();
    ASSERT_EQ(carnet.count(), 2);
    EXPECT_EQ(carnet.record(0).lieu, u"Here");
}

TEST_F(FoundDivesWindow, remembersWhatTheColumnsOfATableAreTakenFor) {
    show(table());
    EXPECT_TRUE(columns()->isVisible()) << "nobody knows yet where the date is";
    EXPECT_EQ(window->list().topLevelItemCount(), 0);
    take(1, "date");
    EXPECT_EQ(window->list().topLevelItemCount(), 3);
    take(2, "profondeur");
    EXPECT_EQ(window->list().topLevelItem(2)->text(2), u"20.5 m");
    delete window;

    show(table());
    EXPECT_FALSE(columns()->isVisible());
    EXPECT_EQ(window->list().topLevelItemCount(), 3);
    EXPECT_EQ(window->list().topLevelItem(0)->text(2), u"20 m");
    delete window;
}

}  // namespace

}  // namespace tavrel
