#include "base/safefile.h"
#include "benchmarks/ratio.h"
#include "interchange/exports.h"
#include "interchange/imports.h"
#include "interchange/standardimport.h"
#include "support/testdesktop.h"

#include <benchmark/benchmark.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <cmath>

// 1,000 dives of 600 samples through every format, against what libxml2 alone takes to parse or serialise the same
// tree, and against writing the bytes of a text export to a file.

namespace tavrel {

namespace {

constexpr int diveCount = 1000;
constexpr int sampleCount = 600;

Plongee benchmarkDive(int number) {
    Plongee dive;
    dive.noPlongee = number;
    dive.lieu = QStringLiteral("Saint-Raphaël");
    dive.site = QStringLiteral("Lion de mer, tombant sud");
    dive.partenaires = QStringLiteral("Zoé, Max");
    dive.date = Date::fromDateTime(QDateTime(QDate(2000, 1, 1).addDays(number), QTime(10, 15)));
    dive.heure = dive.date;
    dive.o2Mix = 32;
    dive.gaz = 1;
    for (int sample = 0; sample < sampleCount; ++sample) {
        dive.profilProfondeur.appendReal(20.0 * std::sin(3.1416 * sample / sampleCount) + number % 17);
        dive.PRESS_Data.appendReal(200.0 - 0.25 * sample);
        for (const auto flags :
             {&Plongee::ASC_Flag, &Plongee::SLOW_Flag, &Plongee::SURF_Flag, &Plongee::CEIL_Flag, &Plongee::GAZ_Flag}) {
            (dive.*flags).appendInteger(sample % 97 == 0 ? 1 : 0);
        }
    }
    return dive;
}

struct Logbook {
    Logbook() {
        std::vector<Plongee> dives;
        for (int number = 1; number <= diveCount; ++number) {
            dives.push_back(benchmarkDive(number));
        }
        carnet.appendDives(QStringLiteral("add"), std::move(dives));
    }

    TestDesktop desktop;
    Carnet carnet{desktop.desktop(), logbookExports()};
};

Logbook& logbook() {
    static Logbook book;
    return book;
}

QByteArray standardUddf() {
    QByteArray file =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<uddf version=\"3.2.0\">\n  <profiledata>\n"
        "    <repetitiongroup>\n";
    for (int dive = 0; dive < diveCount; ++dive) {
        file += "      <dive>\n        <greatestdepth>31.4</greatestdepth>\n        <samples>\n";
        for (int sample = 0; sample < sampleCount; ++sample) {
            file += "          <waypoint>\n            <depth>" + QByteArray::number(sample * 0.05, 'f', 1) +
                    "</depth>\n            <divetime>" + QByteArray::number(sample * 10) +
                    "</divetime>\n          </waypoint>\n";
        }
        file += "        </samples>\n      </dive>\n";
    }
    return file + "    </repetitiongroup>\n  </profiledata>\n</uddf>\n";
}

void parseAlone(const QByteArray& file) {
    xmlDocPtr tree = xmlReadMemory(file.constData(), static_cast<int>(file.size()), nullptr, nullptr,
                                   XML_PARSE_RECOVER | XML_PARSE_NONET | XML_PARSE_COMPACT);
    benchmark::DoNotOptimize(tree);
    xmlFreeDoc(tree);
}

void importAgainstParsing(benchmark::State& state, const QByteArray& file, ImportFormat format) {
    againstReference(
        state,
        [&] {
            TestDesktop desktop;
            Carnet carnet(desktop.desktop());
            const auto result = importDives(carnet, file, format);
            if (!result || result->taken != diveCount) {
                state.SkipWithError("not all dives came in");
            }
        },
        [&] { parseAlone(file); });
}

void importUdcf(benchmark::State& state) {
    importAgainstParsing(state, *exportUDCFFormat(logbook().carnet), ImportFormat::udcf);
}
void importUddf(benchmark::State& state) {
    importAgainstParsing(state, standardUddf(), ImportFormat::uddf);
}

/// The road that reads a file by its meaning, up to the dives that a logbook takes.
void importStandard(benchmark::State& state) {
    const QByteArray file = *exportStandardUddf(logbook().carnet);
    againstReference(
        state,
        [&] {
            TestDesktop desktop;
            Carnet carnet(desktop.desktop());
            auto source = findDives(carnet, file);
            if (!source || takeDives(carnet, std::move(source->found), {}).taken != diveCount) {
                state.SkipWithError("not all dives came in");
            }
        },
        [&] { parseAlone(file); });
}

/// One dive of a million waypoints, which takes no more than many short ones.
void importMillionWaypoints(benchmark::State& state) {
    QByteArray file = "<uddf version='3.2.0'><profiledata><repetitiongroup><dive><samples>";
    for (int second = 0; second < 1'000'000; ++second) {
        file += "<waypoint><depth>" + QByteArray::number(second % 300 * 0.1, 'f', 1) + "</depth><divetime>" +
                QByteArray::number(second) + "</divetime></waypoint>";
    }
    file += "</samples></dive></repetitiongroup></profiledata></uddf>";
    againstReference(
        state,
        [&] {
            const auto source = readSource(file);
            if (!source || source->found.dives.size() != 1) {
                state.SkipWithError("the dive did not come in");
            }
        },
        [&] { parseAlone(file); });
}

void exportAgainstSerialising(benchmark::State& state, Expected<QByteArray> (*produce)(Carnet&)) {
    const QByteArray file = *produce(logbook().carnet);
    xmlDocPtr tree =
        xmlReadMemory(file.constData(), static_cast<int>(file.size()), nullptr, nullptr, XML_PARSE_NOBLANKS);
    againstReference(
        state, [&] { benchmark::DoNotOptimize(produce(logbook().carnet)); },
        [&] {
            xmlChar* bytes = nullptr;
            int size = 0;
            xmlDocDumpFormatMemoryEnc(tree, &bytes, &size, "UTF-8", 1);
            if (size != file.size()) {
                state.SkipWithError("the export is not what libxml2 writes");
            }
            xmlFree(bytes);
        });
    xmlFreeDoc(tree);
}

void exportText(benchmark::State& state, const char* type) {
    const QString target = logbook().desktop.path(QStringLiteral("export"));
    const QByteArray file = *logbook().carnet.dataRepresentationOfType(QString::fromLatin1(type));
    againstReference(
        state,
        [&] {
            Carnet& carnet = logbook().carnet;
            benchmark::DoNotOptimize(
                carnet.writeExport(target, carnet.dataRepresentationOfType(QString::fromLatin1(type))));
        },
        [&] { benchmark::DoNotOptimize(writeFile(target, file)); });
}

BENCHMARK(importUdcf)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(3);
BENCHMARK(importUddf)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(3);
BENCHMARK_CAPTURE(exportAgainstSerialising, udcf, exportUDCFFormat)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->MinTime(3);
BENCHMARK_CAPTURE(exportAgainstSerialising, uddf, exportUDDFFormat)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->MinTime(3);
BENCHMARK(importStandard)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(3);
BENCHMARK(importMillionWaypoints)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(3);
BENCHMARK_CAPTURE(exportAgainstSerialising, uddf3, exportStandardUddf)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->MinTime(3);
BENCHMARK_CAPTURE(exportText, diveList, "Export Carnet CSV (Virgule)")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->MinTime(3);
BENCHMARK_CAPTURE(exportText, profiles, "Export Profils CSV (Virgule)")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->MinTime(3);

}  // namespace

}  // namespace tavrel
