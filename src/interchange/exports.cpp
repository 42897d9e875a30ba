#include "interchange/exports.h"

#include "desktop/clock.h"
#include "interchange/logbookunits.h"
#include "interchange/standard/csvtext.h"
#include "interchange/standard/uddfwriting.h"

#include <algorithm>
#include <array>

namespace tavrel {

namespace {

/// What the lines of the text exports have cells for.
constexpr auto listedFields = [] {
    std::array<std::string_view, listColumns.size()> fields;
    for (std::size_t column = 0; column < fields.size(); ++column) {
        fields[column] = listColumns[column].field;
    }
    return fields;
}();
constexpr std::array<std::string_view, 8> profileFields{"noPlongee", "profilProfondeur", "ASC_Flag", "SLOW_Flag",
                                                        "CEIL_Flag", "SURF_Flag",        "GAZ_Flag", "PRESS_Data"};

}  // namespace

Expected<QByteArray> exportStandardUddf(Carnet& carnet) {
    const Desktop& desktop = carnet.desktop();
    return writeUddf(inFileUnits(desktop.preferences, carnet.records()), {desktop.clock.now(), {}}, carnet.progress());
}

std::span<const LogbookExport> logbookExports() {
    static constexpr LogbookExport exports[]{
        {"csv-semicolon",
         "Export Carnet CSV (Point-virgule)",
         {"Interchange", "Format semicolons"},
         "csv",
         [](Carnet& carnet) { return exportTextCSVFormat(carnet, "\";\"", "\""); },
         listedFields},
        {"csv-comma",
         "Export Carnet CSV (Virgule)",
         {"Interchange", "Format commas"},
         "csv",
         [](Carnet& carnet) { return exportTextCSVFormat(carnet, ",", ""); },
         listedFields},
        {"tsv",
         "Export Carnet TXT (Tabulation)",
         {"Interchange", "Format tabs"},
         "txt",
         [](Carnet& carnet) { return exportTextCSVFormat(carnet, "\t", ""); },
         listedFields},
        {"profiles-csv",
         "Export Profils CSV (Virgule)",
         {"Interchange", "Format profiles"},
         "csv",
         [](Carnet& carnet) { return exportProfileCSVFormat(carnet, ","); },
         profileFields},
        {"udcf",
         "Export UDCF (Universal Dive Computer Format)",
         {"Interchange", "Format UDCF"},
         "udcf",
         exportUDCFFormat},
        {"uddf", "Export UDDF (Universal Dive Data Format)", {"Interchange", "Format UDDF"}, "uddf", exportUDDFFormat},
        {"csv",
         "Export CSV (UTF-8)",
         {"Interchange", "Format table"},
         "csv",
         [](Carnet& carnet) { return writeCsv(carnet.records(), {}, carnet.progress()); },
         {},
         writeCsv},
        {"uddf-3.2", "Export UDDF 3.2", {"Interchange", "Format UDDF 3"}, "uddf", exportStandardUddf},
    };
    return exports;
}

}  // namespace tavrel
