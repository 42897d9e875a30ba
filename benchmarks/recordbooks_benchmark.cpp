#include "archive/recordarchive.h"
#include "benchmarks/ratio.h"
#include "book/book.h"
#include "book/filterindex.h"
#include "recordbooks/materiel.h"
#include "recordbooks/recordbooks.h"
#include "support/testdesktop.h"

#include <benchmark/benchmark.h>
#include <zlib.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <random>
#include <vector>

// A record book of 100,000 items. Opening it from its bytes is held against zlib's crc32 over them, sorting it through
// the document against std::stable_sort of pointers to the same records by the same key, finding against a plain loop
// over the same texts, filtering against zlib's crc32 over as many bytes as it looks through.

namespace tavrel {
namespace {

constexpr int itemCount = 100000;

using Items = std::vector<std::shared_ptr<const Materiel>>;

const Items& benchmarkItems() {
    static const Items items = [] {
        std::mt19937 random(1);
        const auto chance = [&random](int low, int high) {
            return std::uniform_int_distribution<int>(low, high)(random);
        };
        Items all;
        for (int number = 1; number <= itemCount; ++number) {
            auto item = std::make_shared<Materiel>();
            item->matosNo = QString::number(number);
            item->typeMatos = QStringLiteral("Regulator %1").arg(chance(1, 40));
            item->marqueMatos = QStringLiteral("Maker %1").arg(chance(1, 25));
            item->serieMatos = QStringLiteral("S-%1").arg(chance(1, 10000000));
            item->dateAchat = Date(86400.0 * chance(0, 9000));
            item->quantiteMatos = chance(1, 9);
            item->prixMatos = QStringLiteral("%1.90").arg(chance(5, 900));
            item->lastRevision = Date(86400.0 * chance(0, 9000));
            item->nextRevision = Date(86400.0 * chance(0, 9000));
            item->equipState = chance(0, 6);
            item->notesMatos = QStringLiteral("Item %1 of the club, kept on shelf %2.").arg(number).arg(chance(1, 60));
            all.push_back(std::move(item));
        }
        return all;
    }();
    return items;
}

RecordList asRecords(const Items& items) {
    return {items.begin(), items.end()};
}

void open(benchmark::State& state) {
    const QByteArray bytes = writeRecords(asRecords(benchmarkItems()), Materiel::layout());
    std::optional<Expected<RecordFile>> file;
    againstReference(
        state, [&] { file = readRecords(bytes, Materiel::layout()); },
        [&] {
            benchmark::DoNotOptimize(
                crc32_z(0, reinterpret_cast<const Bytef*>(bytes.constData()), static_cast<z_size_t>(bytes.size())));
        },
        [&] { file.reset(); });
    state.counters["file_MB"] = static_cast<double>(bytes.size()) / 1e6;
}

template <class Less>
void sort(benchmark::State& state, const char* field, Less less) {
    TestDesktop desktop;
    const auto book = invMateriel().make(desktop.desktop());
    Items reference;
    const QString name = QString::fromLatin1(field);
    const auto reset = [&] {
        book->replaceList(asRecords(benchmarkItems()));
        reference = benchmarkItems();
    };
    reset();
    againstReference(
        state, [&] { book->sortBy(name); },
        [&] {
            std::stable_sort(reference.begin(), reference.end(),
                             [&less](const auto& left, const auto& right) { return less(*left, *right); });
        },
        reset);
}

void sortByText(benchmark::State& state) {
    sort(state, "serieMatos",
         [](const Materiel& left, const Materiel& right) { return left.serieMatos < right.serieMatos; });
}

void sortByDay(benchmark::State& state) {
    sort(state, "dateAchat", [](const Materiel& left, const Materiel& right) {
        return left.dateAchat.secondsSince2001() < right.dateAchat.secondsSince2001();
    });
}

void find(benchmark::State& state) {
    TestDesktop desktop;
    const auto book = invMateriel().make(desktop.desktop());
    book->replaceList(asRecords(benchmarkItems()));
    const QString searched = QStringLiteral("shelf 17.");
    againstReference(
        state, [&] { benchmark::DoNotOptimize(book->findTextWithField(QStringLiteral("notesMatos"), searched)); },
        [&] {
            int matches = 0;
            for (const auto& item : benchmarkItems()) {
                matches += item->notesMatos.contains(searched, Qt::CaseInsensitive) ? 1 : 0;
            }
            benchmark::DoNotOptimize(matches);
        });
}

/// What a key typed into the filter costs: two words, of which one is in a field of its own.
void filterByWords(benchmark::State& state) {
    TestDesktop desktop;
    const auto book = invMateriel().make(desktop.desktop());
    const auto fields = std::make_shared<const std::vector<FilterField>>(filterFieldsOf(*book));
    const FilterIndex index(asRecords(benchmarkItems()), fields, *invMateriel().tableStyle(desktop.desktop()));
    const RecordFilter filter(QStringLiteral("\"shelf 17\" type:regulator"), *fields);
    const QByteArray bytes(static_cast<qsizetype>(index.size()), 'x');
    againstReference(
        state, [&] { benchmark::DoNotOptimize(index.matches(filter)); },
        [&] {
            benchmark::DoNotOptimize(
                crc32_z(0, reinterpret_cast<const Bytef*>(bytes.constData()), static_cast<z_size_t>(bytes.size())));
        });
    state.counters["index_MB"] = static_cast<double>(index.size()) / 1e6;
}

/// What makes the keys cheap: every word of every record folded once, against folding a text of each by the toolkit.
void makeFilterIndex(benchmark::State& state) {
    TestDesktop desktop;
    const auto book = invMateriel().make(desktop.desktop());
    const auto fields = std::make_shared<const std::vector<FilterField>>(filterFieldsOf(*book));
    const auto style = invMateriel().tableStyle(desktop.desktop());
    const RecordList records = asRecords(benchmarkItems());
    againstReference(
        state, [&] { benchmark::DoNotOptimize(FilterIndex(records, fields, *style).size()); },
        [&] {
            qsizetype size = 0;
            for (const auto& each : benchmarkItems()) {
                size += each->notesMatos.normalized(QString::NormalizationForm_KD).toCaseFolded().size();
            }
            benchmark::DoNotOptimize(size);
        });
}

BENCHMARK(open)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(sortByText)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(sortByDay)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(find)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(filterByWords)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(makeFilterIndex)->Unit(benchmark::kMillisecond)->UseManualTime();

}  // namespace
}  // namespace tavrel
