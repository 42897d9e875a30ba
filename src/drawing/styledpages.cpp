#include "drawing/pages.h"

#include <QFont>
#include <QPageSize>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <vector>

namespace tavrel {

namespace {

constexpr int textSize = 13;    // points before the settings' scale
constexpr int numberSize = 10;  // of the page's number

QFont fontOf(int size) {
    QFont font;
    font.setFamilies({QStringLiteral("Lucida Grande"), QStringLiteral("DejaVu Sans"), QStringLiteral("sans-serif")});
    font.setPixelSize(size);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// A laid out line, and where its block begins in the document.
struct PlacedLine {
    QTextLine line;
    QPointF origin;
};

/// The lines that stand on each page. A document's own painting goes by blocks, and those at a page's edge would come
/// out on two pages wherever nothing is clipped.
std::vector<std::vector<PlacedLine>> linesOfPages(const QTextDocument& document, int pages) {
    std::vector<std::vector<PlacedLine>> lines(static_cast<std::size_t>(pages));
    const double height = document.pageSize().height();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextLayout& layout = *block.layout();
        for (int number = 0; number < layout.lineCount(); ++number) {
            const QTextLine line = layout.lineAt(number);
            const int page = static_cast<int>((layout.position().y() + line.y() + line.height() / 2) / height);
            lines[static_cast<std::size_t>(qBound(0, page, pages - 1))].push_back({line, layout.position()});
        }
    }
    return lines;
}

}  // namespace

std::unique_ptr<QTextDocument> textDocumentOf(const StyledText& text) {
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    QTextCursor cursor(document.get());
    cursor.beginEditBlock();
    for (const StyledRun& run : text.runs()) {
        QTextCharFormat format;
        format.setForeground(run.colour);
        QString words = run.text;
        cursor.insertText(words.replace(u'\r', u'\n'), format);
    }
    cursor.endEditBlock();
    return document;
}

QSizeF usualPaper(const PrintSettings& settings) {
    const QSizeF upright = QPageSize(QPageSize::A4).size(QPageSize::Point);
    return settings.landscape ? upright.transposed() : upright;
}

Pages pagesOf(const StyledText& text, const QSizeF& paper, const PrintSettings& settings, const QString& title) {
    const std::shared_ptr<QTextDocument> document = textDocumentOf(text);
    const double scale = settings.scale > 0 ? settings.scale : 1;
    const QFont numberFont = fontOf(numberSize);
    const double foot = 2 * numberSize;
    const QSizeF room =
        QSizeF(paper.width() - settings.left - settings.right, paper.height() - settings.top - settings.bottom) / scale;
    const QSizeF page(qMax(room.width(), 10.0), qMax(room.height() - foot, 10.0));
    document->setDefaultFont(fontOf(textSize));
    document->setUseDesignMetrics(true);
    document->setDocumentMargin(0);
    document->setPageSize(page);
    Pages pages;
    pages.size = paper;
    pages.count = qMax(1, document->pageCount());
    pages.title = title;
    pages.paint = [document, lines = linesOfPages(*document, pages.count), settings, scale, page, foot, numberFont,
                   count = pages.count](QPainter& painter, int number) {
        painter.save();
        painter.translate(settings.left, settings.top);
        painter.scale(scale, scale);
        painter.setPen(Qt::black);
        if (count > 1) {
            painter.setFont(numberFont);
            painter.drawText(QRectF(0, page.height(), page.width(), foot), Qt::AlignHCenter | Qt::AlignBottom,
                             QStringLiteral("%1 / %2").arg(number + 1).arg(count));
        }
        painter.translate(0, -number * page.height());
        for (const PlacedLine& line : lines[static_cast<std::size_t>(number)]) {
            line.line.draw(&painter, line.origin);
        }
        painter.restore();
    };
    return pages;
}

}  // namespace tavrel
