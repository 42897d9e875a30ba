#include "app/endsignals.h"
#include "app/testapplication.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace tavrel {

namespace {

constexpr char folderVariable[] = "TAVREL_TYPIST_FOLDER";
constexpr char roundsVariable[] = "TAVREL_KILLS";

QString inFolder(const QString& folder, const char* name) {
    return folder + u'/' + QLatin1StringView(name);
}

/// Of the program that is killed: a controller whose journals lie in the folder, quick to keep what is typed.
struct KilledRun {
    explicit KilledRun(const QString& folder)
        : documents(app.desktop(), app.fileDialogs, testDocumentTypes(), inFolder(folder, "journal"), {5, 20}) {}

    Carnet& carnet() { return static_cast<Carnet&>(documents.windows().back()->document()); }
    FormState<DiveControls>& form() { return carnet().form().state(); }
    DiveControls::Id field() { return carnet().form().controls().lieuField; }

    /// The highest number that a record holds, and that a record or the form does.
    int stored() {
        int number = 0;
        for (int row = 0; row < carnet().count(); ++row) {
            number = std::max(number, carnet().record(row).lieu.toInt());
        }
        return number;
    }
    int highest() { return std::max(stored(), form().text(field()).toInt()); }

    TestApplication app;
    MyDocumentController documents;
};

void say(const char* what, int number) {
    std::printf("%s %d\n", what, number);
    std::fflush(stdout);
}

/// Run by the test below as a program of its own, until it is killed: types rising numbers, saves, says what is safe.
TEST(Typist, DISABLED_types) {
    const QString folder = qEnvironmentVariable(folderVariable);
    KilledRun run(folder);
    ASSERT_TRUE(run.documents.openFile(inFolder(folder, "dives.carnet")));
    int number = run.highest();
    run.carnet().newRecord();
    EndSignals endSignals;
    QObject::connect(&endSignals, &EndSignals::received, &run.documents, [&](int signal) {
        run.documents.keepUnsaved();
        say("kept", number);
        ::_exit(signal);
    });
    QRandomGenerator random = QRandomGenerator::securelySeeded();
    for (;;) {
        ++number;
        run.form().type(run.field().index, QString::number(number));
        say("typed", number);
        if (random.bounded(7) == 0) {
            run.carnet().addRecord();
        }
        if (random.bounded(11) == 0) {
            ASSERT_TRUE(run.carnet().save());
            say("saved", run.stored());
        }
        if (random.bounded(5) == 0) {
            run.documents.keepUnsaved();
            say("kept", number);
        }
        QTest::qWait(static_cast<int>(random.bounded(8)));
    }
}

TEST(KilledAtAnyMoment, theProgramLosesNothingThatWasKeptOrSaved) {
    QTemporaryDir temporary;
    const QString folder = temporary.path();
    const QString file = inFolder(folder, "dives.carnet");
    {
        KilledRun run(folder);
        run.documents.newDocument();
        ASSERT_TRUE(run.carnet().saveAs(file));
    }
    const int rounds = std::max(3, qEnvironmentVariableIntValue(roundsVariable));
    for (int round = 0; round < rounds; ++round) {
        // By a signal that tells it to end, nothing at all is lost.
        const bool isTold = round % 3 == 1;
        QProcess typist;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QLatin1StringView(folderVariable), folder);
        typist.setProcessEnvironment(environment);
        typist.start(QStringLiteral("/proc/self/exe"),
                     {QStringLiteral("--gtest_also_run_disabled_tests"), QStringLiteral("--gtest_filter=Typist.*")});
        int kept = 0;
        int saved = 0;
        int typed = 0;
        int told = 0;
        const int wanted = static_cast<int>(QRandomGenerator::global()->bounded(40)) + 1;
        const auto listen = [&] {
            while (typist.canReadLine()) {
                const QList<QByteArray> words = typist.readLine().trimmed().split(' ');
                if (words.size() == 2 && words[0] == "typed") {
                    typed = words[1].toInt();
                } else if (words.size() == 2 && (words[0] == "kept" || words[0] == "saved")) {
                    (words[0] == "kept" ? kept : saved) = words[1].toInt();
                    ++told;
                }
            }
        };
        while (told < wanted && typist.waitForReadyRead(60'000)) {
            listen();
        }
        ASSERT_EQ(typist.state(), QProcess::Running) << typist.readAllStandardError().toStdString();
        QTest::qSleep(static_cast<int>(QRandomGenerator::global()->bounded(20)));
        isTold ? typist.terminate() : typist.kill();
        ASSERT_TRUE(typist.waitForFinished(60'000));
        listen();
        ASSERT_GE(told, wanted);
        if (isTold) {
            ASSERT_EQ(typist.exitCode(), SIGTERM);
            EXPECT_GE(kept, typed) << "round " << round;
        }

        {
            KilledRun run(folder);
            ASSERT_TRUE(run.documents.openFile(file)) << "round " << round;
            EXPECT_TRUE(run.app.alerts.questions.empty()) << "the lock of a program that died counts for nothing";
            EXPECT_GE(run.highest(), saved) << "round " << round;
            run.app.alerts.answerNext(0);
            run.documents.offerUnsaved();
            EXPECT_TRUE(run.app.alerts.failures.empty());
            ASSERT_EQ(run.documents.windows().size(), 1);
            EXPECT_GE(run.highest(), std::max(kept, saved)) << "round " << round;
            // The next round goes on from here.
            if (run.carnet().hasEntries()) {
                run.carnet().addRecord();
            }
            // It may have been killed when its file was written and its journal not yet gone.
            ASSERT_TRUE(run.carnet().save(Document::Overwriting::yes));
            run.documents.closeAllDocuments();
        }
        EXPECT_TRUE(QDir(inFolder(folder, "journal")).isEmpty()) << "round " << round;
    }
    const QStringList left = QDir(folder).entryList(QDir::Files | QDir::Hidden);
    EXPECT_EQ(left, (QStringList{QStringLiteral("dives.carnet"), QStringLiteral("dives.carnet~")}));
}

}  // namespace

}  // namespace tavrel
