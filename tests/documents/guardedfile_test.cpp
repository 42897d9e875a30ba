#include "base/paths.h"
#include "base/safefile.h"
#include "documents/document.h"
#include "documents/documentsettings.h"
#include "documents/journal.h"
#include "support/files.h"
#include "support/testdesktop.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tavrel {

namespace {

using State = FileIdentity::State;

/// A document of one text, with a form of one control.
struct Leaf : Document {
    explicit Leaf(Desktop& desktop) : Document(desktop) { setType(QStringLiteral("Leaf")); }

    Expected<QByteArray> dataRepresentationOfType(const QString&) override { return words; }
    Expected<void> loadDataRepresentation(QByteArrayView data, const QString&) override {
        words = data.toByteArray();
        return {};
    }
    void change(const QByteArray& newWords) {
        words = newWords;
        markChanged();
    }
    void typeIntoForm(const QString& text) {
        UnstoredForm form;
        form.row = 3;
        form.beside = [] { return QByteArray("beside"); };
        form.controls = {{QStringLiteral("field"), text, 7, Date(12.5), {}}, {QStringLiteral("none"), {}, -1, {}, {}}};
        typed = form;
        Q_EMIT touched();
    }

    QByteArray words;
    std::optional<UnstoredForm> typed;
    std::shared_ptr<const void> version;

protected:
    std::shared_ptr<const void> contentsVersion() const override { return version; }
    std::function<QByteArray()> contentsLater() const override {
        return [kept = words] { return kept; };
    }
    int recordCount() const override { return static_cast<int>(words.size()); }
    std::optional<UnstoredForm> unstoredForm() const override { return typed; }
};

struct GuardedFile : testing::Test {
    QString path(const char* name) { return desktop.path(QString::fromUtf8(name)); }

    TestDesktop desktop;
    Leaf leaf{desktop.desktop()};
};

TEST_F(GuardedFile, isNotSavedOverWhatAnotherProgramWrote) {
    const QString file = path("leaf");
    leaf.words = "one";
    ASSERT_TRUE(leaf.saveAs(file));
    // One that only touches the file, or writes the same again, has changed nothing.
    ASSERT_TRUE(writeFile(file, "one"));
    leaf.change("two");
    ASSERT_TRUE(leaf.save());

    ASSERT_TRUE(writeFile(file, "owt"));
    leaf.change("three");
    EXPECT_EQ(leaf.stateOnDisk(), State::changed);
    const auto refused = leaf.save();
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().sentence, u"“leaf” could not be saved: Another program has changed the file.");
    EXPECT_FALSE(leaf.saveAs(path("../") + QFileInfo(file).dir().dirName() + QStringLiteral("/leaf")));
    EXPECT_EQ(contentsOf(file), "owt");
    EXPECT_TRUE(leaf.isChanged());
    ASSERT_TRUE(leaf.save(Document::Overwriting::yes));
    EXPECT_EQ(contentsOf(file), "three");
    EXPECT_TRUE(leaf.save());

    ASSERT_TRUE(QFile::remove(file));
    EXPECT_EQ(leaf.stateOnDisk(), State::gone);
    EXPECT_FALSE(leaf.save());
    EXPECT_FALSE(pathExists(file));
    EXPECT_TRUE(leaf.saveAs(path("elsewhere")));
}

