#include "benchmarks/ratio.h"
#include "desktop/preferences.h"
#include "dives/divecard.h"
#include "dives/divecodes.h"
#include "dives/statistics.h"
#include "support/testdesktop.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

// Statistics and cards of 100,000 dives, against bare loops over the same dives: one that reads what the statistics
// read and adds it up, and one that strings together what the card writes.

namespace tavrel {
namespace {

constexpr int diveCount = 100000;

const std::vector<DivePointer>& benchmarkDives() {
    static const std::vector<DivePointer> dives = [] {
        std::mt19937 random(1);
        const auto chance = [&random](int low, int high) {
            return std::uniform_int_distribution<int>(low, high)(random);
        };
        std::vector<DivePointer> all;
        for (int number = 1; number <= diveCount; ++number) {
            Plongee dive;
            dive.noPlongee = number;
            dive.date = dive.heure = Date(86400.0 * number);
            dive.lieu = QStringLiteral("Côte bleue %1").arg(chance(1, 40));
            dive.site = QStringLiteral("Tombant %1").arg(chance(1, 400));
            dive.partenaires = QStringLiteral("Équipe %1").arg(chance(1, 200));
            dive.notes = QStringLiteral("Plongée %1: belle visibilité, deux mérous sous le surplomb.").arg(number);
            dive.profondeur = static_cast<float>(chance(30, 700)) / 10.0F;
            dive.temps = chance(20, 90);
            dive.typePlongee = chance(0, 14);
            dive.rebreather = chance(0, 4);
            dive.gaz = chance(0, 5);
            dive.tempEau = chance(0, 9) == 0 ? temperatureNotGiven : chance(4, 29);
            dive.pressionDepart = 200;
            dive.volumeBloc = 12;
            all.push_back(std::make_shared<const Plongee>(std::move(dive)));
        }
        return all;
    }();
    return dives;
}

void statistics(benchmark::State& state) {
    const auto& dives = benchmarkDives();
    const PreviousTotals previous;
    againstReference(
        state, [&] { benchmark::DoNotOptimize(Statistics(divesIn(dives), &previous).total()); },
        [&] {
            qint64 sum = 0;
            float deepest = 0;
            for (const auto& dive : dives) {
                sum += dive->typePlongee + dive->nocturne + dive->configuration + dive->rebreather + dive->gaz +
                       dive->temps + dive->tempEau;
                deepest = std::max(deepest, dive->profondeur);
            }
            benchmark::DoNotOptimize(sum);
            benchmark::DoNotOptimize(deepest);
        });
}
BENCHMARK(statistics)->UseManualTime()->Unit(benchmark::kMillisecond);

void card(benchmark::State& state) {
    const auto& dives = benchmarkDives();
    TestDesktop desktop;
    const DiveCard card(desktop.desktop().preferences);
    const QString label = QStringLiteral("\rA label of the card: ");
    constexpr int lines = 55;
    againstReference(
        state,
        [&] {
            for (const auto& dive : dives) {
                StyledText text;
                card.append(text, *dive);
                benchmark::DoNotOptimize(text.runs().data());
            }
        },
        [&] {
            // As many labels, numbers and texts as a card has, in one text.
            for (const auto& dive : dives) {
                QString text;
                for (int line = 0; line < lines; ++line) {
                    text += label;
                    text += line % 2 == 0 ? QString::number(dive->temps + line) : dive->lieu;
                }
                text += dive->notes;
                benchmark::DoNotOptimize(text.data());
            }
        });
}
BENCHMARK(card)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrel
