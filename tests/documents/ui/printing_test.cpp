#include "documents/ui/printing.h"

#include "support/files.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QRegularExpression>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextDocument>
#include <gtest/gtest.h>

namespace tavrel {

namespace {

const PrintSettings settings{23.2, 25, 10, 10, 0.67, true};

class Printing : public testing::Test {
protected:
    Printing() {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath(QStringLiteral("out.pdf")));
        printer.setPageSize(QPageSize(QPageSize::A4));
        table.setModel(&model);
    }

    void fill(int rows, int columns) {
        model.clear();
        model.setRowCount(rows);
        model.setColumnCount(columns);
        for (int row = 0; row < rows; ++row) {
            model.setItem(row, 0, new QStandardItem(QString::number(row)));
        }
        for (int column = 0; column < columns; ++column) {
            table.setColumnWidth(column, 200);
        }
        table.verticalHeader()->setDefaultSectionSize(20);
        table.horizontalHeader()->setFixedHeight(25);
    }

    QByteArray printed() const { return contentsOf(printer.outputFileName()); }
    int printedPages() const {
        const QRegularExpression page(QStringLiteral("/Type\\s*/Page\\b"));
        return static_cast<int>(QString::fromLatin1(printed()).count(page));
    }
    /// Pixels of the screen that fit on a page at the settings' scale.
    double fitting(double points) const { return points / settings.scale * table.logicalDpiX() / 72; }

    QTemporaryDir folder;
    QPrinter printer{QPrinter::HighResolution};
    QStandardItemModel model;
    QTableView table;
};

TEST_F(Printing, takesMarginsInPointsAndTheOrientation) {
    applyPrintSettings(printer, settings);
    const QMarginsF margins = printer.pageLayout().margins(QPageLayout::Point);
    EXPECT_NEAR(margins.top(), 23.2, 0.1);
    EXPECT_NEAR(margins.bottom(), 25, 0.1);
    EXPECT_NEAR(margins.left(), 10, 0.1);
    EXPECT_NEAR(margins.right(), 10, 0.1);
    EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape);
    fill(1, 1);
    EXPECT_TRUE(printTable(printer, table, settings, QStringLiteral("Dives")));
    EXPECT_TRUE(printed().contains("/MediaBox [0 0 842"));
}

TEST_F(Printing, breaksTablesIntoPages) {
    applyPrintSettings(printer, settings);
    // Below the rows stand the title, the day and the page's number.
    const double foot = QFontMetrics(table.font()).height() * 1.5;
    const auto rowsPerPage = static_cast<int>((fitting(595 - 23.2 - 25) - 25 - foot) / 20);
    const auto columnsPerPage = static_cast<int>(fitting(842 - 20) / 200);
    const struct {
        int rows, columns, pages;
    } cases[] = {
        {0, 1, 1},
        {rowsPerPage, 1, 1},
        {rowsPerPage + 1, columnsPerPage, 2},
        {1, columnsPerPage + 1, 1},  // made smaller
        {3 * rowsPerPage, 2 * columnsPerPage, 6},
    };
    for (const auto& it : cases) {
        fill(it.rows, it.columns);
        EXPECT_TRUE(printTable(printer, table, settings, QStringLiteral("Dives")));
        EXPECT_EQ(printedPages(), it.pages) << it.rows << " rows, " << it.columns << " columns";
    }
    // Hidden columns take no room.
    fill(1, 2 * columnsPerPage);
    for (int column = 0; column < columnsPerPage; ++column) {
        table.setColumnHidden(column, true);
    }
    EXPECT_TRUE(printTable(printer, table, settings, QStringLiteral("Dives")));
    EXPECT_EQ(printedPages(), 1);
}

TEST_F(Printing, breaksTextsIntoPages) {
    applyPrintSettings(printer, settings);
    QTextDocument text(QStringLiteral("A line of text\n").repeated(200));
    EXPECT_TRUE(printText(printer, text, settings, QStringLiteral("Card")));
    EXPECT_GT(printedPages(), 2);
    EXPECT_LT(printedPages(), 8);
    printer.setOutputFileName(folder.filePath(QStringLiteral("no folder/out.pdf")));
    EXPECT_FALSE(printText(printer, text, settings, QStringLiteral("Card")));
}

}  // namespace

}  // namespace tavrel
