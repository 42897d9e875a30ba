#include "drawing/drawingfont.h"
#include "drawing/pages.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <vector>

namespace tavrel {

namespace {

constexpr double textSize = 13;  // points before the paper's scale

/// Adds the texts of a line, each of one colour, to a page that begins at that height of the document.
void addLine(Drawing& page, const QTextBlock& block, const QTextLine& line, double pageTop) {
    const double top = page.size().height() - (block.layout()->position().y() + line.y() - pageTop);
    for (auto run = block.begin(); !run.atEnd(); ++run) {
        const QTextFragment fragment = run.fragment();
        const int begin = fragment.position() - block.position();
        int first = std::max(begin, line.textStart());
        const int end = std::min(begin + fragment.length(), line.textStart() + line.textLength());
        // A tab is a distance to the toolkit's layout, not a character.
        while (first < end) {
            const auto tab = static_cast<int>(block.text().indexOf(u'\t', first));
            const int last = tab < 0 ? end : std::min(end, tab);
            if (const QString words = block.text().mid(first, last - first); !words.trimmed().isEmpty()) {
                const double left = std::min(line.cursorToX(first), line.cursorToX(last));
                page.add(Drawing::Text{{left, top},
                                       words,
                                       fragment.charFormat().foreground().color(),
                                       textSize,
                                       Qt::AlignLeft | Qt::AlignTop});
            }
            first = last + 1;
        }
    }
}

/// A line of the document and its block.
struct PlacedLine {
    QTextBlock block;
    QTextLine line;
};

std::vector<std::vector<PlacedLine>> linesOfPages(const QTextDocument& document) {
    std::vector<std::vector<PlacedLine>> lines(static_cast<std::size_t>(qMax(1, document.pageCount())));
    const double height = document.pageSize().height();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextLayout& layout = *block.layout();
        for (int number = 0; number < layout.lineCount(); ++number) {
            const QTextLine line = layout.lineAt(number);
            const double middle = layout.position().y() + line.y() + line.height() / 2;
            lines[std::min(static_cast<std::size_t>(middle / height), lines.size() - 1)].push_back({block, line});
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

Pages pagesOf(const StyledText& text, const Paper& paper) {
    const std::shared_ptr<QTextDocument> document = textDocumentOf(text);
    const QSizeF contents = contentsSize(paper, paper.settings.scale);
    document->setDefaultFont(drawingFont(textSize));
    document->setUseDesignMetrics(true);
    document->setDocumentMargin(0);
    document->setPageSize(contents);
    const auto lines = linesOfPages(*document);
    Pages pages = pagesFor(paper, static_cast<int>(lines.size()));
    pages.page = [document, lines, paper, contents](int number) {
        Drawing page = newPage(paper, paper.settings.scale, number, static_cast<int>(lines.size()));
        for (const PlacedLine& each : lines[static_cast<std::size_t>(number)]) {
            addLine(page, each.block, each.line, number * contents.height());
        }
        return page;
    };
    return pages;
}

}  // namespace tavrel
