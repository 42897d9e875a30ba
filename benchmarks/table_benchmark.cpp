#include "benchmarks/ratio.h"
#include "book/booktable.h"
#include "book/ui/booktableview.h"
#include "logbook/carnet.h"
#include "support/testdesktop.h"

#include <QImage>
#include <benchmark/benchmark.h>

#include <random>

// Sorting 100,000 dives against std::sort on the keys alone, and painting the table of 100,000 dives against painting
// the table of 1,000: a paint costs what the visible rows cost.

namespace tavrel {

namespace {

constexpr int manyDives = 100'000;

std::vector<Plongee> benchmarkDives(int count) {
    std::mt19937 random(1);
    std::vector<Plongee> dives(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row) {
        Plongee& dive = dives[static_cast<std::size_t>(row)];
        dive.noPlongee = static_cast<qint32>(random() % manyDives);
        dive.date = Date(static_cast<double>(random() % 600'000'000));
        dive.heure = dive.date;
        dive.lieu = QStringLiteral("Place %1").arg(random() % 500);
        dive.site = QStringLiteral("Site number %1").arg(random() % 20'000);
        dive.countryCode = row % 3 == 0 ? QStringLiteral("EGY") : QStringLiteral("FRA");
        dive.profondeur = static_cast<float>(random() % 600) / 10.0F;
        dive.temps = static_cast<qint32>(random() % 90);
        dive.gaz = static_cast<qint32>(random() % 6);
        dive.inoubliable = static_cast<qint32>(random() % 5);
    }
    return dives;
}

template <class Key>
void sortBy(benchmark::State& state, Key Plongee::*member, const char* field) {
    RecordList dives;
    std::vector<Key> keys;
    for (const Plongee& dive : benchmarkDives(manyDives)) {
        dives.push_back(std::make_shared<const Plongee>(dive));
        keys.push_back(dive.*member);
    }
    const Field sortField = Plongee::layout().field(std::string_view(field));
    std::vector<Key> sorted;
    againstReference(
        state, [&] { benchmark::DoNotOptimize(sortedOrder(dives, sortField, false)); },
        [&] {
            sorted = keys;
            std::sort(sorted.begin(), sorted.end());
        });
}

void sortByNumber(benchmark::State& state) {
    sortBy(state, &Plongee::noPlongee, "noPlongee");
}

void sortByDepth(benchmark::State& state) {
    sortBy(state, &Plongee::profondeur, "profondeur");
}

void sortBySite(benchmark::State& state) {
    sortBy(state, &Plongee::site, "site");
}

/// The table of a logbook in the middle of its dives, with all colours on.
struct ShownTable {
    explicit ShownTable(int count) {
        for (const char* key : {"mix in color", "foreign in color", "depth time in color"}) {
            desktop.preferences.set(QString::fromUtf8(key), true);
        }
        carnet.appendDives(QStringLiteral("Add"), benchmarkDives(count));
        table.resize(1200, 700);
        table.show();
        table.reveal(count / 2);
        image = QImage(table.viewport()->size(), QImage::Format_ARGB32_Premultiplied);
    }
    void paint() { table.viewport()->render(&image); }

    TestDesktop desktop;
    Carnet carnet{desktop.desktop()};
    BookTableView table{carnet};
    QImage image;
};

void paintManyAgainstFew(benchmark::State& state) {
    ShownTable many(manyDives);
    ShownTable few(1000);
    againstReference(
        state, [&] { many.paint(); }, [&] { few.paint(); });
}

void paintManySelectedAgainstFew(benchmark::State& state) {
    ShownTable many(manyDives);
    ShownTable few(1000);
    QList<int> everyOther;
    for (int row = 0; row < manyDives; row += 2) {
        everyOther.append(row);
    }
    many.carnet.selectRows(everyOther);
    few.carnet.selectRows(everyOther);
    againstReference(
        state, [&] { many.paint(); }, [&] { few.paint(); });
}

/// A click on a header until the sorted table is painted, against the sort of the numbers alone and a paint.
void sortTheShownTable(benchmark::State& state) {
    ShownTable shown(manyDives);
    const auto unsorted = shown.carnet.records();
    std::vector<qint32> keys;
    for (const auto& dive : shown.carnet.records()) {
        keys.push_back(static_cast<const Plongee&>(*dive).noPlongee);
    }
    std::vector<qint32> sorted;
    againstReference(
        state,
        [&] {
            shown.carnet.replaceList(unsorted);
            shown.carnet.sortBy(QStringLiteral("noPlongee"));
            shown.paint();
        },
        [&] {
            shown.carnet.replaceList(unsorted);
            sorted = keys;
            std::sort(sorted.begin(), sorted.end());
            shown.paint();
        });
}

BENCHMARK(sortByNumber)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(1);
BENCHMARK(sortByDepth)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(1);
BENCHMARK(sortBySite)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(1);
BENCHMARK(paintManyAgainstFew)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(1);
BENCHMARK(paintManySelectedAgainstFew)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(1);
BENCHMARK(sortTheShownTable)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(1);

}  // namespace

}  // namespace tavrel
