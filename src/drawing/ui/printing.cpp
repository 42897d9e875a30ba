#include "drawing/ui/printing.h"

#include "base/texts.h"
#include "desktop/alerts.h"
#include "desktop/ui/progresswindow.h"

#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include <optional>

namespace tavrel {

namespace {

/// What the user changed in the page set-up of this session.
struct PageSetup {
    std::optional<QPageSize> paper;
    std::optional<QMarginsF> margins;
    std::optional<QPageLayout::Orientation> orientation;
};

PageSetup& sessionPageSetup() {
    static PageSetup setup;
    return setup;
}

/// The printer's paper as the user left it, for contents of those settings.
Paper paperOf(const QPrinter& printer, const PrintJob& job) {
    const QPageLayout layout = printer.pageLayout();
    const QMarginsF margins = layout.margins(QPageLayout::Point);
    Paper paper{layout.fullRect(QPageLayout::Point).size(), job.settings, job.title, job.day};
    paper.settings.left = margins.left();
    paper.settings.top = margins.top();
    paper.settings.right = margins.right();
    paper.settings.bottom = margins.bottom();
    return paper;
}

}  // namespace

void applyPrintSettings(QPrinter& printer, const PrintSettings& settings) {
    const PageSetup& setup = sessionPageSetup();
    if (setup.paper) {
        printer.setPageSize(*setup.paper);
    }
    printer.setPageOrientation(
        setup.orientation.value_or(settings.landscape ? QPageLayout::Landscape : QPageLayout::Portrait));
    printer.setPageMargins(
        setup.margins.value_or(QMarginsF(settings.left, settings.top, settings.right, settings.bottom)),
        QPageLayout::Point);
}

bool printOn(QPrinter& printer, const PrintJob& job, QWidget* window) {
    printer.setDocName(job.title);
    const Pages pages = job.pages(paperOf(printer, job));
    QPainter painter;
    if (!painter.begin(&printer)) {
        return false;
    }
    // The painter begins inside the margins.
    const QRectF room(QPointF(), QSizeF(printer.pageLayout().paintRectPixels(printer.resolution()).size()));
    ProgressWindow work(window, text("Main", "Printing"));
    const Progress progress = work.progress();
    for (int page = 0; page < pages.count; ++page) {
        const bool goesOn = progress(static_cast<std::size_t>(page), static_cast<std::size_t>(pages.count));
        if (!goesOn || (page > 0 && !printer.newPage())) {
            painter.end();
            printer.abort();
            return false;
        }
        pages.page(page).paint(painter, room);
    }
    return painter.end();
}

void runPrint(QWidget* parent, const PrintJob& job, Alerts& alerts) {
    QPrinter printer;
    applyPrintSettings(printer, job.settings);
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowModality(Qt::WindowModal);
    const bool wanted = dialog.exec() == QDialog::Accepted;
    if (wanted && !printOn(printer, job, parent) && printer.printerState() == QPrinter::Error) {
        alerts.fail({text("Main", "Printing failed"), printer.outputFileName()});
    }
}

void runPrintPreview(QWidget* parent, const PrintJob& job) {
    QPrinter printer;
    applyPrintSettings(printer, job.settings);
    QPrintPreviewDialog dialog(&printer, parent);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setWindowTitle(text("Main", "Print preview title"));
    dialog.resize(parent->size().expandedTo(QSize(720, 560)));
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, parent,
                     [&job, parent](QPrinter* paper) { printOn(*paper, job, parent); });
    dialog.exec();
}

void runPageLayout(QWidget* parent, QPageLayout::Orientation described) {
    PageSetup& setup = sessionPageSetup();
    QPrinter printer;
    printer.setPageSize(setup.paper.value_or(printer.pageLayout().pageSize()));
    printer.setPageOrientation(setup.orientation.value_or(described));
    printer.setPageMargins(setup.margins.value_or(printer.pageLayout().margins(QPageLayout::Point)),
                           QPageLayout::Point);
    const QPageLayout before = printer.pageLayout();
    QPageSetupDialog dialog(&printer, parent);
    dialog.setWindowModality(Qt::WindowModal);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QPageLayout after = printer.pageLayout();
    if (after.pageSize() != before.pageSize()) {
        setup.paper = after.pageSize();
    }
    if (after.margins(QPageLayout::Point) != before.margins(QPageLayout::Point)) {
        setup.margins = after.margins(QPageLayout::Point);
    }
    if (after.orientation() != before.orientation()) {
        setup.orientation = after.orientation();
    }
}

}  // namespace tavrel
