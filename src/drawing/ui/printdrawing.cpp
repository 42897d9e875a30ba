#include "drawing/ui/printdrawing.h"

#include "drawing/pages.h"

#include <QPainter>

namespace tavrel {

bool printDrawing(QPrinter& printer, const Drawing& drawing) {
    printer.setDocName(drawing.title);
    QPainter painter;
    if (!painter.begin(&printer)) {
        return false;
    }
    const QSize page = printer.pageLayout().paintRectPixels(printer.resolution()).size();
    drawing.paint(painter, QRectF(QPointF(), page));
    return painter.end();
}

bool printStyledText(QPrinter& printer, const StyledText& text, const PrintSettings& settings, const QString& title) {
    printer.setDocName(title);
    PrintSettings onPaper = settings;
    const QMarginsF margins = printer.pageLayout().margins(QPageLayout::Point);
    onPaper.top = margins.top();
    onPaper.bottom = margins.bottom();
    onPaper.left = margins.left();
    onPaper.right = margins.right();
    const Pages pages = pagesOf(text, printer.pageLayout().fullRect(QPageLayout::Point).size(), onPaper, title);
    printer.setFullPage(true);
    QPainter painter;
    if (!painter.begin(&printer)) {
        return false;
    }
    const double scale = printer.resolution() / 72.0;
    for (int page = 0; page < pages.count; ++page) {
        if (page > 0 && !printer.newPage()) {
            painter.end();
            printer.abort();
            return false;
        }
        painter.save();
        painter.scale(scale, scale);
        pages.paint(painter, page);
        painter.restore();
    }
    return painter.end();
}

}  // namespace tavrel
