#include "book/tablepages.h"

#include "base/texts.h"
#include "drawing/drawingicons.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>
#include <vector>

namespace tavrel {

namespace {

constexpr int fontSize = 11;  // in points, which are the units of the page, before the settings' scale
constexpr double padding = 4;
const QColor ruleColour(0xb0, 0xb0, 0xb0);

/// Everything that is drawn, worked out once: the cells of a page are the table's at that moment.
struct Sheet {
    struct Placed {
        QString heading;
        Qt::Alignment alignment;
        double width = 0;
        std::vector<Cell> cells;
    };

    QSizeF paper;
    PrintSettings settings;
    QString title;
    std::vector<Placed> columns;
    int rows = 0;
    double scale = 1;
    double line = 0;  // the height of a row, in points of the sheet before scaling

    double tableWidth() const {
        return std::accumulate(columns.begin(), columns.end(), 0.0,
                               [](double sum, const Placed& column) { return sum + column.width; });
    }
    double usableHeight() const { return (paper.height() - settings.top - settings.bottom) / scale - line; }
    int rowsPerPage() const { return std::max(1, static_cast<int>(usableHeight() / line) - 1); }
    int pages() const { return std::max(1, (rows + rowsPerPage() - 1) / rowsPerPage()); }
};

QFont fontOf(bool bold) {
    QFont font;
    font.setPixelSize(fontSize);
    font.setBold(bold);
    return font;
}

void drawText(QPainter& painter, const QRectF& box, const QString& words, Qt::Alignment alignment, bool bold,
              const QColor& colour) {
    painter.setFont(fontOf(bold));
    painter.setPen(colour);
    const QRectF inside = box.adjusted(padding, 0, -padding, 0);
    const QString shown = QFontMetricsF(painter.font()).elidedText(words, Qt::ElideRight, inside.width());
    painter.drawText(inside, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

void drawCell(QPainter& painter, const QRectF& box, const Cell& cell, Qt::Alignment alignment) {
    if (cell.style.background) {
        painter.fillRect(box, *cell.style.background);
    }
    drawText(painter, box, cell.text.isEmpty() ? cell.words : cell.text, alignment, cell.style.bold,
             cell.style.text.value_or(Qt::black));
}

void paintSheet(const Sheet& sheet, QPainter& painter, int page) {
    painter.save();
    painter.translate(sheet.settings.left, sheet.settings.top);
    painter.scale(sheet.scale, sheet.scale);
    const int first = page * sheet.rowsPerPage();
    const int last = std::min(sheet.rows, first + sheet.rowsPerPage());
    double x = 0;
    for (const auto& column : sheet.columns) {
        drawText(painter, {x, 0, column.width, sheet.line}, column.heading, column.alignment, true, Qt::black);
        for (int row = first; row < last; ++row) {
            drawCell(painter, {x, (row - first + 1) * sheet.line, column.width, sheet.line},
                     column.cells[static_cast<std::size_t>(row)], column.alignment);
        }
        x += column.width;
    }
    painter.setPen(QPen(ruleColour, 0));
    for (int row = first; row <= last; ++row) {
        const double y = (row - first + 1) * sheet.line;
        painter.drawLine(QPointF(0, y), QPointF(x, y));
    }
    const QRectF foot(0, sheet.usableHeight(),
                      (sheet.paper.width() - sheet.settings.left - sheet.settings.right) / sheet.scale, sheet.line);
    drawText(painter, foot, sheet.title, Qt::AlignLeft, false, Qt::darkGray);
    drawText(painter, foot, textWith("Main", "Page of pages", page + 1, sheet.pages()), Qt::AlignRight, false,
             Qt::darkGray);
    painter.restore();
}

}  // namespace

Pages pagesOf(const BookTable& table, const QSizeF& paper, const PrintSettings& settings, const QString& title) {
    auto sheet = std::make_shared<Sheet>();
    sheet->paper = paper;
    sheet->settings = settings;
    sheet->title = title;
    sheet->rows = table.rowCount();
    const QFontMetricsF plain(fontOf(false));
    const QFontMetricsF bold(fontOf(true));
    sheet->line = std::ceil(bold.height()) + 4;
    for (int index = 0; index < static_cast<int>(table.columns().size()); ++index) {
        if (!table.isShown(index)) {
            continue;
        }
        const Column& column = *table.columns()[static_cast<std::size_t>(index)].column;
        Sheet::Placed placed{column.title.text(), column.alignment, 0, {}};
        placed.width = bold.horizontalAdvance(placed.heading);
        for (int row = 0; row < sheet->rows; ++row) {
            placed.cells.push_back(table.cell(row, index));
            const Cell& cell = placed.cells.back();
            placed.width = std::max(
                placed.width,
                (cell.style.bold ? bold : plain).horizontalAdvance(cell.text.isEmpty() ? cell.words : cell.text));
        }
        constexpr double widest = 220;
        placed.width = std::min(placed.width, widest) + 2 * padding;
        sheet->columns.push_back(std::move(placed));
    }
    const double room = paper.width() - settings.left - settings.right;
    sheet->scale = std::min(settings.scale, room / std::max(1.0, sheet->tableWidth()));

    Pages pages;
    pages.size = paper;
    pages.count = sheet->pages();
    pages.paint = [sheet](QPainter& painter, int page) { paintSheet(*sheet, painter, page); };
    pages.title = title;
    return pages;
}

}  // namespace tavrel
