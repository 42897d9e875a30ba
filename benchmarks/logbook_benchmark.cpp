#include "archive/recordarchive.h"
#include "benchmarks/ratio.h"
#include "dives/plongee.h"

#include <benchmark/benchmark.h>
#include <zlib.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

// Opening and saving a logbook of 10,000 dives with 600 samples in each of the seven series, with equal numbers shared
// and with every number written out, against zlib's crc32 over the same bytes. Opening starts from the bytes in memory.

namespace tavrel {
namespace {

constexpr int diveCount = 10000;
constexpr int sampleCount = 600;

using Numbers = SeriesNumbers;
using Dives = RecordList;

// A computer that notes metres and bar in tenths. The diver goes down in a tenth of the dive, wanders about the bottom
// and comes up slowly; a flag is set at one sample in fifty or so.
Plongee benchmarkDive(int number, std::mt19937& random) {
    const auto chance = [&random](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
    Plongee dive;
    dive.noPlongee = number;
    dive.date = Date(86400.0 * number);
    dive.heure = Date(86400.0 * number + 60.0 * chance(480, 1080));
    dive.lieu = QStringLiteral("Côte bleue %1").arg(chance(1, 40));
    dive.site = QStringLiteral("Tombant %1").arg(chance(1, 400));
    dive.pays = QStringLiteral("France");
    dive.partenaires = QStringLiteral("Équipe %1").arg(chance(1, 200));
    dive.notes = QStringLiteral("Plongée %1: belle visibilité, deux mérous sous le surplomb.").arg(number);
    dive.temps = chance(20, 70);
    dive.pressionDepart = 200;
    dive.o2Mix = 21;
    const int bottom = chance(80, 600);
    int depth = 0;
    int pressure = chance(1950, 2300);
    std::vector<double> depths;
    std::vector<double> pressures;
    std::vector<std::int8_t> flags(sampleCount);
    for (int sample = 0; sample < sampleCount; ++sample) {
        const int target = sample < sampleCount / 10       ? bottom * sample * 10 / sampleCount
                           : sample < sampleCount * 7 / 10 ? bottom
                                                           : bottom * (sampleCount - sample) * 10 / (sampleCount * 3);
        depth = std::max(0, target + chance(-9, 9));
        pressure -= chance(0, 6);
        depths.push_back(depth / 10.0);
        pressures.push_back(std::max(0, pressure) / 10.0);
    }
    dive.profilProfondeur = Series::ofReals(depths);
    dive.PRESS_Data = Series::ofReals(pressures);
    dive.profondeur = static_cast<float>(bottom) / 10.0F;
    for (const auto series :
         {&Plongee::ASC_Flag, &Plongee::SLOW_Flag, &Plongee::SURF_Flag, &Plongee::CEIL_Flag, &Plongee::GAZ_Flag}) {
        for (std::int8_t& flag : flags) {
            flag = chance(0, 49) == 0 ? 1 : 0;
        }
        (dive.*series) = Series::empty();
        (dive.*series).append(flags);
    }
    return dive;
}

const Dives& benchmarkDives() {
    static const Dives dives = [] {
        std::mt19937 random(1);
        Dives all;
        for (int number = 1; number <= diveCount; ++number) {
            all.push_back(std::make_shared<Plongee>(benchmarkDive(number, random)));
        }
        return all;
    }();
    return dives;
}

void checksum(const QByteArray& bytes) {
    benchmark::DoNotOptimize(
        crc32_z(0, reinterpret_cast<const Bytef*>(bytes.constData()), static_cast<z_size_t>(bytes.size())));
}

// A figure of /proc/self/status in bytes: the memory in use, or the most that was in use since forgetPeak().
double memory(const std::string& figure) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(figure)) {
            return 1024.0 * std::stod(line.substr(figure.size()));
        }
    }
    return 0;
}

void forgetPeak() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

void open(benchmark::State& state, Numbers numbers) {
    const QByteArray bytes = writeRecords(benchmarkDives(), Plongee::layout(), numbers);
    std::optional<Expected<RecordFile>> file;
    const double before = memory("VmRSS:");
    forgetPeak();
    file = readRecords(bytes, Plongee::layout());
    const double peak = memory("VmHWM:");
    const double after = memory("VmRSS:");
    file.reset();
    againstReference(
        state, [&] { file = readRecords(bytes, Plongee::layout()); }, [&] { checksum(bytes); }, [&] { file.reset(); });
    const auto size = static_cast<double>(bytes.size());
    state.counters["file_MB"] = size / 1e6;
    state.counters["records_MB"] = (after - before) / 1e6;
    // What opening needs beside the records, the file's bytes included, by the file's size.
    state.counters["memory_by_file"] = (peak - after + size) / size;
}

void save(benchmark::State& state, Numbers numbers) {
    std::optional<Expected<RecordFile>> file;
    const QByteArray bytes = writeRecords(benchmarkDives(), Plongee::layout(), numbers);
    QByteArray written;
    againstReference(
        state, [&] { written = writeRecords(benchmarkDives(), Plongee::layout(), numbers); },
        [&] { file = readRecords(bytes, Plongee::layout()); },
        [&] {
            file.reset();
            written = QByteArray();
        });
}

BENCHMARK_CAPTURE(open, numbers_shared, Numbers::shared)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(3);
BENCHMARK_CAPTURE(open, numbers_literal, Numbers::literal)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(3);
BENCHMARK_CAPTURE(save, numbers_shared, Numbers::shared)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK_CAPTURE(save, numbers_literal, Numbers::literal)->Unit(benchmark::kMillisecond)->UseManualTime();

}  // namespace
}  // namespace tavrel
