#include "cli/commandrunner.h"
#include "documents/filelock.h"

#include <thread>
#include <unistd.h>

namespace tavrel {

namespace {

struct GuardedFiles : LogbookCommands {
    Outcome shell(const QByteArray& script) const {
        return run({QStringLiteral("-c"), QString::fromLatin1(script)}, QStringLiteral("/bin/bash"));
    }
};

TEST_F(GuardedFiles, loseNoDiveOfTwoWriters) {
    constexpr int each = 8;
    const auto write = [&](int from) {
        for (int dive = from; dive < from + each; ++dive) {
            EXPECT_EQ(run(words("add a.carnet") << QStringLiteral("lieu=%1").arg(dive)).code, 0);
        }
    };
    std::thread other(write, each);
    write(0);
    other.join();
    QSet<QString> places;
    for (const DivePointer& dive : dives()) {
        places.insert(dive->lieu);
    }
    EXPECT_EQ(places.size(), 2 * each);
}

TEST_F(GuardedFiles, areLeftToTheProgramThatHasThemOpen) {
    FileLock lock(path(QStringLiteral("a.carnet")));
    ASSERT_FALSE(lock.take({}));
    const QByteArray before = bytes();
    for (const char* command :
         {"add a.carnet lieu=1", "renumber a.carnet 5", "profile a.carnet --row 0 --replace depth=b.txt",
          "import a.carnet " TAVREL_SAMPLE_FOLDER "/sample.udcf"}) {
        expectRefusals({{command, 1, "It is open in "}, {command, 1, std::to_string(::getpid()).c_str()}});
    }
    EXPECT_EQ(bytes(), before);
    done("show a.carnet");
    done("import a.carnet --dry-run " TAVREL_SAMPLE_FOLDER "/sample.udcf");
    done("add a.carnet lieu=1 --force");
    EXPECT_EQ(dives().size(), 1U);
}

TEST_F(GuardedFiles, keepWhatANewerVersionWrote) {
    done("new Materiel m.materiel");
    done("add m.materiel");
    const QString file = path(QStringLiteral("m.materiel"));
    const QByteArray newer = contentsOf(file).replace("Materiel\x03", "Materiel\x04");
    writeContents(file, newer);
    expectRefusals({{"set m.materiel 0 notesMatos=x", 1, "newer version"}});
    EXPECT_EQ(contentsOf(file), newer);
    done("set m.materiel 0 notesMatos=x --force");
    EXPECT_TRUE(contentsOf(file).contains("Materiel\x03"));
}

TEST_F(GuardedFiles, mayHaveNamesOfAnyBytes) {
    // As a script hands them over: not through text.
    const Outcome outcome =
        shell("mv a.carnet $'\\xe9t\\xe9.carnet' && '" TAVREL_CLI
              "' add $'\\xe9t\\xe9.carnet' lieu=here && mv $'\\xe9t\\xe9.carnet' a.carnet && rm -f *$'\\xe9'*");
    EXPECT_EQ(outcome.code, 0) << outcome.error.toStdString();
    expectValues(0, "lieu=here");
}

TEST_F(GuardedFiles, exportToPipesAndDevices) {
    done("add a.carnet lieu=1");
    const auto to = [](const char* target) {
        return words("export a.carnet --format udcf --now 2024-05-03T10:30:00") << QString::fromLatin1(target);
    };
    done(to("dives.udcf"));
    const QString written = QString::fromUtf8(contentsOf(path(QStringLiteral("dives.udcf"))));
    ASSERT_FALSE(written.isEmpty());
    EXPECT_EQ(done(to("-")), written);
    EXPECT_EQ(done(to("/dev/stdout")), written);
    done(to("/dev/null"));
    const Outcome full = run(to("/dev/full"));
    EXPECT_EQ(full.code, 1);
    EXPECT_FALSE(full.error.isEmpty());
}

TEST_F(GuardedFiles, tellByTheExitCodeWhatHappenedToTheFile) {
    const Outcome saved = shell("'" TAVREL_CLI "' import a.carnet '" TAVREL_SAMPLE_FOLDER "/sample.udcf' >/dev/full");
    EXPECT_EQ(saved.code, 0);
    EXPECT_FALSE(saved.error.isEmpty());
    EXPECT_FALSE(dives().empty());
    EXPECT_EQ(shell("'" TAVREL_CLI "' show a.carnet >/dev/full").code, 1);
    EXPECT_EQ(shell("'" TAVREL_CLI "' export a.carnet - --format udcf >/dev/full").code, 1);
}

TEST_F(GuardedFiles, sayWithoutControlCharactersWhatIsWrong) {
    const Outcome refused = run("show \x1b[31mred");
    EXPECT_EQ(refused.code, 1);
    EXPECT_TRUE(refused.error.contains(u"\u241B[31mred")) << refused.error.toStdString();
    EXPECT_FALSE(refused.error.contains(u'\x1b'));
}

}  // namespace

}  // namespace tavrel
