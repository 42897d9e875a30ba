#include "app/testapplication.h"
#include "book/ui/bookactions.h"
#include "book/ui/bookeditwindow.h"
#include "book/ui/booktableview.h"
#include "interchange/ui/exportwindow.h"
#include "interchange/ui/importwindow.h"
#include "logbook/ui/logbookwindow.h"
#include "support/files.h"

#include <QComboBox>
#include <QFile>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

namespace tavrel {

namespace {

using Program = WholeProgram;

/// Checks that no two actions of a menu share an access key, and none of the bar a shortcut.
void expectOwnKeys(const QList<QAction*>& actions, QStringList& shortcuts) {
    static const QRegularExpression accessKey(QStringLiteral("(?<!&)&([^&])"));
    QString keys;
    for (QAction* action : actions) {
        const QString key = accessKey.match(action->text()).captured(1).toLower();
        EXPECT_TRUE(action->isSeparator() || action->isCheckable() || !key.isEmpty()) << action->text().toStdString();
        EXPECT_TRUE(key.isEmpty() || !keys.contains(key)) << action->text().toStdString();
        keys += key;
        for (const QKeySequence& shortcut : action->shortcuts()) {
            EXPECT_FALSE(shortcuts.contains(shortcut.toString())) << action->text().toStdString();
            shortcuts.append(shortcut.toString());
        }
        if (action->menu()) {
            expectOwnKeys(action->menu()->actions(), shortcuts);
        }
    }
}

TEST_F(Program, menusHaveKeysOfTheirOwnInEveryLanguage) {
    for (const char* language : {"en", "fr"}) {
        setTextLanguage(QString::fromLatin1(language));
        QStringList shortcuts;
        expectOwnKeys(documents.newDocument()->menuBar()->actions(), shortcuts);
        EXPECT_GT(shortcuts.size(), 15);
    }
}

TEST_F(Program, importsAndExports) {
    DocumentWindow* window = openSample(QStringLiteral("carnet"));
    ASSERT_TRUE(window);
    auto& carnet = static_cast<Carnet&>(window->document());
    const int before = carnet.count();
    fileDialogs.open = {QStringLiteral(TAVREL_SOURCE_FOLDER "/samples/sample-handheld.xml")};
    window->importActions().at(2)->trigger();
    EXPECT_GT(carnet.count(), before);
    window->findChild<QAction*>(QStringLiteral("undo"))->trigger();
    EXPECT_EQ(carnet.count(), before);

    for (int format = 0; format < 8; ++format) {
        const QString file = desktop.path(QStringLiteral("export %1").arg(format));
        fileDialogs.save = {{file}};
        documents.exportDocument(*window);
        auto* dialog = window->findChild<ExportWindow*>();
        ASSERT_TRUE(dialog);
        dialog->findChild<QComboBox*>(QStringLiteral("exportFormat"))->setCurrentIndex(format);
        dialog->findChild<QPushButton*>(QStringLiteral("exportChosen"))->click();
        EXPECT_GT(QFile(file).size(), 1000) << format;
        delete dialog;
    }

    // A file of another program that is dropped on the logbook shows its dives.
    documents.openDropped(*window, {QStringLiteral(TAVREL_SOURCE_FOLDER "/samples/sample-3.uddf")});
    EXPECT_TRUE(window->findChild<ImportWindow*>());
    delete window->findChild<ImportWindow*>();
}

TEST_F(Program, asksAboutADiveBeingTypedAndThenAboutItsFile) {
    auto* window = qobject_cast<LogbookWindow*>(openSample(QStringLiteral("carnet")));
    ASSERT_TRUE(window);
    auto* carnet = &static_cast<Carnet&>(window->document());
    const QString file = carnet->file();
    const int before = carnet->count();
    QTest::mouseClick(window->table().viewport(), Qt::LeftButton, {},
                      window->table().visualRect(window->table().model()->index(1, 0)).center());
    window->actions().action(QStringLiteral("newDive"))->trigger();
    const int boat = DiveControls::table().bateauField.index;
    const auto typeAndLeave = [&](const std::vector<int>& answers) {
        QTest::keyClicks(window->editWindow().pages().widget(boat), QStringLiteral("Bonifacio"));
        desktop.alerts.clear();
        for (const int answer : answers) {
            desktop.alerts.answerNext(answer);
        }
        const bool left = documents.closeAllDocuments();
        EXPECT_EQ(desktop.alerts.questions.size(), answers.size());
        return left;
    };
    enum { add, discard, cancel };
    enum { save, dontSave };
    // Whatever was answered before, a cancel leaves the dive as it is being typed.
    for (const auto& answers : {std::vector<int>{cancel}, std::vector<int>{add, cancel}}) {
        EXPECT_FALSE(typeAndLeave(answers));
        EXPECT_TRUE(window->isVisible() && window->editWindow().isVisible());
        EXPECT_TRUE(carnet->form().state().text(DiveControls::table().bateauField).endsWith(u"Bonifacio"));
        EXPECT_EQ(carnet->count(), before);
        EXPECT_FALSE(carnet->isChanged());
    }
    carnet->form().state().setText(DiveControls::table().bateauField, {});
    EXPECT_TRUE(typeAndLeave({add, save}));
    EXPECT_TRUE(documents.windows().isEmpty());

    window = qobject_cast<LogbookWindow*>(documents.openFile(file));
    ASSERT_TRUE(window);
    carnet = &static_cast<Carnet&>(window->document());
    ASSERT_EQ(carnet->count(), before + 1);
    EXPECT_EQ(carnet->record(before).bateau, u"Bonifacio");
    window->actions().action(QStringLiteral("newDive"))->trigger();
    EXPECT_TRUE(typeAndLeave({discard})) << "the file holds all that is to be kept";
}

TEST_F(Program, mayEndWithItsWindowsOpen) {
    auto* window = qobject_cast<LogbookWindow*>(documents.newDocument());
    ASSERT_TRUE(window);
    window->actions().action(QStringLiteral("newDive"))->trigger();
    QTest::keyClicks(window->editWindow().pages().widget(DiveControls::table().bateauField.index),
                     QStringLiteral("typed"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window->editWindow()));
}

TEST_F(Program, isKnownToTheDesktopForEveryTypeOfDocument) {
    const QByteArray entry = contentsOf(QStringLiteral(TAVREL_SOURCE_FOLDER "/resources/desktop/tavrel.desktop"));
    for (const DocumentType& type : documents.types()) {
        EXPECT_TRUE(entry.contains(QByteArray("application/x-tavrel-") + type.extension + ';')) << type.extension;
    }
}

}  // namespace

}  // namespace tavrel
