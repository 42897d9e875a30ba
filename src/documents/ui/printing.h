#pragma once

#include "desktop/printsettings.h"

#include <QPrinter>
#include <QString>

#include <functional>

class QTableView;
class QTextDocument;
class QWidget;

namespace tavrel {

/// Gives the printer the margins and the orientation of the settings; what the user changed in the page set-up of this
/// session (paper, margins, orientation) stays as the user wants it.
void applyPrintSettings(QPrinter& printer, const PrintSettings& settings);

/// Paints all rows of a table, its visible columns in their order with header texts, cell texts, fonts, colours and
/// images, at the settings' scale (1 is the size on the screen) over as many pages as it takes, the header on each.
/// Columns take the width of the page: narrow ones are widened, and such as are a little too wide are made smaller.
/// Where even that does not do, columns go to further pages. The title names the print job and stands below each page
/// with the day and the page's number. Long work shows its progress and can be cancelled; answers whether it came to
/// its end.
bool printTable(QPrinter& printer, const QTableView& table, const PrintSettings& settings, const QString& title);
/// The same for a text, in black where it has no colours of its own.
bool printText(QPrinter& printer, const QTextDocument& text, const PrintSettings& settings, const QString& title);

/// The print dialog (a printer or a PDF file) with the settings applied; whether to go on and print.
bool runPrintDialog(QWidget* parent, const PrintSettings& settings, QPrinter& printer);
/// Shows the pages that print would paint before anything is printed, in the settings' margins and orientation.
void runPrintPreview(QWidget* parent, const PrintSettings& settings, const std::function<void(QPrinter&)>& print);
/// The platform's page set-up dialog, which starts in the orientation that is described for the window; what the user
/// changes is remembered for the session.
void runPageLayout(QWidget* parent, QPageLayout::Orientation described = QPageLayout::Portrait);

}  // namespace tavrel
