#include "benchmarks/ratio.h"
#include "documents/journal.h"
#include "logbook/carnet.h"
#include "support/testdesktop.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

// What keeping unsaved work costs the window's thread in a logbook of 100,000 dives: the longest that a key takes,
// while the journal is written at each of them, against one frame.

namespace tavrel {

namespace {

constexpr int manyDives = 100'000;
constexpr std::chrono::milliseconds frame(16);

/// A logbook into whose form a new dive is typed; whatever waits is kept at once.
struct TypedLogbook {
    TypedLogbook() {
        std::vector<Plongee> dives(manyDives);
        for (int row = 0; row < manyDives; ++row) {
            Plongee& dive = dives[static_cast<std::size_t>(row)];
            dive.noPlongee = row;
            dive.lieu = QStringLiteral("Place %1").arg(row % 500);
            dive.notes =
                QStringLiteral("Dive %1: the wreck lies deep and dark, with a large grouper on deck.").arg(row);
        }
        carnet.appendDives(QStringLiteral("Add"), std::move(dives));
        carnet.newDive();
    }

    /// Types a letter; returns when the window is ready for the next.
    void type() {
        DiveForm& form = carnet.form();
        text.append(u'x');
        form.state().type(form.controls().lieuField.index, text);
        QCoreApplication::processEvents();
    }

    TestDesktop desktop;
    JournalFolder folder{desktop.path(QStringLiteral("journal")), {0, 0}};
    Carnet carnet{desktop.desktop()};
    Journal journal{folder, carnet, QStringLiteral("Plongee")};
    QString text;
};

/// The longest key of many, typed while the contents, which a new dive has changed, are being written.
void longestKeyAgainstFrame(benchmark::State& state) {
    TypedLogbook logbook;
    using Clock = std::chrono::steady_clock;
    constexpr int keys = 200;
    Clock::duration least = Clock::duration::max();
    while (state.KeepRunning()) {
        logbook.carnet.addDive();
        logbook.text.clear();
        Clock::duration longest{};
        for (int key = 0; key < keys; ++key) {
            const auto start = Clock::now();
            logbook.type();
            longest = std::max(longest, Clock::now() - start);
        }
        const auto writing = Clock::now();
        logbook.folder.work().waitForDone();
        state.counters["still_writing_ms"] = std::chrono::duration<double, std::milli>(Clock::now() - writing).count();
        state.SetIterationTime(std::chrono::duration<double>(longest).count());
        least = std::min(least, longest);
    }
    state.counters["ratio"] = std::chrono::duration<double>(least) / frame;
}

BENCHMARK(longestKeyAgainstFrame)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(0.02);

}  // namespace

}  // namespace tavrel
