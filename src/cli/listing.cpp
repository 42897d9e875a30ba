#include "cli/listing.h"

#include "base/numbers.h"
#include "base/texts.h"
#include "cli/fieldtext.h"

#include <QStringList>

#include <algorithm>
#include <ostream>

namespace tavrel {

namespace {

constexpr QChar rule = u'─';

/// Long texts stay on their line.
QString onOneLine(QString cell) {
    for (QChar& letter : cell) {
        if (letter.category() == QChar::Other_Control) {
            letter = u' ';
        }
    }
    return cell;
}

struct PrintedColumn {
    QStringList lines;
    qsizetype width = 0;
    bool numbers = true;  ///< every cell begins with a number or is empty; such a column is aligned to the right

    void add(const QString& line) {
        width = std::max(width, line.size());
        lines.append(line);
    }

    QString padded(qsizetype line) const {
        return numbers ? lines[line].rightJustified(width) : lines[line].leftJustified(width);
    }
};

PrintedColumn printedColumn(const BookBase& book, const BookTable& table, const ListColumn& column,
                            const QList<int>& rows) {
    PrintedColumn printed;
    printed.add(onOneLine(column.heading));
    for (const int row : rows) {
        const QString cell = onOneLine(column.tableColumn >= 0 ? table.cell(row, column.tableColumn).inWords()
                                                               : fieldText(column.field.value(*book.recordAt(row))));
        printed.numbers = printed.numbers && (cell.isEmpty() || startsWithNumber(cell));
        printed.add(cell);
    }
    return printed;
}

PrintedColumn rowNumbers(const QList<int>& rows) {
    PrintedColumn printed;
    printed.add(text("Cli", "Row"));
    for (const int row : rows) {
        printed.add(QString::number(row));
    }
    return printed;
}

}  // namespace

std::vector<ListColumn> allColumns(const BookTable& table) {
    std::vector<ListColumn> columns;
    for (const auto& placed : table.columns()) {
        columns.push_back({placed.column->title.text(), placed.field, static_cast<int>(columns.size())});
    }
    return columns;
}

ListColumn columnOf(const BookTable& table, const RecordLayout& layout, const QString& field) {
    const int column = table.columnOf(field.toStdString());
    return column >= 0 ? allColumns(table)[static_cast<std::size_t>(column)] : ListColumn{field, layout.field(field)};
}

void printRecords(const BookBase& book, const BookTable& table, const std::vector<ListColumn>& columns,
                  const QList<int>& rows, std::ostream& out) {
    std::vector<PrintedColumn> printed{rowNumbers(rows)};
    for (const ListColumn& column : columns) {
        printed.push_back(printedColumn(book, table, column, rows));
    }
    for (qsizetype line = 0; line <= rows.size(); ++line) {
        QStringList cells;
        QStringList rules;
        for (const PrintedColumn& column : printed) {
            cells.append(column.padded(line));
            rules.append(QString(column.width, rule));
        }
        QString whole = cells.join(QStringLiteral("  "));
        while (whole.endsWith(u' ')) {
            whole.chop(1);
        }
        out << whole.toStdString() << '\n';
        if (line == 0) {
            out << rules.join(QStringLiteral("  ")).toStdString() << '\n';
        }
    }
}

}  // namespace tavrel