TEST_F(GuardedFile, isWatchedWhileItIsOpen) {
    const QString file = path("leaf");
    ASSERT_TRUE(leaf.saveAs(file));
    leaf.watchFile();
    QSignalSpy states(&leaf, &Document::stateOnDiskChanged);
    const auto next = [&] {
        return states.isEmpty() && !states.wait() ? State::same : states.takeFirst()[0].value<State>();
    };
    // Replaced, then changed in place, which is no news; removed; put back.
    ASSERT_TRUE(writeFile(file, "another"));
    EXPECT_EQ(next(), State::changed);
    writeContents(file, "in place");
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_EQ(next(), State::gone);
    ASSERT_TRUE(writeFile(file, ""));
    EXPECT_TRUE(states.wait());
    EXPECT_EQ(states.takeFirst()[0].value<State>(), State::same);
    // Its own saves are no news.
    leaf.change("saved");
    ASSERT_TRUE(leaf.save());
    ASSERT_TRUE(writeFile(file, "another"));
    EXPECT_EQ(next(), State::changed);
    EXPECT_TRUE(states.isEmpty());
    // Put back, then changed in place.
    ASSERT_TRUE(writeFile(file, "saved"));
    EXPECT_TRUE(states.wait());
    EXPECT_EQ(states.takeFirst()[0].value<State>(), State::same);
    writeContents(file, "in place");
    EXPECT_EQ(next(), State::changed);
}

/// As one that died on the way leaves it.
void makeUnsignedLock(const QString& file) {
    writeContents(file, "");
    const timespec longAgo[] = {{1'000'000, 0}, {1'000'000, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, pathBytes(file).constData(), longAgo, 0), 0);
}

