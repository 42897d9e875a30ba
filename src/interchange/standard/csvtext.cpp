#include "interchange/standard/csvtext.h"

#include "base/numbers.h"
#include "base/texts.h"
#include "interchange/standard/filetime.h"

#include <QStringDecoder>

#include <algorithm>
#include <cmath>

namespace tavrel {

namespace {

bool isColumn(const Item& item) {
    return item.travel() != Travel::memoryOnly;
}

QString keyOf(const Item& item) {
    return QString::fromLatin1(item.key().data(), static_cast<qsizetype>(item.key().size()));
}

/// The field of a heading; null when it is none.
const Item* itemOf(const QString& heading) {
    std::string key = heading.trimmed().toStdString();
    const auto older = std::find_if(listColumns.begin(), listColumns.end(),
                                    [&](const ListColumnName& column) { return column.heading == key; });
    if (older != listColumns.end()) {
        key = older->field;
    }
    const Item* item = Plongee::layout().find(key);
    return item && isColumn(*item) ? item : nullptr;
}

/// What a value is in a cell.
struct CellText {
    std::string_view key;

    QString operator()(qint32 value) const { return QString::number(value); }
    QString operator()(float value) const { return shortestText(value); }
    QString operator()(const QString& value) const { return value; }
    QString operator()(const Date& value) const {
        const QDateTime moment = value.toDateTime();
        return key == "heure" ? moment.time().toString(QStringLiteral("HH:mm:ss"))
                              : moment.date().toString(Qt::ISODate);
    }
    QString operator()(const Series& value) const {
        QStringList numbers;
        for (std::size_t index = 0; value.size() > 1 && index < value.size(); ++index) {
            numbers.append(shortestText(value.real(index)));
        }
        return numbers.join(u' ');
    }
    QString operator()(const Image&) const { return {}; }
};

void appendQuoted(QByteArray& out, const QString& cell) {
    const bool needsQuotes = std::any_of(cell.begin(), cell.end(), [](QChar sign) {
        return sign == u'"' || sign == u',' || sign == u';' || sign == u'\n' || sign == u'\r' || sign == u'\t';
    });
    if (needsQuotes) {
        QString inner = cell;
        out += '"' + inner.replace(u'"', QStringLiteral("\"\"")).toUtf8() + '"';
    } else {
        out += cell.toUtf8();
    }
}

/// The cells of a text, row by row.
class Rows {
public:
    Rows(QStringView text, QChar separator) : text_(text), separator_(separator) {}

