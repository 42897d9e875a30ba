#include "dives/statisticsreport.h"

#include "dives/cardcolours.h"

namespace tavrel {

StyledText statisticsReport(const Statistics& statistics, const QString& logbook, QString (*asOnScreen)(QString)) {
    StyledText report;
    const auto row = [&](const QString& label, QString value) {
        report.append(QStringLiteral("\r   ") + textWith("Carnet", "Stat label", label), cardcolours::label);
        value.replace(u'\r', u' ');
        report.append(asOnScreen ? asOnScreen(value) : value, cardcolours::value);
    };
    const auto heading = [&](const Title& title) {
        report.append(QStringLiteral("\r\r") + title.text(), cardcolours::heading);
    };
    report.append(textWith("Carnet", "Statistics of", logbook), cardcolours::heading);
    heading({"Carnet", "Stat group measures"});
    for (const StatText& measure : statistics.measureTexts()) {
        row(measure.label.text(), measure.text);
    }
    for (const auto& [group, title] : statGroupNames) {
        heading(title);
        for (const StatCountName& name : statCountNames()) {
            if (name.group == group) {
                row(name.label.text(), textWith("Carnet", "Stat count and share", statistics.count(name.count),
                                                statistics.shareText(name.count).trimmed()));
            }
        }
    }
    return report;
}

}  // namespace tavrel
