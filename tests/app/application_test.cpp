#include "app/appdelegate.h"
#include "app/applicationwindows.h"
#include "app/instanceserver.h"
#include "app/testapplication.h"
#include "app/windowmenus.h"
#include "support/files.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QLockFile>
#include <QMenu>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <thread>
#include <tuple>

namespace tavrel {

namespace {

struct Menus : testing::Test {
    Menus() {
        QObject::connect(&app.documents, &MyDocumentController::windowOpened, &app.documents,
                         [this](auto* window) { new WindowMenus(app.documents, delegate, *window); });
    }

    QAction& action(const char* name) {
        auto* found = app.frontWindow()->findChild<QAction*>(QString::fromLatin1(name));
        EXPECT_TRUE(found) << name;
        return *found;
    }

    TestApplication app;
    AppDelegate delegate{app.desktop()};
};

TEST_F(Menus, doWhatTheySay) {
    app.documents.newDocument();
    app.frontCarnet().addDive();
    app.frontCarnet().deleteDive();  // nothing selected
    EXPECT_EQ(action("undo").text().remove(u'&'), QStringLiteral("Undo Add Dive"));
    EXPECT_FALSE(action("redo").isEnabled());
    action("undo").trigger();
    EXPECT_EQ(app.frontCarnet().count(), 0);
    EXPECT_EQ(action("undo").text().remove(u'&'), QStringLiteral("Undo"));
    EXPECT_EQ(action("redo").text().remove(u'&'), QStringLiteral("Redo Add Dive"));
    action("redo").trigger();
    EXPECT_FALSE(action("revertDocumentToSaved").isEnabled());

    app.fileDialogs.save = {{app.path(QStringLiteral("a&b.carnet"))}};
    action("saveDocument").trigger();
    EXPECT_FALSE(app.frontCarnet().isChanged());
    app.frontCarnet().addDive();
    EXPECT_TRUE(action("revertDocumentToSaved").isEnabled());

    auto* recent = app.frontWindow()->findChild<QMenu*>(QStringLiteral("recent"));
    Q_EMIT recent->aboutToShow();
    EXPECT_EQ(recent->actions()[0]->text(), u"&a&&b.carnet");
    action("clearRecentDocuments").trigger();
    EXPECT_TRUE(app.documents.recentDocuments().files().isEmpty());

    QSignalSpy renumber(&app.frontCarnet(), &Carnet::renumberWindowRequested);
    action("sendRenumDivesNotification").trigger();
    EXPECT_EQ(renumber.count(), 1);
    action("printDocument").trigger();
    EXPECT_EQ(app.frontWindow()->prints, 1);

    // The edit window takes part in the document's shortcuts once it is entered.
    QWidget& further = app.frontWindow()->further;
    QLineEdit field(&further);
    further.show();
    further.activateWindow();
    field.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&further));
    QTest::keyClick(&further, Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(app.frontCarnet().isChanged());

    action("newBudgetDocumentMenuAction").trigger();
    EXPECT_EQ(app.frontWindow()->document().type(), u"Budget");
    EXPECT_FALSE(app.frontWindow()->findChild<QAction*>(QStringLiteral("sendRenumDivesNotification")));
    EXPECT_FALSE(action("exportDocument").isEnabled());
    action("closeDocument").trigger();
    EXPECT_EQ(app.documents.windows().size(), 1);
}

TEST(Memo, keepsItsText) {
    TestApplication app;
    app.preferences.set(QStringLiteral("pense bete"), true);
    app.documents.applicationOpenUntitledFile();
    MemoWindow* memo = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        memo = memo ? memo : qobject_cast<MemoWindow*>(window);
    }
    ASSERT_TRUE(memo);
    EXPECT_TRUE(memo->isVisible());
    memo->editor().setPlainText(QStringLiteral("Order: soda lime; 50 %\n\"O₂\""));
    memo->editor().document()->setModified(true);
    memo->close();
    Preferences again(app.path(QStringLiteral("preferences.ini")));
    EXPECT_EQ(MemoWindow(again).editor().toPlainText(), memo->editor().toPlainText());
}

TEST(InstanceServer, takesTheFilesOfALaterStart) {
    QTemporaryDir folder;
    const QString socket = folder.filePath(QStringLiteral("socket"));
    InstanceServer first(socket);
    EXPECT_EQ(first.handOver({}), InstanceServer::HandedOver::toNobody);
    ASSERT_TRUE(first.listen());
    QSignalSpy handedOver(&first, &InstanceServer::handedOver);
    const QStringList files{QStringLiteral("/tmp/plongées 1.carnet"), QStringLiteral("/tmp/2.carnet")};
    bool taken = false;
    std::thread later([&] { taken = InstanceServer(socket).handOver(files) == InstanceServer::HandedOver::taken; });
    EXPECT_TRUE(handedOver.wait());
    later.join();
    EXPECT_TRUE(taken);
    ASSERT_EQ(handedOver.count(), 1);
    EXPECT_EQ(handedOver[0][0].toStringList(), files);
    EXPECT_FALSE(InstanceServer(socket).listen()) << "one at a time";
}

TEST(InstanceServer, takesOverAPlaceThatWasLeft) {
    QTemporaryDir folder;
    const QString socket = folder.filePath(QStringLiteral("socket"));
    writeContents(socket, "");
    InstanceServer server(socket);
    EXPECT_EQ(server.handOver({}), InstanceServer::HandedOver::toNobody);
    EXPECT_TRUE(server.listen());
}

TEST(InstanceServer, isNotHeldUpByWhatIsInItsWay) {
    QTemporaryDir folder;
    const QString socket = folder.filePath(QStringLiteral("socket"));
    constexpr StartPatience brief{50, 50};
    // A folder bears the name, and a start that hangs has the lock of the name beside it.
    ASSERT_TRUE(QDir().mkdir(socket));
    QLockFile held(socket + QStringLiteral("-2.lock"));
    ASSERT_TRUE(held.tryLock());
    InstanceServer first(socket, brief);
    EXPECT_EQ(first.handOver({}), InstanceServer::HandedOver::toNobody);
    EXPECT_TRUE(first.listen());
    // The one that listens is in the middle of something: no second program, but no endless wait either.
    InstanceServer second(socket, brief);
    EXPECT_EQ(second.handOver({}), InstanceServer::HandedOver::busy);
    EXPECT_FALSE(second.listen());
}

TEST(ProgramFile, answersWithoutAWindow) {
    const auto answer = [](const char* argument) {
        QProcess program;
        program.start(QStringLiteral(TAVREL_PROGRAM), {QLatin1StringView(argument)});
        program.waitForFinished();
        return std::tuple(program.exitCode(), !program.readAllStandardOutput().isEmpty(),
                          !program.readAllStandardError().isEmpty());
    };
    EXPECT_EQ(answer("--version"), std::tuple(0, true, false));
    EXPECT_EQ(answer("--nonsense"), std::tuple(2, false, true));
}

}  // namespace

}  // namespace tavrel
