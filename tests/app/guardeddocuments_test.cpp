// Documents beside other programs, and after a sudden end.

#include "app/mydocumentcontroller.h"
#include "app/testapplication.h"
#include "base/paths.h"
#include "base/safefile.h"
#include "support/files.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>

namespace tavrel {

namespace {

struct GuardedDocuments : testing::Test {
    TestApplication app;
};

TEST_F(GuardedDocuments, askBeforeTheySaveOverWhatAnotherProgramWrote) {
    const QString file = app.savedLogbook(QStringLiteral("dives.carnet"), 2);
    QByteArray theirs = contentsOf(app.savedLogbook(QStringLiteral("others.carnet"), 5));
    DocumentWindow* window = app.documents.openFile(file);
    const auto countAfter = [&](int answer) {
        app.frontCarnet().addDive();
        EXPECT_TRUE(writeFile(file, theirs));
        app.alerts.clear();
        app.alerts.answerNext(answer);
        const bool saved = app.documents.saveDocument(*window);
        EXPECT_EQ(app.alerts.questions.size(), 1U);
        EXPECT_EQ(app.alerts.questions[0].buttons, (QStringList{QStringLiteral("Overwrite"), QStringLiteral("Save As…"),
                                                                QStringLiteral("Reload"), QStringLiteral("Cancel")}));
        return std::pair(saved, app.frontCarnet().count());
    };
    enum { overwrite, saveElsewhere, reload, leave };
    EXPECT_EQ(countAfter(leave), std::pair(false, 3));
    EXPECT_EQ(contentsOf(file), theirs);
    EXPECT_EQ(countAfter(reload), std::pair(false, 5));
    EXPECT_FALSE(window->document().isChanged());
    theirs = contentsOf(app.savedLogbook(QStringLiteral("more.carnet"), 4));
    EXPECT_EQ(countAfter(overwrite), std::pair(true, 6));
    EXPECT_NE(contentsOf(file), theirs);
    const QString elsewhere = app.path(QStringLiteral("elsewhere.carnet"));
    app.fileDialogs.save = {{elsewhere}};
    EXPECT_EQ(countAfter(saveElsewhere), std::pair(true, 7));
    EXPECT_EQ(window->document().file(), elsewhere);
    EXPECT_EQ(contentsOf(file), theirs);

    ASSERT_TRUE(QFile::remove(elsewhere));
    app.alerts.clear();
    app.alerts.answerNext(0);
    EXPECT_TRUE(app.documents.saveDocument(*window));
    EXPECT_EQ(app.alerts.questions[0].buttons.size(), 3) << "there is nothing to reload";
    EXPECT_TRUE(QFile::exists(elsewhere));
}

TEST_F(GuardedDocuments, tellInTheirWindowWhatAnotherProgramDoes) {
    const QString file = app.savedLogbook(QStringLiteral("dives.carnet"), 2);
    const QByteArray theirs = contentsOf(app.savedLogbook(QStringLiteral("others.carnet"), 5));
    DocumentWindow* window = app.documents.openFile(file);
    MessageBar& bar = window->messageBar();
    EXPECT_TRUE(bar.isHidden());
    ASSERT_TRUE(writeFile(file, theirs));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !bar.isHidden(); }));
    EXPECT_EQ(bar.message(), u"Another program has changed the file.");
    bar.findChild<QAction*>(QStringLiteral("messageCommand"))->trigger();
    EXPECT_EQ(app.frontCarnet().count(), 5);
    EXPECT_TRUE(bar.isHidden());
    ASSERT_TRUE(QFile::remove(file));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !bar.isHidden(); }));
    EXPECT_EQ(bar.message(), u"Another program has removed or renamed the file.");
    EXPECT_TRUE(app.alerts.questions.empty() && app.alerts.failures.empty());
}

TEST_F(GuardedDocuments, reloadOnlyWhatTheUserWouldDrop) {
    const QString file = app.savedLogbook(QStringLiteral("dives.carnet"), 2);
    const QByteArray theirs = contentsOf(app.savedLogbook(QStringLiteral("others.carnet"), 5));
    app.documents.openFile(file);
    TestWindow& window = *app.frontWindow();
    window.entries = Entries::stored;
    ASSERT_TRUE(writeFile(file, "rubbish"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window.messageBar().isHidden(); }));
    auto* reload = window.messageBar().findChild<QAction*>(QStringLiteral("messageCommand"));
    enum { revert, leave };
    for (const int answer : {leave, revert}) {
        app.alerts.answerNext(answer);
        reload->trigger();
        EXPECT_EQ(app.alerts.questions.size(), 1U) << "what was to be added would be dropped";
        app.alerts.questions.clear();
    }
    EXPECT_EQ(app.alerts.failures.size(), 1U);
    EXPECT_TRUE(window.settled.isEmpty()) << "a file that cannot be read takes nothing away";
    ASSERT_TRUE(writeFile(file, theirs));
    app.alerts.answerNext(revert);
    app.documents.revertDocument(window);
    EXPECT_EQ(window.settled, QList{Entries::dropped});
    EXPECT_EQ(app.frontCarnet().count(), 5);
}

