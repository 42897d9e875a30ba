#include "app/mydocumentcontroller.h"

#include "app/testapplication.h"
#include "archive/recordarchive.h"
#include "base/paths.h"
#include "base/safefile.h"
#include "recordbooks/recordbooks.h"
#include "support/files.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QPointer>
#include <QUrl>

namespace tavrel {

namespace {

enum Answer { save, dontSave, cancel };

struct Documents : testing::Test {
    QString names() {
        return eachOf(app.documents.windows(), [](auto* window) { return window->document().displayName(); });
    }

    QStringList recent() {
        QCoreApplication::processEvents();
        return app.documents.recentDocuments().files();
    }

    TestApplication app;
};

TEST_F(Documents, areCreatedByTheirTypeNames) {
    setTextLanguage(QStringLiteral("fr"));
    const auto& types = app.documents.types();
    const QString logbook = text("Main", "Carnet de plongee");
    const auto typeInFront = [this] { return app.frontWindow()->document().type(); };
    app.documents.newDocumentOfType(types[1]);
    EXPECT_EQ(typeInFront(), u"Budget");
    app.documents.newDocumentOfType(types[0]);
    EXPECT_EQ(typeInFront(), logbook);
    EXPECT_EQ(app.documents.newDocument()->document().type(), logbook);
    EXPECT_EQ(app.documents.defaultType(), logbook);
    app.documents.setDefaultType(QStringLiteral("Budget"));
    EXPECT_EQ(app.documents.newDocument()->document().type(), u"Budget");
}

TEST_F(Documents, openByWhatIsInsideWhateverTheirName) {
    const auto budget = previBudget().make(app.desktop());
    ASSERT_TRUE(budget->saveAs(app.path(QStringLiteral("empty.BUDGET"))));
    ASSERT_TRUE(budget->saveAs(app.path(QStringLiteral("empty.doc"))));
    budget->appendRecords(QStringLiteral("Add"), {previBudget().layout().make()});
    ASSERT_TRUE(budget->saveAs(app.path(QStringLiteral("services.carnet"))));
    const QString dives = app.savedLogbook(QStringLiteral("dives.budget"), 2);
    const std::pair<QString, const char*> cases[] = {{dives, "Plongee"},
                                                     {app.path(QStringLiteral("services.carnet")), "Budget"},
                                                     {app.path(QStringLiteral("empty.BUDGET")), "Budget"},
                                                     {app.path(QStringLiteral("empty.doc")), "Plongee"}};
    for (const auto& [file, recordClass] : cases) {
        DocumentWindow* window = app.documents.openFile(file);
        ASSERT_TRUE(window) << file.toStdString();
        EXPECT_STREQ(app.documents.typeOf(*window).recordClass, recordClass) << file.toStdString();
    }
    // Another name of an open file brings its window back.
    const QString alias = app.path(QStringLiteral("alias"));
    ASSERT_TRUE(QFile::link(dives, alias));
    EXPECT_EQ(app.documents.openFile(alias), app.documents.windows()[0]);
    EXPECT_EQ(app.documents.windows().size(), 4);
}

TEST_F(Documents, thatCannotBeReadLeaveTheOpenOneAlone) {
    DocumentWindow* open = app.documents.openFile(app.savedLogbook(QStringLiteral("dives.carnet"), 2));
    const QByteArray good = contentsOf(open->document().file());
    struct Jewel : Record {
        static RecordLayout layout() { return recordLayout<Jewel>("Jewel", 1, {}); }
    };
    const RecordList jewels{std::make_shared<const Jewel>()};
    const std::pair<const char*, QByteArray> cases[] = {
        {"empty", {}},
        {"foreign", "%PDF-1.4\n"},
        {"truncated", good.left(good.size() / 2)},
        {"zeros", QByteArray(1 << 20, '\0')},
        {"unknown", writeRecords(jewels, Jewel::layout())},
    };
    for (const auto& [name, bytes] : cases) {
        const QString file = app.path(QString::fromLatin1(name));
        ASSERT_TRUE(writeFile(file, bytes));
        app.alerts.clear();
        EXPECT_FALSE(app.documents.openFile(file)) << name;
        ASSERT_EQ(app.alerts.failures.size(), 1U) << name;
        EXPECT_TRUE(app.alerts.failures[0].sentence.contains(QString::fromLatin1(name))) << name;
    }
    app.documents.openFile(app.path(QStringLiteral("missing")));
    app.documents.openFile(QDir::tempPath());
    EXPECT_EQ(app.alerts.failures.size(), 3U);
    EXPECT_EQ(app.documents.windows(), QList{open});
    EXPECT_EQ(app.frontCarnet().count(), 2);
    EXPECT_EQ(recent(), QStringList{open->document().file()});
}

TEST_F(Documents, areSavedUnderANameAndReverted) {
    app.documents.newDocument();
    EXPECT_FALSE(app.documents.saveDocument(*app.frontWindow()));
    EXPECT_EQ(app.fileDialogs.proposed, u"Untitled.carnet");
    const QString file = app.path(QStringLiteral("dives.carnet"));
    app.frontCarnet().addDive();
    app.fileDialogs.save = {{file}};
    EXPECT_TRUE(app.documents.saveDocument(*app.frontWindow()));
    EXPECT_FALSE(app.frontCarnet().isChanged());
    EXPECT_EQ(app.frontWindow()->windowTitle(), u"dives.carnet[*]");
    EXPECT_EQ(recent(), QStringList{file});

    app.frontCarnet().addDive();
    EXPECT_TRUE(app.frontWindow()->isWindowModified());
    app.alerts.answerNext(1);
    EXPECT_FALSE(app.documents.revertDocument(*app.frontWindow()));
    EXPECT_EQ(app.frontCarnet().count(), 2);
    app.alerts.answerNext(0);
    EXPECT_TRUE(app.documents.revertDocument(*app.frontWindow()));
    EXPECT_EQ(app.frontCarnet().count(), 1);
    EXPECT_FALSE(app.frontWindow()->isWindowModified());

    // A failed save keeps the changes, the file and its name.
    app.frontCarnet().addDive();
    app.fileDialogs.save = {{app.path(QStringLiteral("no folder/dives.carnet"))}};
    EXPECT_FALSE(app.documents.saveDocumentAs(*app.frontWindow()));
    EXPECT_EQ(app.alerts.failures.size(), 1U);
    EXPECT_TRUE(app.frontCarnet().isChanged());
    EXPECT_EQ(app.frontCarnet().file(), file);

    // Nor does a document take the file of another open one.
    DocumentWindow* other = app.documents.newDocument();
    app.fileDialogs.save = {{file}};
    EXPECT_FALSE(app.documents.saveDocumentAs(*other));
    EXPECT_EQ(app.alerts.failures.size(), 2U);
}

TEST_F(Documents, areExportedOverNoOpenDocument) {
    app.documents.openFile(app.savedLogbook(QStringLiteral("dives.carnet"), 3));
    TestWindow* window = app.frontWindow();
    window->entries = std::nullopt;
    app.documents.exportDocument(*window);
    EXPECT_FALSE(window->isTaken) << "going on editing";
    window->entries = Entries::none;
    app.documents.exportDocument(*window);
    ASSERT_TRUE(window->isTaken);
    const QString other = app.savedLogbook(QStringLiteral("other.carnet"), 1);
    app.documents.openFile(other);
    EXPECT_TRUE(window->isTaken(other));
    EXPECT_EQ(app.alerts.failures.size(), 1U);
    EXPECT_FALSE(window->isTaken(app.path(QStringLiteral("dives.txt"))));
    EXPECT_EQ(app.alerts.failures.size(), 1U);
}

TEST_F(Documents, askBeforeTheyCloseWithChanges) {
    const QString file = app.savedLogbook(QStringLiteral("dives.carnet"), 1);
    const auto closeWith = [&](Answer answer) {
        app.documents.openFile(file);
        const int before = app.frontCarnet().count();
        app.frontCarnet().addDive();
        app.frontWindow()->further.show();
        app.alerts.answerNext(answer);
        app.frontWindow()->close();
        return before;
    };
    app.documents.newDocument();
    app.frontWindow()->close();  // nothing to lose, nothing asked
    EXPECT_TRUE(names().isEmpty());
    app.documents.newDocument();

    closeWith(cancel);
    EXPECT_EQ(names(), u"Untitled|dives.carnet");
    EXPECT_TRUE(app.frontWindow()->further.isVisible());
    const auto question = app.alerts.questions.back();
    EXPECT_EQ(question.buttons,
              (QStringList{text("Main", "Save"), text("Main", "Don't save"), text("Main", "Cancel")}));
    EXPECT_TRUE(question.message.contains(u"dives.carnet"));
    EXPECT_EQ(app.frontWindow()->asked, QList{Settling::leaving});

    app.alerts.answerNext(dontSave);
    app.frontWindow()->close();
    EXPECT_EQ(names(), u"Untitled");
    EXPECT_EQ(closeWith(save), 1);
    EXPECT_EQ(names(), u"Untitled");
    EXPECT_EQ(closeWith(dontSave), 2);

    // Quitting asks for each; one cancel, also of the dialog for a name, keeps them all.
    app.frontCarnet().addDive();
    app.documents.openFile(file);
    app.alerts.answerNext(save);
    EXPECT_FALSE(app.documents.closeAllDocuments());
    EXPECT_EQ(app.documents.windows().size(), 2);
    app.alerts.answerNext(dontSave);
    EXPECT_TRUE(app.documents.closeAllDocuments());
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(Documents, stayAsTheyWereWhenTheUserWouldRatherNotLeave) {
    const QString file = app.savedLogbook(QStringLiteral("first.carnet"), 1);
    app.documents.openFile(file);
    TestWindow* first = app.frontWindow();
    app.documents.openFile(app.savedLogbook(QStringLiteral("second.carnet"), 1));
    TestWindow* second = app.frontWindow();
    const QByteArray before = contentsOf(file);
    // Whatever was answered about the first, nothing has come of it when the second is not to be left.
    for (const Entries entries : {Entries::dropped, Entries::stored}) {
        first->entries = entries;
        first->document().undoStack().setClean();
        static_cast<Carnet&>(first->document()).addDive();
        second->entries = std::nullopt;
        app.alerts.clear();
        app.alerts.answerNext(save);
        EXPECT_FALSE(app.documents.closeAllDocuments());
        EXPECT_EQ(app.alerts.questions.size(), 1U);
        EXPECT_TRUE(first->settled.isEmpty());
        EXPECT_EQ(contentsOf(file), before);
    }
    // Nor of a document's own: the form's answer holds only once the file's question is answered too.
    const QString theirs = app.savedLogbook(QStringLiteral("others.carnet"), 5);
    using Way = bool (MyDocumentController::*)(DocumentWindow&);
    for (const Way way : {&MyDocumentController::closeDocument, &MyDocumentController::revertDocument,
                          &MyDocumentController::revertToBackup, &MyDocumentController::saveDocumentAs}) {
        first->entries = Entries::dropped;
        app.alerts.answerNext(cancel);
        EXPECT_FALSE((app.documents.*way)(*first));
        EXPECT_TRUE(first->settled.isEmpty());
    }
    ASSERT_TRUE(QFile::remove(file) && QFile::copy(theirs, file));
    app.alerts.clear();
    app.alerts.answerNext(3);
    EXPECT_FALSE(app.documents.saveDocument(*first));
    EXPECT_TRUE(first->settled.isEmpty());

    // What is done to one while another asks is asked about again.
    first->entries = second->entries = Entries::none;
    app.alerts.clear();
    static_cast<Carnet&>(second->document()).addDive();
    first->document().undoStack().setClean();
    app.alerts.answerNext(dontSave);
    app.alerts.answerNext(cancel);
    app.alerts.whileAsked = [&] {
        if (app.alerts.questions.size() == 1) {
            static_cast<Carnet&>(first->document()).addDive();
        }
    };
    EXPECT_FALSE(app.documents.closeAllDocuments());
    ASSERT_EQ(app.alerts.questions.size(), 2U);
    EXPECT_TRUE(app.alerts.questions[0].message.contains(u"second"));
    EXPECT_TRUE(app.alerts.questions[1].message.contains(u"first"));
    app.alerts.whileAsked = {};

    // Entries that are to be added make the document one to save.
    app.documents.newDocument();
    app.frontWindow()->entries = Entries::stored;
    app.alerts.clear();
    app.alerts.answerNext(save);
    app.fileDialogs.save = {{app.path(QStringLiteral("third.carnet"))}};
    TestWindow* third = app.frontWindow();
    QList<Entries> settled;
    QObject::connect(&third->document(), &Document::fileChanged, third, [&] { settled = third->settled; });
    EXPECT_TRUE(app.documents.closeDocument(*third));
    EXPECT_EQ(app.alerts.questions.size(), 1U);
    EXPECT_EQ(settled, QList{Entries::stored});
    EXPECT_EQ(app.documents.windows().size(), 2);
}

TEST_F(Documents, goNoLaterThanWhatTheyAreMadeOf) {
    QPointer<QWidget> closed;
    {
        TestApplication other;
        closed = other.documents.newDocument();
        EXPECT_TRUE(other.documents.closeDocument(*other.frontWindow()));
    }
    EXPECT_TRUE(closed.isNull());
}

TEST_F(Documents, openAtTheStart) {
    // The first start has no recent document.
    EXPECT_TRUE(app.documents.applicationOpenUntitledFile());
    EXPECT_EQ(names(), u"Untitled");
    EXPECT_EQ(app.frontCarnet().type(), Carnet::typeName());
    // The empty one gives way to the first file opened, unless something was done with it.
    const QString first = app.savedLogbook(QStringLiteral("first.carnet"), 1);
    const QString second = app.savedLogbook(QStringLiteral("second.carnet"), 1);
    app.documents.openFiles({first, second});
    EXPECT_EQ(names(), u"first.carnet|second.carnet");
    EXPECT_EQ(recent(), (QStringList{second, first}));

    app.documents.closeAllDocuments();
    app.documents.applicationOpenUntitledFile();
    EXPECT_EQ(names(), u"second.carnet");
    EXPECT_EQ(recent(), (QStringList{second, first}));

    app.documents.closeAllDocuments();
    QFile::remove(second);
    app.documents.applicationOpenUntitledFile();
    EXPECT_EQ(names(), u"Untitled");
    EXPECT_EQ(app.alerts.failures.size(), 1U);
    EXPECT_EQ(recent(), QStringList{first});
    // A name whose bytes are no text comes back from a store that holds nothing else.
    const QString bytes = pathFromBytes("/%E8/caf\xe8");
    app.documents.recentDocuments().note(bytes);
    EXPECT_EQ(recent(), (QStringList{bytes, first}));
    const QString stored = app.preferences.strings(QStringLiteral("recent documents")).constFirst();
    EXPECT_EQ(shownPath(stored), stored);
    app.frontCarnet().addDive();
    app.documents.launch({first});
    EXPECT_EQ(app.documents.windows().size(), 2);

    app.alerts.answerNext(1);
    app.documents.closeAllDocuments();
    app.documents.launch({});
    QWidget preview(app.frontWindow(), Qt::Window);
    preview.show();
    app.documents.openFile(first);
    EXPECT_EQ(app.documents.windows().size(), 2) << "what is found in a file is shown over it";
}

TEST_F(Documents, openWhenDroppedOnAWindow) {
    const QString file = app.savedLogbook(QStringLiteral("dives #1.carnet"), 1);
    app.documents.newDocument();
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://example.org/x.carnet")), QUrl::fromLocalFile(file)});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(app.frontWindow(), &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(app.frontWindow(), &drop);
    QApplication::processEvents();
    EXPECT_EQ(names(), u"Untitled|dives #1.carnet");
}

TEST_F(Documents, takeInFilesOfOtherPrograms) {
    const QString log = app.path(QStringLiteral("dives.log"));
    const QString notes = app.path(QStringLiteral("notes.txt"));
    ASSERT_TRUE(writeFile(log, "dives of another program") && writeFile(notes, "dives of another program"));

    // Opened without a logbook they go to a new one, if the user wants it.
    app.alerts.answerNext(1);
    EXPECT_FALSE(app.documents.openFile(log));
    EXPECT_TRUE(app.documents.windows().isEmpty());
    app.alerts.answerNext(0);
    app.documents.openFile(log);
    ASSERT_EQ(app.documents.windows().size(), 1);
    EXPECT_EQ(app.frontWindow()->takenIn, QStringList{log});
    app.alerts.answerNext(0);
    app.documents.launch({log});
    EXPECT_EQ(app.frontWindow()->takenIn, (QStringList{log, log}));
    EXPECT_EQ(app.alerts.questions.size(), 3U);

    // Dropped on a logbook they need no question; what is neither is refused, and documents open.
    app.documents.openDropped(*app.frontWindow(), {log, notes});
    EXPECT_EQ(app.frontWindow()->takenIn.size(), 3);
    EXPECT_EQ(app.alerts.failures.size(), 1U);
    app.documents.openDropped(*app.frontWindow(), {app.savedLogbook(QStringLiteral("dives.carnet"), 1)});
    EXPECT_TRUE(names().endsWith(u"|dives.carnet"));
    EXPECT_TRUE(app.frontWindow()->takenIn.isEmpty());
}

}  // namespace

}  // namespace tavrel
