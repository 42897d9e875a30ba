#pragma once

#include "calculators/gps.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace tavrel {

/// What a piece of the report is; it decides the colour: labels black, values blue, titles red.
enum class ReportRole { Label, Value, Title };

struct ReportRun {
    QString text;
    ReportRole role;
};

/// The sexagesimal conversion step by step. Every line starts with a carriage return, two leave a blank line.
std::vector<ReportRun> gpsReport(const SexagesimalConversion& conversion);

/// The report's lines, blank ones included.
QStringList reportLines(const std::vector<ReportRun>& report);

}  // namespace tavrel
