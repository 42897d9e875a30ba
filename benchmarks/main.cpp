#include "base/localzone.h"

#include <QApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

/// What every benchmark program starts with: no display, and settings of its own.
int main(int argc, char** argv) {
    tavrel::readLocalZoneOnce();
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_STATE_HOME", home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
