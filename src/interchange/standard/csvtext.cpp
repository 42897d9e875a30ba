#include "interchange/standard/csvtext.h"

#include "base/numbers.h"
#include "base/texts.h"

#include <algorithm>

namespace tavrel {

namespace {

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

}  // namespace

QStringList csvFields() {
    QStringList fields;
    for (const auto& item : Plongee::layout().items) {
        if (item.travel() != Travel::memoryOnly) {
            fields.append(QString::fromLatin1(item.key()));
        }
    }
    return fields;
}

const Item* csvItem(const QString& field) {
    const Item* item = Plongee::layout().find(field.toStdString());
    return item && item->travel() != Travel::memoryOnly ? item : nullptr;
}

Expected<QByteArray> writeCsv(const RecordList& dives, const QStringList& columns, const Progress& progress) {
    constexpr std::size_t divesPerProgress = 32;
    std::vector<const Item*> items;
    for (const QString& column : columns.isEmpty() ? csvFields() : columns) {
        const Item* item = csvItem(column);
        if (!item) {
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
    line([](const Item& item) { return QString::fromLatin1(item.key()); });
    for (std::size_t index = 0; index < dives.size(); ++index) {
        if (index % divesPerProgress == 0 && progress && !progress(index, dives.size())) {
            return failure(text("Main", "Cancelled"));
        }
        line([&](const Item& item) { return item.field().visit(*dives[index], CellText{item.key()}); });
    }
    return out;
}

}  // namespace tavrel
