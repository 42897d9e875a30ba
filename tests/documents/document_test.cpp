#include "documents/document.h"

#include "base/safefile.h"
#include "support/files.h"
#include "support/testdesktop.h"

#include <QSignalSpy>
#include <QUndoCommand>

namespace tavrel {

namespace {

/// A document of one text, which refuses bytes that begin with '!'.
struct Note : Document {
    explicit Note(Desktop& desktop) : Document(desktop) { setType(QStringLiteral("Note")); }

    Expected<QByteArray> dataRepresentationOfType(const QString& type) override {
        if (type != u"Note" && type != u"Export") {
            return failure(QStringLiteral("unknown type"), type);
        }
        return type == u"Note" ? words : words.toUpper();
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
    EXPECT_FALSE(note.save() || note.revert());

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
    EXPECT_EQ(contentsOf(note.file()), "two");
    EXPECT_EQ(files.count(), 1);
    EXPECT_EQ(eachOf(states, [](const auto& state) { return state.first().toString(); }),
              u"true|false|true|false|true|false");
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
    EXPECT_FALSE(note.writeExport(damaged, note.dataRepresentationOfType(QStringLiteral("Unknown"))));
    EXPECT_EQ(contentsOf(damaged), "!x");
    ASSERT_TRUE(note.writeExport(damaged, note.dataRepresentationOfType(QStringLiteral("Export"))));
    EXPECT_EQ(contentsOf(damaged), "TWO");

    EXPECT_EQ(note.words, "two");
    EXPECT_EQ(note.file(), file);
    EXPECT_EQ(contentsOf(file), "one");
    EXPECT_TRUE(note.isChanged() && note.undoStack().canUndo());
    EXPECT_EQ(states.count() + files.count(), 0);
    note.markChanged();
    ASSERT_TRUE(note.revert());
    EXPECT_EQ(note.words, "one");
    EXPECT_FALSE(note.isChanged() || note.undoStack().canUndo());
}

}  // namespace

}  // namespace tavrel
