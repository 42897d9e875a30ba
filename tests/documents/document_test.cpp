#include "documents/document.h"

#include "base/safefile.h"
#include "support/testdesktop.h"

#include <QDir>
#include <QSignalSpy>
#include <QUndoCommand>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace tavrel {

namespace {

QByteArray contents(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

mode_t mode(const QString& path) {
    struct stat status {};
    EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0);
    return status.st_mode & 07777U;
}

class SafeFile : public testing::Test {
protected:
    QString path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }
    QStringList names() const {
        return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir folder_;
};

TEST_F(SafeFile, replacesAFileAndKeepsItsModeAndLinks) {
    const auto old = ::umask(027);
    EXPECT_TRUE(writeFile(path("été.carnet"), "one"));
    ::umask(old);
    EXPECT_EQ(mode(path("été.carnet")), 0640U);
    ASSERT_EQ(::chmod(QFile::encodeName(path("été.carnet")).constData(), 0604), 0);
    ASSERT_TRUE(QDir(path("")).mkdir(QStringLiteral("sub")));
    ASSERT_TRUE(QFile::link(QStringLiteral("../été.carnet"), path("sub/link")));
    ASSERT_TRUE(QFile::link(path("sub/link"), path("chain")));
    ASSERT_TRUE(QFile::link(path("new"), path("dangling")));

    const auto before = FileBytes::open(path("chain"));
    ASSERT_TRUE(before);
    EXPECT_TRUE(writeFile(path("chain"), QByteArray(100'000, 'x')));
    EXPECT_EQ(contents(path("été.carnet")).size(), 100'000);
    EXPECT_EQ(mode(path("été.carnet")), 0604U);
    EXPECT_TRUE(writeFile(path("dangling"), ""));
    EXPECT_EQ(contents(path("new")), "");
    EXPECT_TRUE(QFileInfo(path("chain")).isSymLink() && QFileInfo(path("dangling")).isSymLink());
    EXPECT_EQ(before->bytes().toByteArray(), "one") << "a file being read is not changed under its reader";
    EXPECT_EQ(names().size(), 5) << names().join(u' ').toStdString();

    const auto empty = FileBytes::open(path("new"));
    ASSERT_TRUE(empty);
    EXPECT_TRUE(empty->bytes().isEmpty());
}

TEST_F(SafeFile, leavesEverythingAsItWasWhenItFails) {
    ASSERT_TRUE(writeFile(path("file"), "old"));
    ASSERT_TRUE(QDir(path("")).mkdir(QStringLiteral("folder")));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    struct Case {
        const char* name;
        const char16_t* written;
        const char16_t* read;
    };
    const Case cases[] = {
        {"missing/file", u"The folder does not exist.", u"There is no such file."},
        {"file/below", u"The folder does not exist.", u"There is no such file."},
        {"folder", u"It is a folder, not a file.", u"It is a folder, not a file."},
        {"pipe", u"It is not a regular file.", u"It is not a regular file."},
    };
    for (const Case& it : cases) {
        const auto written = writeFile(path(it.name), "new");
        const auto read = FileBytes::open(path(it.name));
        ASSERT_FALSE(written) << it.name;
        ASSERT_FALSE(read) << it.name;
        const QString name = QFileInfo(path(it.name)).fileName();
        EXPECT_EQ(written.error().sentence,
                  QStringLiteral("“%1” could not be saved: ").arg(name) + QString::fromUtf16(it.written));
        EXPECT_EQ(read.error().sentence,
                  QStringLiteral("“%1” could not be opened: ").arg(name) + QString::fromUtf16(it.read));
        EXPECT_TRUE(written.error().detail.contains(path(it.name)));
    }

    // A write that breaks off in the middle, as on a full disk.
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit small{1000, limit.rlim_max};
    const auto signal = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const auto result = writeFile(path("file"), QByteArray(5000, 'x'));
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, signal);
    EXPECT_FALSE(result);
    EXPECT_EQ(contents(path("file")), "old");
    EXPECT_EQ(names(), (QStringList{QStringLiteral("file"), QStringLiteral("folder"), QStringLiteral("pipe")}));
}

/// A document of one text, which refuses bytes that begin with '!'.
class Note : public Document {
public:
    explicit Note(Desktop& desktop) : Document(desktop) { setType(QStringLiteral("Note")); }

    Expected<QByteArray> dataRepresentationOfType(const QString& type) override {
        if (type == u"Note") {
            return words;
        }
        if (type == u"Export") {
            return words.toUpper();
        }
        return failure(QStringLiteral("unknown type"), type);
    }

    Expected<void> loadDataRepresentation(QByteArrayView data, const QString&) override {
        if (data.startsWith("!")) {
            return failure(QStringLiteral("damaged"), QStringLiteral("byte 0"));
        }
        words = data.toByteArray();
        return {};
    }

    void type(const QByteArray& newWords) {
        struct Typing : QUndoCommand {
            Typing(Note& itsNote, QByteArray itsWords) : note(itsNote), other(std::move(itsWords)) {}
            void undo() override { std::swap(note.words, other); }
            void redo() override { std::swap(note.words, other); }
            Note& note;
            QByteArray other;
        };
        undoStack().push(new Typing(*this, newWords));
    }

    using Document::markChanged;

    QByteArray words;
};

TEST(Document, knowsWhetherItDiffersFromItsFile) {
    TestDesktop desktop;
    Note note(desktop.desktop());
    const QSignalSpy states(&note, &Document::changedStateChanged);
    const QSignalSpy files(&note, &Document::fileChanged);
    EXPECT_EQ(note.displayName(), u"Untitled");
    EXPECT_FALSE(note.save());

    note.type("one");
    note.type("two");
    EXPECT_TRUE(note.isChanged());
    ASSERT_TRUE(note.saveAs(desktop.path(QStringLiteral("note.carnet"))));
    EXPECT_EQ(note.displayName(), u"note.carnet");
    EXPECT_FALSE(note.isChanged());
    note.undoStack().undo();
    EXPECT_TRUE(note.isChanged());
    note.undoStack().redo();
    EXPECT_FALSE(note.isChanged());
    // A change beside the steps is undone by no step.
    note.markChanged();
    note.type("three");
    note.undoStack().undo();
    EXPECT_TRUE(note.isChanged());
    ASSERT_TRUE(note.save());
    EXPECT_FALSE(note.isChanged());
    EXPECT_EQ(contents(note.file()), "two");
    EXPECT_EQ(files.count(), 1);
    QList<bool> told;
    for (const auto& state : states) {
        told.append(state.first().toBool());
    }
    EXPECT_EQ(told, (QList<bool>{true, false, true, false, true, false}));
}

TEST(Document, revertsToItsFile) {
    TestDesktop desktop;
    Note note(desktop.desktop());
    EXPECT_FALSE(note.revert());
    note.type("one");
    ASSERT_TRUE(note.saveAs(desktop.path(QStringLiteral("note"))));
    note.type("two");
    note.markChanged();
    ASSERT_TRUE(note.revert());
    EXPECT_EQ(note.words, "one");
    EXPECT_FALSE(note.isChanged());
    EXPECT_FALSE(note.undoStack().canUndo());
}

TEST(Document, staysAsItIsWhenReadingOrWritingFails) {
    TestDesktop desktop;
    const QString file = desktop.path(QStringLiteral("note"));
    const QString damaged = desktop.path(QStringLiteral("damaged"));
    ASSERT_TRUE(writeFile(damaged, "!x"));
    Note note(desktop.desktop());
    note.type("one");
    ASSERT_TRUE(note.saveAs(file));
    note.type("two");
    const QSignalSpy states(&note, &Document::changedStateChanged);
    const QSignalSpy files(&note, &Document::fileChanged);

    const auto opened = note.open(damaged);
    ASSERT_FALSE(opened);
    EXPECT_EQ(opened.error().message(), u"“damaged” could not be opened: damaged (byte 0)");
    EXPECT_FALSE(note.open(desktop.path(QStringLiteral("missing"))));
    EXPECT_FALSE(note.saveAs(desktop.path(QStringLiteral("note/below"))));
    EXPECT_FALSE(note.exportAs(damaged, QStringLiteral("Unknown")));
    EXPECT_EQ(contents(damaged), "!x");
    ASSERT_TRUE(note.exportAs(damaged, QStringLiteral("Export")));
    EXPECT_EQ(contents(damaged), "TWO");

    EXPECT_EQ(note.words, "two");
    EXPECT_EQ(note.file(), file);
    EXPECT_EQ(contents(file), "one");
    EXPECT_TRUE(note.isChanged());
    EXPECT_TRUE(note.undoStack().canUndo());
    EXPECT_EQ(states.count() + files.count(), 0);
}

}  // namespace

}  // namespace tavrel