TEST_F(GuardedFile, isClaimedByOneProgram) {
    const QString file = path("leaf");
    ASSERT_TRUE(leaf.saveAs(file));
    ASSERT_FALSE(leaf.claimFile(file));
    EXPECT_FALSE(leaf.claimFile(file)) << "its own already";
    Leaf other(desktop.desktop());
    const QString link = path("link");
    ASSERT_TRUE(QFile::link(file, link));
    QFile lock(path(".leaf.lock"));
    ASSERT_TRUE(lock.open(QFile::Append));
    ASSERT_TRUE(lock.setFileTime(QDateTime::currentDateTime().addDays(-2), QFile::FileModificationTime));
    lock.close();
    const auto holder = other.claimFile(link);
    ASSERT_TRUE(holder);
    EXPECT_EQ(holder->process, QCoreApplication::applicationPid());
    EXPECT_TRUE(holder->name().contains(QString::number(holder->process))) << holder->name().toStdString();
    // It goes with the file.
    ASSERT_TRUE(leaf.saveAs(path("elsewhere")));
    EXPECT_FALSE(other.claimFile(file));
    // One that died is no holder.
    const pid_t child = ::fork();
    if (child == 0) {
        FileLock orphan(path("orphan"));
        ::_exit(orphan.take({}) ? 1 : 0);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
    ASSERT_TRUE(pathExists(path(".orphan.lock")));
    EXPECT_FALSE(leaf.claimFile(path("orphan")));
    // Nor is one that died before it had signed, or what is no lock at all.
    makeUnsignedLock(path(".empty.lock"));
    ASSERT_EQ(::mkfifo(pathBytes(path(".pipe.lock")).constData(), 0600), 0);
    EXPECT_FALSE(leaf.claimFile(path("empty")));
    EXPECT_TRUE(other.claimFile(path("empty")));
    EXPECT_FALSE(other.claimFile(path("pipe")));
    // Nor is it anybody's while another program removes it to take it.
    makeUnsignedLock(path(".race.lock"));
    QLockFile remover(path(".race.lock.rmlock"));
    ASSERT_TRUE(remover.tryLock(0));
    QLockFile taken(path(".race.lock"));
    const std::unique_ptr<QThread> taking(QThread::create([&] {
        QThread::msleep(200);
        static_cast<void>(taken.removeStaleLockFile() && taken.tryLock(0));
    }));
    taking->start();
    FileLock race(path("race"));
    EXPECT_TRUE(race.take({}));
    taking->wait();
    // Names of other bytes are other files.
    FileLock grave(pathFromBytes(pathBytes(path("caf")) + "\xe8"));
    FileLock acute(pathFromBytes(pathBytes(path("caf")) + "\xe9"));
    EXPECT_FALSE(grave.take({}) || acute.take({}));
    FileLock again(grave.file());
    EXPECT_TRUE(again.take({}));
    // A folder that is not there takes no lock; the file is opened all the same.
    EXPECT_FALSE(leaf.claimFile(path("missing/file")));
}

TEST_F(GuardedFile, keepsWhatItWasBeforeTheFirstSave) {
    const QString file = path("leaf");
    ASSERT_TRUE(writeFile(file, "yesterday"));
    ASSERT_EQ(::chmod(pathBytes(file).constData(), 0600), 0);
    ASSERT_TRUE(leaf.open(file));
    for (const char* words : {"morning", "evening"}) {
        leaf.change(words);
        ASSERT_TRUE(leaf.save());
    }
    // Meanwhile it is saved elsewhere, where nothing was before.
    ASSERT_TRUE(leaf.saveAs(path("other")) && leaf.save() && leaf.saveAs(file));
    EXPECT_FALSE(pathExists(path("other~")));
    EXPECT_EQ(contentsOf(leaf.backupFile()), "yesterday");
    EXPECT_EQ(modeOf(leaf.backupFile()), 0600U);
    ASSERT_TRUE(leaf.revertToBackup());
    EXPECT_EQ(leaf.words, "yesterday");
    EXPECT_TRUE(leaf.isChanged());
    EXPECT_EQ(contentsOf(file), "evening") << "until it is saved";
    ASSERT_TRUE(leaf.save());
    EXPECT_EQ(contentsOf(file), "yesterday");

    desktop.preferences.set(settings::keepsBackup, false);
    ASSERT_TRUE(QFile::remove(leaf.backupFile()));
    Leaf without(desktop.desktop());
    ASSERT_TRUE(without.open(file) && without.save());
    EXPECT_FALSE(pathExists(without.backupFile()));
    EXPECT_FALSE(without.revertToBackup());
}

TEST(JournalPace, waitsForAPauseButNotForLong) {
    constexpr JournalPace::Times times;
    JournalPace pace(times);
    pace.touch(1000);
    EXPECT_EQ(pace.wait(1000), 2000);
    pace.touch(2500);
    EXPECT_EQ(pace.wait(2500), 2000);
    EXPECT_EQ(pace.wait(4500), 0);
    for (qint64 now = 3000; now <= 30'000; now += 500) {
        pace.touch(now);
    }
    EXPECT_EQ(pace.wait(20'500), 500);
    EXPECT_EQ(pace.wait(30'000), 0);
    pace.taken();
    EXPECT_EQ(pace.wait(0), 0);
    // What the user is promised: five seconds after the last key, and never more than thirty behind.
    EXPECT_LT(times.pause, 5000);
    EXPECT_LT(times.longest, 30'000);
}

/// What a run of the program keeps.
struct ProgramRun {
    ProgramRun(const QString& parent, Leaf& leaf) : folder(parent), journal(folder, leaf, QStringLiteral("Leaf")) {}
    QDir kept() const { return QFileInfo(journal.file()).dir(); }

    JournalFolder folder;
    Journal journal;
};

struct Journals : GuardedFile {
    std::vector<JournalFolder::Left> left() {
        JournalFolder next(parent);
        auto found = next.left();
        aside = next.keptAside();
        return found;
    }

    const QString parent = path("journal");
    QString aside;
};

TEST_F(Journals, keepWhatIsUnsavedForTheNextRun) {
    const QString file = path("leaf");
    leaf.words = "saved";
    ASSERT_TRUE(leaf.saveAs(file));
    {
        ProgramRun run(parent, leaf);
        run.journal.keepNow();
        EXPECT_TRUE(run.journal.file().isEmpty()) << "nothing is unsaved";
        leaf.change("changed");
        leaf.typeIntoForm(QStringLiteral("é ß"));
        run.journal.keepNow();
        EXPECT_EQ(modeOf(run.journal.file()), 0600U);
        EXPECT_TRUE(left().empty()) << "the program is alive";
    }
    // A power cut may leave the lock without the name that was to be in it.
    const QString lock =
        QDir(parent).filePath(QDir(parent).entryList(QDir::Dirs | QDir::NoDotAndDotDot)[0]) + QStringLiteral("/lock");
    makeUnsignedLock(lock);
    auto found = left();
    ASSERT_EQ(found.size(), 1U);
    ASSERT_EQ(found[0].documents.size(), 1U);
    const Unsaved& unsaved = found[0].documents[0];
    EXPECT_EQ(std::tuple(unsaved.recordClass, unsaved.name, unsaved.file, unsaved.records, unsaved.time),
              std::tuple(QStringLiteral("Leaf"), QStringLiteral("leaf"), file, 7, desktop.clock.moment));
    ASSERT_TRUE(unsaved.form && unsaved.form->controls.size() == 2);
    EXPECT_EQ(unsaved.form->row, 3);
    const auto& field = unsaved.form->controls[0];
    EXPECT_EQ(std::tuple(field.name, field.text, field.tag, field.date.secondsSince2001()),
              std::tuple(QStringLiteral("field"), QStringLiteral("é ß"), 7, 12.5));
    EXPECT_TRUE(unsaved.form->controls[1].date.isNull());
    ASSERT_TRUE(unsaved.form->beside);
    EXPECT_EQ(unsaved.form->beside(), "beside");
    EXPECT_TRUE(left().empty()) << "another run looks at it";

    Leaf again(desktop.desktop());
    ASSERT_TRUE(again.restore(unsaved));
    EXPECT_EQ(again.words, "changed");
    EXPECT_TRUE(again.isChanged());
    EXPECT_EQ(again.file(), file);
    EXPECT_EQ(contentsOf(file), "saved");
    EXPECT_EQ(again.stateOnDisk(), State::same);
    ASSERT_TRUE(writeFile(file, "by another"));
    EXPECT_EQ(again.stateOnDisk(), State::changed);

    found[0].discard();
    EXPECT_TRUE(left().empty() && QDir(parent).isEmpty());
}

TEST_F(Journals, writeTheContentsOnlyWhenTheyAreOthers) {
    ProgramRun run(parent, leaf);
    const auto files = [&] { return run.kept().entryList({QStringLiteral("*.contents")}, QDir::Files); };
    leaf.version = std::make_shared<int>();
    leaf.change("first");
    run.journal.keepNow();
    const QStringList first = files();
    ASSERT_EQ(first.size(), 1);
    leaf.typeIntoForm(QStringLiteral("typed"));
    // Were they asked for again, these would be found.
    leaf.words = "not told of";
    run.journal.keepNow();
    EXPECT_EQ(files(), first);
    leaf.version = std::make_shared<int>();
    leaf.change("second");
    run.journal.keepNow();
    ASSERT_EQ(files().size(), 1);
    EXPECT_NE(files(), first);
    EXPECT_EQ(contentsOf(run.kept().filePath(files().first())), "second");
}

TEST_F(Journals, areGoneOnceEverythingIsSaved) {
    ProgramRun run(parent, leaf);
    leaf.change("changed");
    run.journal.keepNow();
    ASSERT_TRUE(pathExists(run.journal.file()));
    ASSERT_TRUE(leaf.saveAs(path("leaf")));
    run.folder.work().waitForDone();
    EXPECT_FALSE(pathExists(run.journal.file()));
    leaf.change("again");
    run.journal.keepNow();
    ASSERT_TRUE(pathExists(run.journal.file()));
    run.journal.drop();
    run.folder.work().waitForDone();
    EXPECT_FALSE(pathExists(run.journal.file()));
}

TEST_F(Journals, knowASaveThatTheyDidNotOutlive) {
    const QString file = path("leaf");
    leaf.words = "first";
    ASSERT_TRUE(leaf.saveAs(file));
    // What is beside the file when it is written, and stays when the program ends there and then.
    const auto endWhileSaving = [&](bool types) {
        ProgramRun run(parent, leaf);
        leaf.change("second");
        if (types) {
            leaf.typeIntoForm(QStringLiteral("typed"));
        }
        run.journal.keepNow();
        leaf.typed.reset();
        leaf.change("third");
        const QString copy = parent + QStringLiteral("/ended");
        const auto copying = QObject::connect(&leaf, &Document::aboutToWrite, &leaf, [&] {
            const QDir kept = run.kept();
            ASSERT_TRUE(QDir().mkdir(copy));
            for (const QString& name : kept.entryList({QStringLiteral("1*")}, QDir::Files)) {
                ASSERT_TRUE(QFile::copy(kept.filePath(name), copy + u'/' + name));
            }
        });
        ASSERT_TRUE(leaf.save(Document::Overwriting::yes));
        QObject::disconnect(copying);
    };
    endWhileSaving(true);
    // What the journal holds, and whether the file has it already.
    const auto holds = [](const std::vector<JournalFolder::Left>& found, const char* contents, bool isChanged) {
        return found.size() == 1 && found[0].documents[0].contents() == contents &&
               found[0].documents[0].isChanged == isChanged;
    };
    auto found = left();
    ASSERT_TRUE(holds(found, "third", false));
    ASSERT_TRUE(found[0].documents[0].form);
    found.clear();
    // The save did not come about: the journal is what there is.
    ASSERT_TRUE(writeFile(file, "first"));
    found = left();
    ASSERT_TRUE(holds(found, "second", true));
    found[0].discard();
    // Without a form there is nothing to offer.
    endWhileSaving(false);
    EXPECT_TRUE(left().empty());
    // What was changed after the save counts more than it.
    {
        ProgramRun run(parent, leaf);
        leaf.typeIntoForm(QStringLiteral("typed"));
        leaf.change("fourth");
        run.journal.keepNow();
        ASSERT_TRUE(leaf.save());
        leaf.change("fifth");
        run.journal.keepNow();
    }
    found = left();
    ASSERT_TRUE(holds(found, "fifth", true));
    found[0].discard();
    EXPECT_TRUE(QDir(parent).isEmpty());
}

TEST_F(Journals, areKeptByThemselvesAfterAChange) {
    ProgramRun run(parent, leaf);
    leaf.typeIntoForm(QStringLiteral("x"));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return !run.journal.file().isEmpty() && pathExists(run.journal.file()); }, 20'000));
}

TEST_F(Journals, areMadeAnewWhenTheirFolderIsRemoved) {
    {
        ProgramRun run(parent, leaf);
        QSignalSpy troubles(&run.journal, &Journal::notKept);
        QSignalSpy mended(&run.journal, &Journal::keptAgain);
        leaf.version = std::make_shared<int>();
        leaf.change("changed");
        run.journal.keepNow();
        ASSERT_TRUE(QDir(parent).removeRecursively());
        writeContents(parent, "in the way");
        for (const char* typed : {"one", "two"}) {
            leaf.typeIntoForm(QLatin1StringView(typed));
            EXPECT_FALSE(run.journal.keepNow());
        }
        EXPECT_TRUE(troubles.size() == 1 && mended.isEmpty());
        ASSERT_TRUE(QFile::remove(parent));
        leaf.typeIntoForm(QStringLiteral("three"));
        EXPECT_TRUE(run.journal.keepNow());
        EXPECT_EQ(mended.size(), 1);
        EXPECT_TRUE(left().empty()) << "the program is alive";
    }
    const auto found = left();
    ASSERT_TRUE(found.size() == 1 && found[0].documents.size() == 1);
    EXPECT_EQ(found[0].documents[0].contents(), "changed");
    EXPECT_EQ(found[0].documents[0].form->controls[0].text, u"three");
}

TEST_F(Journals, thatAreDamagedAreKeptAside) {
    const QString file = path("leaf");
    ASSERT_TRUE(leaf.saveAs(file) && writeFile(file, "by another"));
    {
        ProgramRun run(parent, leaf);
        leaf.change("changed");
        run.journal.keepNow();
        const QByteArray bytes = contentsOf(run.journal.file());
        const auto whole = unarchivedUnsaved(bytes);
        ASSERT_TRUE(whole);
        for (qsizetype length = 0; length < bytes.size(); ++length) {
            EXPECT_FALSE(unarchivedUnsaved(QByteArrayView(bytes).first(length))) << length;
        }
        QByteArray flipped = bytes;
        flipped[bytes.size() - 1] = static_cast<char>(flipped[bytes.size() - 1] ^ 1);
        EXPECT_FALSE(unarchivedUnsaved(flipped));
        ASSERT_TRUE(writeFile(run.kept().filePath(whole->second.name), "chanced"));
        QFile longAgo(run.journal.file());
        ASSERT_TRUE(longAgo.open(QFile::Append) &&
                    longAgo.setFileTime(QDateTime::currentDateTime().addDays(-200), QFile::FileModificationTime));
    }
    const auto namesAside = [&] { return QDir(aside).entryList(QDir::Files); };
    EXPECT_TRUE(left().empty());
    ASSERT_EQ(namesAside().size(), 2);
    EXPECT_EQ(contentsOf(QDir(aside).filePath(namesAside().first())), "chanced");
    // Both stay for long, but not for ever, and are told of once.
    QFile old(QDir(aside).filePath(namesAside().last()));
    ASSERT_TRUE(old.open(QFile::Append) &&
                old.setFileTime(QDateTime::currentDateTime().addDays(-200), QFile::FileModificationTime));
    old.close();
    const QString first = aside;
    EXPECT_TRUE(left().empty() && aside.isEmpty());
    EXPECT_EQ(QDir(first).entryList(QDir::Files).size(), 1);
    // What was typed comes back without the records, over those of the file or over none.
    for (const bool isThere : {true, false}) {
        {
            ProgramRun run(parent, leaf);
            leaf.change("changed");
            leaf.typeIntoForm(QStringLiteral("typed"));
            run.journal.keepNow();
            const QStringList contents = run.kept().entryList({QStringLiteral("*.contents")}, QDir::Files);
            ASSERT_EQ(::truncate(pathBytes(run.kept().filePath(contents[0])).constData(), 1), 0);
        }
        ASSERT_TRUE(isThere || QFile::remove(file));
        auto found = left();
        ASSERT_TRUE(found.size() == 1 && found[0].documents.size() == 1 && !aside.isEmpty());
        const Unsaved& unsaved = found[0].documents[0];
        EXPECT_EQ(std::pair(unsaved.form->row, unsaved.form->controls[0].text), std::pair(-1, QStringLiteral("typed")));
        Leaf again(desktop.desktop());
        ASSERT_TRUE(again.restore(unsaved));
        EXPECT_EQ(std::pair(again.words, again.file()),
                  isThere ? std::pair(QByteArray("by another"), file) : std::pair(QByteArray(), QString()));
        EXPECT_FALSE(again.isChanged());
        found[0].discard();
    }
}

TEST_F(Journals, withoutAFolderTouchNothing) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir().mkpath(path("here/folder")) && writeFile(path("here/folder/file"), "precious") &&
                QDir::setCurrent(path("here")));
    JournalFolder nowhere{QString()};
    EXPECT_TRUE(nowhere.left().empty());
    Journal journal(nowhere, leaf, QStringLiteral("Leaf"));
    leaf.change("changed");
    journal.keepNow();
    EXPECT_TRUE(journal.file().isEmpty());
    ASSERT_TRUE(QDir::setCurrent(before));
    EXPECT_EQ(contentsOf(path("here/folder/file")), "precious");
    // Nor do others lose what lies where the journals do.
    ASSERT_TRUE(JournalFolder(path("here")).left().empty());
    EXPECT_EQ(contentsOf(path("here/folder/file")), "precious");
}

}  // namespace

}  // namespace tavrel
