#include "drawing/ui/printing.h"

#include "support/files.h"

#include <QPrinter>
#include <QTemporaryDir>

namespace tavrel {

namespace {

const PrintSettings settings{23.2, 25, 10, 10, 0.67, true};

struct Printing : testing::Test {
    Printing() {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath(QStringLiteral("out.pdf")));
        printer.setPageSize(QPageSize(QPageSize::A4));
        applyPrintSettings(printer, settings);
    }

    QTemporaryDir folder;
    QPrinter printer{QPrinter::HighResolution};
    StyledText text = [] {
        StyledText lines;
        for (int line = 0; line < 200; ++line) {
            lines.append(QStringLiteral("A line of text\r"), Qt::black);
        }
        return lines;
    }();
    PrintJob card{settings, QStringLiteral("Card"), QDate(2024, 6, 15),
                  [this](const Paper& paper) { return pagesOf(text, paper); }};
};

TEST_F(Printing, givesPagesThePapersSizeAndMargins) {
    Paper given;
    PrintJob job = card;
    job.pages = [&](const Paper& paper) {
        given = paper;
        return pagesOf(text, paper);
    };
    EXPECT_TRUE(printOn(printer, job, nullptr));
    const QByteArray pdf = contentsOf(printer.outputFileName());
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 842"));
    EXPECT_NEAR(given.size.width(), 842, 1);
    EXPECT_NEAR(given.settings.top, 23.2, 0.1);
    EXPECT_NEAR(given.settings.bottom, 25, 0.1);
    EXPECT_NEAR(given.settings.left, 10, 0.1);
    EXPECT_EQ(given.settings.scale, 0.67);
    EXPECT_EQ(given.title, u"Card");
    EXPECT_EQ(given.day, QDate(2024, 6, 15));
    // As many as a file of the same pages has.
    EXPECT_EQ(pdf.count("/Type /Page\n"), pagesOf(text, given).count);
    EXPECT_GT(pdf.count("/Type /Page\n"), 2);
    printer.setOutputFileName(folder.filePath(QStringLiteral("no folder/out.pdf")));
    EXPECT_FALSE(printOn(printer, card, nullptr));
}

}  // namespace

}  // namespace tavrel
