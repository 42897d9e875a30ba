#pragma once

#include "drawing/pages.h"

#include <QPageLayout>

#include <functional>

class QPrinter;
class QWidget;

namespace tavrel {

class Alerts;

/// What a window prints.
struct PrintJob {
    PrintSettings settings;
    QString title;  ///< names the job, and stands below pages that have a foot
    QDate day;      ///< beside it
    std::function<Pages(const Paper& paper)> pages;
};

/// Gives the printer the margins and the orientation of the settings; what the user changed in the page set-up of this
/// session (paper, margins, orientation) stays as the user wants it.
void applyPrintSettings(QPrinter& printer, const PrintSettings& settings);

/// Paints the job's pages, made for the printer's paper and margins, as large as the margins leave room. Long work
/// shows its progress above the window and can be cancelled; answers whether it came to its end.
bool printOn(QPrinter& printer, const PrintJob& job, QWidget* window);

/// Asks for a printer or a PDF file in the print dialog, and prints; tells when that fails.
void runPrint(QWidget* parent, const PrintJob& job, Alerts& alerts);
/// Shows the pages before anything is printed.
void runPrintPreview(QWidget* parent, const PrintJob& job);
/// The platform's page set-up dialog, which starts in the orientation that is described for the window; what the user
/// changes is remembered for the session.
void runPageLayout(QWidget* parent, QPageLayout::Orientation described = QPageLayout::Portrait);

}  // namespace tavrel