    /// The next row; none at the end.
    std::optional<QStringList> next() {
        if (at_ >= text_.size()) {
            return std::nullopt;
        }
        QStringList row;
        QString cell;
        bool quoted = false;
        for (; at_ < text_.size(); ++at_) {
            const QChar sign = text_[at_];
            if (quoted) {
                const bool doubled = sign == u'"' && at_ + 1 < text_.size() && text_[at_ + 1] == u'"';
                if (doubled || sign != u'"') {
                    cell += sign;
                    at_ += doubled ? 1 : 0;
                } else {
                    quoted = false;
                }
            } else if (sign == u'"' && cell.isEmpty()) {
                quoted = true;
            } else if (sign == separator_) {
                row.append(std::exchange(cell, {}));
            } else if (sign == u'\n' || sign == u'\r') {
                // One end of line, however it is written.
                at_ += sign == u'\r' && at_ + 1 < text_.size() && text_[at_ + 1] == u'\n' ? 2 : 1;
                row.append(cell);
                return row;
            } else {
                cell += sign;
            }
        }
        row.append(cell);
        return row;
    }

private:
    QStringView text_;
    QChar separator_;
    qsizetype at_ = 0;
};

/// Takes a cell into a dive; false where it is no value of the field.
struct TakeCell {
    const QString& cell;
    bool operator()(qint32& value) const {
        value = startsWithNumber(cell) ? integerValue(cell) : value;
        return startsWithNumber(cell);
    }
    bool operator()(float& value) const {
        value = startsWithNumber(cell) ? floatValue(cell) : value;
        return startsWithNumber(cell);
    }
    bool operator()(QString& value) const {
        value = cell;
        return true;
    }
    bool operator()(Date&) const { return true; }
    bool operator()(Series& value) const {
        std::vector<double> numbers;
        bool whole = true;
        for (const QString& number : cell.split(u' ', Qt::SkipEmptyParts)) {
            numbers.push_back(doubleValue(number));
            whole = whole && startsWithNumber(number);
        }
        value = Series::ofReals(numbers);
        return whole;
    }
    bool operator()(Image&) const { return true; }
};

FoundDive diveOf(const std::vector<const Item*>& items, const QStringList& headings, const QStringList& row) {
    FoundDive found;
    found.dive = unknownDive();
    std::optional<QDate> day;
    QTime time;
    for (std::size_t column = 0; column < items.size() && static_cast<qsizetype>(column) < row.size(); ++column) {
        const QString& cell = row[static_cast<qsizetype>(column)];
        const QString& heading = headings[static_cast<qsizetype>(column)];
        if (cell.isEmpty()) {
            continue;
        }
        if (!items[column]) {
            found.lose(heading, cell);
            continue;
        }
        if (items[column]->key() == "date") {
            const auto moment = fileTime(cell);
            day = moment ? std::optional(moment->day) : std::nullopt;
        } else if (items[column]->key() == "heure") {
            time = fileClock(cell);
        } else if (!items[column]->field().visit(found.dive, TakeCell{cell})) {
            found.lose(heading, cell);
        }
    }
    if (day) {
        setStart(found.dive, *day, time);
    }
    // Flags are whole numbers in a dive.
    for (const ProfileSeriesKind& kind : profileSeriesKinds) {
        const auto series = kind.series;
        if (!kind.real && (found.dive.*series).size() > 1) {
            std::vector<qint32> flags;
            for (std::size_t sample = 0; sample < (found.dive.*series).size(); ++sample) {
                flags.push_back((found.dive.*series).integer(sample));
            }
            found.dive.*series = Series::ofIntegers(flags);
        }
    }
    found.dive.profilArraysDefaultContent();
    return found;
}

}  // namespace

QStringList csvFields() {
    QStringList fields;
    for (const auto& item : Plongee::layout().items) {
        if (isColumn(item)) {
            fields.append(keyOf(item));
        }
    }
    return fields;
}

Expected<QByteArray> writeCsv(const RecordList& dives, const QStringList& columns, const Progress& progress) {
    constexpr std::size_t divesPerProgress = 32;
    std::vector<const Item*> items;
    for (const QString& column : columns.isEmpty() ? csvFields() : columns) {
        const Item* item = Plongee::layout().find(column.toStdString());
        if (!item || !isColumn(*item)) {
            return failure(textWith("Interchange", "No such column", column));
        }
        items.push_back(item);
    }
    QByteArray out;
    const auto line = [&](const auto& cellOf) {
        for (std::size_t column = 0; column < items.size(); ++column) {
            out += column == 0 ? "" : ",";
            appendQuoted(out, cellOf(*items[column]));
        }
        out += "\r\n";
    };
    line(keyOf);
    for (std::size_t index = 0; index < dives.size(); ++index) {
        if (index % divesPerProgress == 0 && progress && !progress(index, dives.size())) {
            return failure(text("Main", "Cancelled"));
        }
        line([&](const Item& item) { return item.field().visit(*dives[index], CellText{item.key()}); });
    }
    return out;
}

std::optional<FoundDives> readCsv(QByteArrayView bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString decoded = decoder(bytes);
    if (decoder.hasError()) {
        decoded = QString::fromLatin1(bytes);
    }
    const qsizetype end = std::min(decoded.indexOf(u'\n') < 0 ? decoded.size() : decoded.indexOf(u'\n'),
                                   decoded.indexOf(u'\r') < 0 ? decoded.size() : decoded.indexOf(u'\r'));
    const QStringView first = QStringView(decoded).left(end);
    const QChar separator = first.contains(u'\t') ? u'\t' : first.count(u';') > first.count(u',') ? u';' : u',';
    Rows rows(decoded, separator);
    const QStringList headings = rows.next().value_or(QStringList());
    std::vector<const Item*> items;
    for (const QString& heading : headings) {
        items.push_back(itemOf(heading));
    }
    const bool hasDay =
        std::any_of(items.begin(), items.end(), [](auto item) { return item && item->key() == "date"; });
    if (!hasDay || std::count(items.begin(), items.end(), nullptr) * 2 > static_cast<std::ptrdiff_t>(items.size())) {
        return std::nullopt;
    }
    FoundDives found;
    while (const auto row = rows.next()) {
        if (found.dives.size() >= mostDives) {
            found.tooMany = true;
            break;
        }
        if (row->size() > 1 || !row->value(0).isEmpty()) {
            found.dives.push_back(diveOf(items, headings, *row));
        }
    }
    return found;
}

}  // namespace tavrel
