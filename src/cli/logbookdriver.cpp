#include "cli/logbookdriver.h"

#include "archive/recordjson.h"
#include "base/texts.h"
#include "cli/fieldtext.h"
#include "logbook/divecolumns.h"

#include <algorithm>

namespace tavrel {

namespace {

/// The series of that name, and whether it holds reals; null when there is none.
const ProfileSeriesKind* seriesNamed(const QString& field) {
    const auto* item = Plongee::layout().find(field.toStdString());
    const auto* member = item ? std::get_if<Series Plongee::*>(&item->member) : nullptr;
    for (const auto& kind : profileSeriesKinds) {
        if (member && *member == static_cast<Series Plongee::*>(kind.series)) {
            return &kind;
        }
    }
    return nullptr;
}

std::optional<Series> seriesOf(const QString& value, bool reals) {
    Series series = Series::empty();
    if (value.trimmed().isEmpty()) {
        return series;
    }
    for (const QString& part : value.split(u',')) {
        bool isNumber = false;
        if (reals) {
            series.appendReal(part.trimmed().toDouble(&isNumber));
        } else {
            series.appendInteger(part.trimmed().toInt(&isNumber));
        }
        if (!isNumber) {
            return std::nullopt;
        }
    }
    return series;
}

const DiveColumn* tableColumn(const QString& field) {
    const auto found = std::find_if(diveColumns.begin(), diveColumns.end(),
                                    [&](const DiveColumn& column) { return field == QLatin1StringView(column.field); });
    return found == diveColumns.end() ? nullptr : found;
}

}  // namespace

LogbookDriver::LogbookDriver(Desktop& desktop)
    : carnet_(desktop, logbookExportTypes()), style_(TableStyle::read(desktop.preferences)) {}

Expected<void> LogbookDriver::renumber(qint32 first) {
    carnet_.renumDives(first);
    return {};
}

Expected<QString> LogbookDriver::find(const QString& field, const QString& text) {
    return carnet_.findTextWithField(field, text).map([&](int) { return carnet_.foundText(); });
}

std::vector<ListColumn> LogbookDriver::tableColumns() const {
    std::vector<ListColumn> columns;
    columns.reserve(diveColumns.size());
    for (const auto& column : diveColumns) {
        columns.push_back({QString::fromLatin1(column.field), column.title.text()});
    }
    return columns;
}

std::optional<ListColumn> LogbookDriver::column(const QString& field) const {
    if (const DiveColumn* column = tableColumn(field)) {
        return ListColumn{field, column->title.text()};
    }
    return Plongee::layout().find(field.toStdString()) ? std::optional(ListColumn{field, field}) : std::nullopt;
}

QString LogbookDriver::cell(int row, const QString& field) const {
    const Plongee& dive = *carnet_.recordAt(row);
    return tableColumn(field) ? cellWords(dive, field.toStdString(), style_)
                              : fieldText(fieldValue(dive, *Plongee::layout().find(field.toStdString())));
}

bool LogbookDriver::hasEntryBeside(const QString& field) const {
    return seriesNamed(field) != nullptr;
}

std::optional<Expected<void>> LogbookDriver::enterBeside(const QString& field, const QString& value) {
    const ProfileSeriesKind* kind = seriesNamed(field);
    if (!kind) {
        return std::nullopt;
    }
    auto series = seriesOf(value, kind->real);
    if (!series) {
        return failure(textWith("Main", "No such value", field, value));
    }
    carnet_.form().profile().*(kind->series) = std::move(*series);
    return Expected<void>();
}

Expected<void> LogbookDriver::writeJson(QByteArrayView file, JsonWriter& json) const {
    return readRecords<Plongee>(file, Plongee::layout()).map([&](const RecordFile<Plongee>& read) {
        writeRecordsJson(json, carnet_.type(), read, Plongee::layout());
    });
}

}  // namespace tavrel
