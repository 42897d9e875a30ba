#pragma once

#include "platform/printsettings.h"

#include <QPrinter>
#include <QString>

class QTableView;
class QTextDocument;
class QWidget;

namespace tavrel {

/// The printer with margins, orientation and page size set; what the user chose in the page set-up of this session
/// stays.
void applyPrintSettings(QPrinter& printer, const PrintSettings& settings);

/// Paints all rows of a table, its visible columns in their order with header texts, cell texts, fonts, colours and
/// images, at the settings' scale over as many pages as it takes, the header on each.
void printTable(QPrinter& printer, const QTableView& table, const PrintSettings& settings, const QString& title);
void printText(QPrinter& printer, const QTextDocument& text, const PrintSettings& settings);

/// The print dialog (a printer or a PDF file), then the painting by what is given. Nothing happens on cancel.
bool runPrintDialog(QWidget* parent, const PrintSettings& settings, QPrinter& printer);
/// The platform's page set-up dialog; remembered for the session.
void runPageLayout(QWidget* parent);

}  // namespace tavrel
