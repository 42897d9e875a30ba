#include "cli/commandrunner.h"
#include "documents/filelock.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace tavrel {

namespace {

const QString logbook = QStringLiteral("a.carnet");

class GuardedFiles : public CommandLine {
protected:
    void SetUp() override { done({QStringLiteral("new"), QStringLiteral("dive logbook"), logbook}); }
    QStringList add(int dive) const { return {QStringLiteral("add"), logbook, QStringLiteral("lieu=%1").arg(dive)}; }
};

TEST_F(GuardedFiles, loseNoDiveOfTwoWriters) {
    constexpr int each = 8;
    const auto write = [&](int from) {
        for (int dive = from; dive < from + each; ++dive) {
            EXPECT_EQ(run(add(dive)).code, 0);
        }
    };
    std::thread other(write, each);
    write(0);
    other.join();
    QSet<QString> places;
    for (std::size_t row = 0; row < dives(logbook).size(); ++row) {
        places.insert(value(logbook, row, "lieu"));
    }
    EXPECT_EQ(places.size(), 2 * each);
}

TEST_F(GuardedFiles, areLeftToTheProgramThatHasThemOpen) {
    FileLock lock(path(logbook));
    ASSERT_FALSE(lock.take({}));
    const QByteArray before = contentsOf(path(logbook));
    for (const QStringList& command :
         {add(1), QStringList{QStringLiteral("renumber"), logbook, QStringLiteral("5")},
          QStringList{QStringLiteral("import"), logbook, QStringLiteral(TAVREL_SAMPLE_FOLDER "/sample.udcf")}}) {
        const Outcome refused = run(command);
        EXPECT_EQ(refused.code, 1);
        EXPECT_TRUE(refused.error.contains(u"It is open in ")) << refused.error.toStdString();
        EXPECT_TRUE(refused.error.contains(QString::number(::getpid()))) << refused.error.toStdString();
    }
    EXPECT_EQ(contentsOf(path(logbook)), before);
    EXPECT_EQ(run({QStringLiteral("show"), logbook}).code, 0);
    EXPECT_EQ(run(add(1) + QStringList{QStringLiteral("--force")}).code, 0);
    EXPECT_EQ(dives(logbook).size(), 1U);
}

TEST_F(GuardedFiles, mayHaveNamesOfAnyBytes) {
    // As a script hands them over: not through text.
    const QByteArray folder = QFile::encodeName(path(QString()));
    const QByteArray command = "cd '" + folder +
                               "' && mv a.carnet $'\\xe9t\\xe9.carnet' && '" TAVREL_CLI
                               "' add $'\\xe9t\\xe9.carnet' lieu=here && mv $'\\xe9t\\xe9.carnet' a.carnet";
    const Outcome outcome = run({QStringLiteral("-c"), QString::fromLatin1(command)}, QStringLiteral("/bin/bash"));
    EXPECT_EQ(outcome.code, 0) << outcome.error.toStdString();
    EXPECT_EQ(value(logbook, 0, "lieu"), u"here");
}

TEST_F(GuardedFiles, exportToPipesAndDevices) {
    done(add(1));
    const QString file = path(QStringLiteral("dives.csv"));
    const QStringList command{QStringLiteral("export"),
                              logbook,
                              QString(),
                              QStringLiteral("--format"),
                              QStringLiteral("udcf"),
                              QStringLiteral("--now"),
                              QStringLiteral("2024-05-03T10:30:00")};
    const auto to = [&](const QString& target) {
        QStringList arguments = command;
        arguments[2] = target;
        return arguments;
    };
    done(to(file));
    const QString written = QString::fromUtf8(contentsOf(file));
    ASSERT_FALSE(written.isEmpty());
    EXPECT_EQ(done(to(QStringLiteral("-"))), written);
    EXPECT_EQ(done(to(QStringLiteral("/dev/stdout"))), written);
    done(to(QStringLiteral("/dev/null")));
    const Outcome full = run(to(QStringLiteral("/dev/full")));
    EXPECT_EQ(full.code, 1);
    EXPECT_FALSE(full.error.isEmpty());
}

TEST_F(GuardedFiles, tellByTheExitCodeWhatHappenedToTheFile) {
    const QString program = QStringLiteral(TAVREL_CLI);
    const auto intoFull = [&](const QString& words) {
        return run(
            {QStringLiteral("-c"), u'\'' + program + QStringLiteral("' ") + words + QStringLiteral(" >/dev/full")},
            QStringLiteral("/bin/bash"));
    };
    const Outcome saved = intoFull(QStringLiteral("import a.carnet '" TAVREL_SAMPLE_FOLDER "/sample.udcf'"));
    EXPECT_EQ(saved.code, 0);
    EXPECT_FALSE(saved.error.isEmpty());
    EXPECT_FALSE(dives(logbook).empty());
    EXPECT_EQ(intoFull(QStringLiteral("show a.carnet")).code, 1);
    EXPECT_EQ(intoFull(QStringLiteral("export a.carnet - --format udcf")).code, 1);
}

TEST_F(GuardedFiles, sayWithoutControlCharactersWhatIsWrong) {
    const Outcome refused = run({QStringLiteral("show"), QStringLiteral("\x1b[31mred")});
    EXPECT_EQ(refused.code, 1);
    EXPECT_TRUE(refused.error.contains(u"\u241B[31mred")) << refused.error.toStdString();
    EXPECT_FALSE(refused.error.contains(u'\x1b'));
}

}  // namespace

}  // namespace tavrel
