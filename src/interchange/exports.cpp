#include "interchange/exports.h"

#include <algorithm>

namespace tavrel {

const std::vector<LogbookExport>& logbookExports() {
    static const std::vector<LogbookExport> exports{
        {"csv-semicolon", "Export Carnet CSV (Point-virgule)", "csv",
         [](Carnet& carnet) { return exportTextCSVFormat(carnet, "\";\"", "\""); }},
        {"csv-comma", "Export Carnet CSV (Virgule)", "csv",
         [](Carnet& carnet) { return exportTextCSVFormat(carnet, ",", ""); }},
        {"tsv", "Export Carnet TXT (Tabulation)", "txt",
         [](Carnet& carnet) { return exportTextCSVFormat(carnet, "\t", ""); }},
        {"profiles-csv", "Export Profils CSV (Virgule)", "csv",
         [](Carnet& carnet) { return exportProfileCSVFormat(carnet, ","); }},
        {"udcf", "Export UDCF (Universal Dive Computer Format)", "udcf", exportUDCFFormat},
        {"uddf", "Export UDDF (Universal Dive Data Format)", "uddf", exportUDDFFormat},
    };
    return exports;
}

const std::vector<ExportType>& logbookExportTypes() {
    static const std::vector<ExportType> types = [] {
        std::vector<ExportType> list;
        for (const LogbookExport& it : logbookExports()) {
            list.push_back({QString::fromLatin1(it.typeName), it.produce});
        }
        return list;
    }();
    return types;
}

}  // namespace tavrel