TEST_F(GuardedDocuments, thatAnotherProgramHasOpenAreOpenedToBeLookedAt) {
    const QString file = app.savedLogbook(QStringLiteral("dives.carnet"), 2);
    FileLock other(file);
    ASSERT_FALSE(other.take({}));
    enum { readOnly, anyway, leave };
    app.alerts.answerNext(leave);
    EXPECT_FALSE(app.documents.openFile(file));
    EXPECT_TRUE(app.alerts.questions[0].message.contains(u"dives.carnet"));
    app.alerts.answerNext(readOnly);
    DocumentWindow* window = app.documents.openFile(file);
    ASSERT_TRUE(window);
    EXPECT_EQ(window->windowTitle(), u"dives.carnet (read-only)[*]");
    const QByteArray before = contentsOf(file);
    app.frontCarnet().addDive();
    EXPECT_FALSE(app.documents.saveDocument(*window));
    EXPECT_EQ(app.fileDialogs.proposed, file) << "it is saved elsewhere";
    EXPECT_EQ(contentsOf(file), before);
    app.fileDialogs.save = {{app.path(QStringLiteral("copy.carnet"))}};
    EXPECT_TRUE(app.documents.saveDocument(*window));
    EXPECT_EQ(window->windowTitle(), u"copy.carnet[*]");
    app.alerts.answerNext(anyway);
    window = app.documents.openFile(file);
    ASSERT_TRUE(window);
    app.frontCarnet().addDive();
    EXPECT_TRUE(app.documents.saveDocument(*window));
}

TEST_F(GuardedDocuments, ofANewerVersionAreNotSavedOver) {
    const QString file = app.savedLogbook(QStringLiteral("dives.carnet"), 2);
    const QByteArray newer = contentsOf(file).replace("Plongee\x19", "Plongee\x1a");
    ASSERT_TRUE(writeFile(file, newer));
    DocumentWindow* window = app.documents.openFile(file);
    EXPECT_EQ(window->windowTitle(), u"dives.carnet (read-only)[*]");
    EXPECT_TRUE(window->messageBar().message().contains(u"newer version"));
    app.frontCarnet().addDive();
    app.fileDialogs.save = {{file}};
    EXPECT_FALSE(app.documents.saveDocument(*window));
    EXPECT_EQ(contentsOf(file), newer);
    ASSERT_EQ(app.alerts.failures.size(), 1U);
    app.fileDialogs.save = {{app.path(QStringLiteral("copy.carnet"))}};
    EXPECT_TRUE(app.documents.saveDocument(*window));
    EXPECT_EQ(window->windowTitle(), u"copy.carnet[*]");
    EXPECT_TRUE(window->messageBar().isHidden());
    ASSERT_TRUE(writeFile(app.path(QStringLiteral("copy.carnet")), newer));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window->messageBar().isHidden(); }));
    ASSERT_TRUE(window->document().revert());
    EXPECT_TRUE(window->messageBar().message().contains(u"newer version")) << "read again";
}

TEST_F(GuardedDocuments, goBackToTheirBackup) {
    DocumentWindow* window = app.documents.openFile(app.savedLogbook(QStringLiteral("dives.carnet"), 2));
    app.frontCarnet().addDive();
    ASSERT_TRUE(app.documents.saveDocument(*window));
    app.alerts.answerNext(0);
    EXPECT_TRUE(app.documents.revertToBackup(*window));
    EXPECT_EQ(app.frontCarnet().count(), 2);
    EXPECT_TRUE(window->document().isChanged());
}

/// A run of the program that keeps what is unsaved in a folder that all runs share.
struct OneRun {
    explicit OneRun(TestApplication& itsApp) : app(itsApp) {}

    Carnet& carnet() { return static_cast<Carnet&>(documents.windows().back()->document()); }

    TestApplication& app;
    MyDocumentController documents{app.desktop(), app.fileDialogs, testDocumentTypes(),
                                   app.path(QStringLiteral("journal"))};
};

