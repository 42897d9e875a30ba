#include "benchmarks/ratio.h"
#include "dives/plongee.h"
#include "logbook/carnet.h"
#include "support/testdesktop.h"

#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

// From the start of the program to its first painted window, against an empty window of the same size: with nothing to
// open, and with a logbook of 100,000 dives.

namespace tavrel {

namespace {

constexpr int manyDives = 100'000;

/// Runs a program until its first window is painted; gives the size of that.
QStringList runToFirstWindow(const QTemporaryDir& home, const char* program, const QStringList& arguments) {
    // As in a session, whose runtime folder lies in memory: a lock is taken there.
    static const QTemporaryDir runtime(QStringLiteral("/dev/shm/tavrel-XXXXXX"));
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(TAVREL_FIRST_PAINT));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"}) {
        environment.insert(QString::fromLatin1(variable), home.path());
    }
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path());
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.start(QString::fromLocal8Bit(program), arguments);
    process.waitForFinished(-1);
    QStringList size = QString::fromLatin1(process.readAllStandardOutput()).simplified().split(u' ');
    if (process.exitCode() != 0 || size.size() != 2) {
        std::fprintf(stderr, "%s showed no window.\n", program);
        std::abort();
    }
    return size;
}

void startAgainstEmptyWindow(benchmark::State& state, const QStringList& arguments) {
    const QTemporaryDir home;
    const QStringList size = runToFirstWindow(home, TAVREL_PROGRAM, arguments);
    againstReference(
        state, [&] { runToFirstWindow(home, TAVREL_PROGRAM, arguments); },
        [&] { runToFirstWindow(home, TAVREL_EMPTY_WINDOW, size); });
}

void startToFirstWindow(benchmark::State& state) {
    startAgainstEmptyWindow(state, {});
}

void startWithManyDives(benchmark::State& state) {
    TestDesktop desktop;
    Carnet carnet(desktop.desktop());
    std::vector<Plongee> dives(manyDives);
    for (int row = 0; row < manyDives; ++row) {
        Plongee& dive = dives[static_cast<std::size_t>(row)];
        dive.noPlongee = row + 1;
        dive.date = Date(row * 40'000.0);
        dive.heure = dive.date;
        dive.lieu = QStringLiteral("Place %1").arg(row % 500);
        dive.site = QStringLiteral("Site number %1").arg(row % 20'000);
        dive.profondeur = static_cast<float>(row % 600) / 10.0F;
        dive.temps = row % 90;
        dive.profilArraysDefaultContent();
    }
    carnet.appendDives(QStringLiteral("Add"), std::move(dives));
    const QString file = desktop.path(QStringLiteral("many.carnet"));
    if (!carnet.saveAs(file)) {
        state.SkipWithError("The logbook could not be written");
        return;
    }
    startAgainstEmptyWindow(state, {file});
}

BENCHMARK(startToFirstWindow)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK(startWithManyDives)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace tavrel
