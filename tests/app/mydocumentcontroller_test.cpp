#include "app/mydocumentcontroller.h"

#include "app/testapplication.h"
#include "archive/recordarchive.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QUrl>
#include <gtest/gtest.h>

namespace tavrel {

namespace {

enum Answer { save, dontSave, cancel };

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray contents(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

class Documents : public testing::Test {
protected:
    ~Documents() override { setTextLanguage(QStringLiteral("en")); }

    QStringList names() {
        QStringList names;
        for (DocumentWindow* window : app.documents.windows()) {
            names.append(window->document().displayName());
        }
        return names;
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
    app.documents.newDocumentOfType(types[1]);
    app.documents.newDocumentOfType(types[0]);
    app.documents.newDocument();
    QStringList created;
    for (DocumentWindow* window : app.documents.windows()) {
        created.append(window->document().type());
    }
    const QString logbook = text("Main", "Carnet de plongee");
    EXPECT_EQ(created, (QStringList{QStringLiteral("Budget"), logbook, logbook}));
    EXPECT_EQ(app.documents.defaultType(), logbook);
    app.documents.setDefaultType(QStringLiteral("Budget"));
    EXPECT_EQ(app.documents.newDocument()->document().type(), u"Budget");
}

TEST_F(Documents, openByWhatIsInsideWhateverTheirName) {
    Purse purse(app.desktop());
    purse.changeList({}, {std::make_shared<const Coin>()});
    ASSERT_TRUE(purse.saveAs(app.path(QStringLiteral("coins.carnet"))));
    ASSERT_TRUE(Purse(app.desktop()).saveAs(app.path(QStringLiteral("empty.BUDGET"))));
    ASSERT_TRUE(Purse(app.desktop()).saveAs(app.path(QStringLiteral("empty.doc"))));
    const QString dives = app.savedLogbook(QStringLiteral("dives.budget"), 2);
    const struct {
        QString file;
        const char* recordClass;
    } cases[] = {{dives, "Plongee"},
                 {app.path(QStringLiteral("coins.carnet")), "Coin"},
                 {app.path(QStringLiteral("empty.BUDGET")), "Coin"},
                 {app.path(QStringLiteral("empty.doc")), "Plongee"}};
    for (const auto& it : cases) {
        DocumentWindow* window = app.documents.openFile(it.file);
        ASSERT_TRUE(window) << it.file.toStdString();
        EXPECT_STREQ(app.documents.typeOf(*window).recordClass, it.recordClass) << it.file.toStdString();
    }
    // Another name of an open file brings its window back.
    const QString alias = app.path(QStringLiteral("alias"));
    ASSERT_TRUE(QFile::link(dives, alias));
    EXPECT_EQ(app.documents.openFile(alias), app.documents.windows()[0]);
    EXPECT_EQ(app.documents.windows().size(), 4);
}

TEST_F(Documents, thatCannotBeReadLeaveTheOpenOneAlone) {
    DocumentWindow* open = app.documents.openFile(app.savedLogbook(QStringLiteral("dives.carnet"), 2));
    const QByteArray good = contents(open->document().file());
    struct Jewel : Coin {
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
        write(file, bytes);
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
    window->leaves = false;
    app.documents.exportDocument(*window);
    EXPECT_FALSE(window->isTaken) << "going on editing";
    window->leaves = true;
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
    EXPECT_EQ(names(), (QStringList{QStringLiteral("Untitled"), QStringLiteral("dives.carnet")}));
    EXPECT_TRUE(app.frontWindow()->further.isVisible());
    const auto question = app.alerts.questions.back();
    EXPECT_EQ(question.buttons,
              (QStringList{text("Main", "Save"), text("Main", "Don't save"), text("Main", "Cancel")}));
    EXPECT_TRUE(question.message.contains(u"dives.carnet"));
    EXPECT_EQ(app.frontWindow()->settled, QList{Settling::leaving});

    app.alerts.answerNext(dontSave);
    app.frontWindow()->close();
    EXPECT_EQ(names(), QStringList{QStringLiteral("Untitled")});
    EXPECT_EQ(closeWith(save), 1);
    EXPECT_EQ(names(), QStringList{QStringLiteral("Untitled")});
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

TEST_F(Documents, openAtTheStart) {
    // The first start has no recent document.
    EXPECT_TRUE(app.documents.applicationOpenUntitledFile());
    EXPECT_EQ(names(), QStringList{QStringLiteral("Untitled")});
    EXPECT_EQ(app.frontCarnet().type(), Carnet::typeName());
    // The empty one gives way to the first file opened, unless something was done with it.
    const QString first = app.savedLogbook(QStringLiteral("first.carnet"), 1);
    const QString second = app.savedLogbook(QStringLiteral("second.carnet"), 1);
    app.documents.openFiles({first, second});
    EXPECT_EQ(names(), (QStringList{QStringLiteral("first.carnet"), QStringLiteral("second.carnet")}));
    EXPECT_EQ(recent(), (QStringList{second, first}));

    app.documents.closeAllDocuments();
    app.documents.applicationOpenUntitledFile();
    EXPECT_EQ(names(), QStringList{QStringLiteral("second.carnet")});
    EXPECT_EQ(recent(), (QStringList{second, first}));

    app.documents.closeAllDocuments();
    QFile::remove(second);
    app.documents.applicationOpenUntitledFile();
    EXPECT_EQ(names(), QStringList{QStringLiteral("Untitled")});
    EXPECT_EQ(app.alerts.failures.size(), 1U);
    EXPECT_EQ(recent(), QStringList{first});
    app.frontCarnet().addDive();
    app.documents.launch({first});
    EXPECT_EQ(app.documents.windows().size(), 2);
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
    EXPECT_EQ(names(), (QStringList{QStringLiteral("Untitled"), QStringLiteral("dives #1.carnet")}));
}

TEST_F(Documents, takeInFilesOfOtherPrograms) {
    const auto written = [&](const QString& name) {
        QFile file(app.path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("dives of another program");
        return file.fileName();
    };
    const QString log = written(QStringLiteral("dives.log"));
    const QString notes = written(QStringLiteral("notes.txt"));

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
    EXPECT_EQ(names().last(), u"dives.carnet");
    EXPECT_TRUE(app.frontWindow()->takenIn.isEmpty());
}

}  // namespace

}  // namespace tavrel