TEST_F(GuardedDocuments, bringBackWhatASuddenEndTook) {
    const QString file = app.savedLogbook(QStringLiteral("dives.carnet"), 2);
    const QByteArray before = contentsOf(file);
    {
        OneRun run(app);
        ASSERT_TRUE(run.documents.openFile(file));
        run.carnet().addDive();
        run.carnet().newRecord();
        DiveForm& form = run.carnet().form();
        form.state().type(form.controls().lieuField.index, QStringLiteral("Bonifacio"));
        ASSERT_TRUE(form.enterBeside(QStringLiteral("profilProfondeur"), QStringLiteral("0, 12.5, 0")));
        // Asked to end at once, as by a signal; nothing is closed.
        run.documents.keepUnsaved();
    }
    EXPECT_EQ(contentsOf(file), before);
    enum { restore, discard, leave };
    {
        OneRun run(app);
        app.alerts.answerNext(leave);
        run.documents.offerUnsaved();
        ASSERT_EQ(app.alerts.questions.size(), 1U);
        EXPECT_TRUE(app.alerts.questions[0].message.contains(u"dives.carnet"));
        EXPECT_TRUE(app.alerts.questions[0].message.contains(u"all records (3) and what was being typed"))
            << app.alerts.questions[0].message.toStdString();
        EXPECT_TRUE(run.documents.windows().isEmpty());
    }
    {
        OneRun run(app);
        ASSERT_TRUE(run.documents.openFile(file));
        app.alerts.answerNext(restore);
        run.documents.offerUnsaved();
        ASSERT_EQ(run.documents.windows().size(), 1);
        EXPECT_EQ(run.carnet().file(), file);
        EXPECT_EQ(run.carnet().count(), 3);
        EXPECT_TRUE(run.carnet().isChanged() && run.carnet().hasEntries());
        DiveForm& form = run.carnet().form();
        EXPECT_EQ(form.state().text(form.controls().lieuField), u"Bonifacio");
        EXPECT_EQ(form.profile().profilProfondeur.size(), 3);
        EXPECT_EQ(contentsOf(file), before);
        // Another sudden end before anything is saved.
    }
    {
        OneRun run(app);
        app.alerts.answerNext(discard);
        run.documents.offerUnsaved();
        EXPECT_EQ(app.alerts.questions.size(), 3U);
        run.documents.offerUnsaved();
        EXPECT_EQ(app.alerts.questions.size(), 3U) << "once discarded there is nothing to offer";
    }
    EXPECT_TRUE(QDir(app.path(QStringLiteral("journal"))).isEmpty());
    // It says what it holds: the form alone, a document without a file.
    {
        OneRun run(app);
        ASSERT_TRUE(run.documents.openFile(file));
        run.carnet().form().state().type(DiveControls::table().lieuField.index, QStringLiteral("Bonifacio"));
        run.documents.newDocument();
        run.carnet().addDive();
        run.documents.keepUnsaved();
    }
    OneRun run(app);
    app.alerts.answerNext(discard);
    run.documents.offerUnsaved();
    const QString message = app.alerts.questions.back().message;
    EXPECT_EQ(message.count(u'\n'), 3);
    EXPECT_TRUE(message.contains(u"dives.carnet") && message.contains(u": what was being typed\n"));
    EXPECT_TRUE(message.contains(u"never saved") && message.contains(u": all records (1)\n")) << message.toStdString();
}

TEST_F(GuardedDocuments, tellWhatCannotBeKeptOrReadAgain) {
    const QString journals = app.path(QStringLiteral("journal"));
    {
        OneRun run(app);
        run.documents.newDocument();
        run.carnet().addDive();
        run.documents.keepUnsaved();
    }
    QDirIterator kept(journals, {QStringLiteral("*.journal")}, QDir::Files, QDirIterator::Subdirectories);
    writeContents(kept.next(), "damaged");
    {
        OneRun run(app);
        run.documents.offerUnsaved();
        run.documents.offerUnsaved();
        EXPECT_EQ(app.alerts.told.size(), 1);
    }
    ASSERT_TRUE(QDir(journals).removeRecursively());
    writeContents(journals, "in the way");
    OneRun run(app);
    DocumentWindow* window = run.documents.newDocument();
    EXPECT_TRUE(window->messageBar().message().isEmpty());
    run.carnet().addDive();
    run.documents.keepUnsaved();
    EXPECT_FALSE(window->messageBar().message().isEmpty());
    ASSERT_TRUE(QFile::remove(journals));
    run.carnet().addDive();
    EXPECT_TRUE(run.documents.keepUnsaved());
    EXPECT_TRUE(window->messageBar().message().isEmpty());
}

}  // namespace

}  // namespace tavrel
