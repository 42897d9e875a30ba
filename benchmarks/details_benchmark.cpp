#include "book/ui/booktableview.h"
#include "logbook/ui/divedetails.h"
#include "logbook/ui/logbookwindow.h"
#include "support/testdesktop.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>

// A step of the arrow key through the table of a logbook whose dives have 600 samples, until the details of the next
// dive are painted, against one frame of a display that shows 60 of them a second. The counter "ratio" takes the mean
// of all steps, so that slow ones count.

namespace tavrel {

namespace {

constexpr int diveCount = 200;
constexpr std::size_t sampleCount = 600;
constexpr double frame = 0.016;

std::vector<Plongee> benchmarkDives() {
    std::vector<Plongee> dives(diveCount);
    for (int number = 0; number < diveCount; ++number) {
        Plongee& dive = dives[static_cast<std::size_t>(number)];
        std::vector<double> depths(sampleCount);
        std::vector<double> pressures(sampleCount);
        std::vector<qint32> slow(sampleCount);
        for (std::size_t sample = 0; sample < sampleCount; ++sample) {
            const double part = static_cast<double>(sample) / sampleCount;
            depths[sample] = (20 + number % 30) * std::sin(3.1 * part) + std::sin(static_cast<double>(sample) * 0.3);
            pressures[sample] = 200 - 150 * part;
            slow[sample] = sample % 50 == 7 ? 1 : 0;
        }
        dive.profilProfondeur = Series::ofReals(depths);
        dive.PRESS_Data = Series::ofReals(pressures);
        dive.SLOW_Flag = Series::ofIntegers(slow);
        dive.noPlongee = number;
        dive.profondeur = 50;
        dive.temps = 45;
        dive.volumeBloc = 15;
        dive.pressionDepart = 200;
        dive.pressionFin = 50;
        dive.o2Mix = 21;
        dive.notes = QStringLiteral("Dive %1: good visibility, two groupers below the overhang.").arg(number);
    }
    return dives;
}

void stepThroughDetails(benchmark::State& state) {
    using Clock = std::chrono::steady_clock;
    using Seconds = std::chrono::duration<double>;
    TestDesktop desktop;
    Carnet carnet(desktop.desktop());
    LogbookWindow window(carnet, desktop.desktop());
    carnet.appendDives(QStringLiteral("Add"), benchmarkDives());
    window.resize(1200, 900);
    window.show();
    carnet.selectRows({0});
    QApplication::processEvents();
    const auto* notes = window.details().findChild<QPlainTextEdit*>(QStringLiteral("notes"));
    int row = 0;
    Seconds sum{};
    Seconds slowest{};
    while (state.KeepRunning()) {
        const int key = row + 1 < diveCount ? Qt::Key_Down : Qt::Key_Home;
        row = row + 1 < diveCount ? row + 1 : 0;
        const auto start = Clock::now();
        QKeyEvent pressed(QEvent::KeyPress, key, key == Qt::Key_Home ? Qt::ControlModifier : Qt::NoModifier);
        QApplication::sendEvent(&window.table(), &pressed);
        QApplication::processEvents();
        window.details().repaint();
        const Seconds taken = Clock::now() - start;
        sum += taken;
        slowest = std::max(slowest, taken);
        state.SetIterationTime(taken.count());
        if (notes->toPlainText() != carnet.record(row).notes) {
            state.SkipWithError("the details do not show the next dive");
            break;
        }
    }
    const double mean = sum.count() / static_cast<double>(state.iterations());
    state.counters["ratio"] = mean / frame;
    state.counters["step_ms"] = 1000 * mean;
    state.counters["slowest_ms"] = 1000 * slowest.count();
}
BENCHMARK(stepThroughDetails)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(1);

}  // namespace

}  // namespace tavrel
