#include "book/tablepages.h"

#include "drawing/drawingfont.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

namespace tavrel {

namespace {

constexpr double fontSize = 11;  // points before the paper's scale, as all lengths here
constexpr double padding = 4;    // on each side of a cell's text
constexpr double iconSize = 12;
constexpr double widest = 220;  // of a column that nobody gave a width
const QColor headGround(0xe8, 0xe8, 0xe8);
const QColor ruleColour(0xc0, 0xc0, 0xc0);

const QString& shownIn(const Cell& cell) {
    return cell.image.isEmpty() && cell.text.isEmpty() ? cell.words : cell.text;
}

/// A run of columns or rows that stands on one page.
struct Run {
    std::size_t first = 0;
    std::size_t count = 0;
};

/// Breaks widths into runs that fit; a width too large for a page has one of its own.
std::vector<Run> fittingRuns(const std::vector<double>& widths, double room) {
    std::vector<Run> runs(1);
    double taken = 0;
    for (std::size_t index = 0; index < widths.size(); ++index) {
        if (runs.back().count > 0 && taken + widths[index] > room) {
            runs.push_back({index});
            taken = 0;
        }
        ++runs.back().count;
        taken += widths[index];
    }
    return runs;
}

/// The table with everything that all its pages share; the cells of a page are worked out with it.
class TableSheet {
public:
    TableSheet(const BookBase& book, TablePart part, const Paper& paper)
        : table_(book), part_(std::move(part)), paper_(paper), scale_(paper.settings.scale) {
        line_ = std::ceil(bold_.height()) + padding;
        for (const TablePart::Chosen& chosen : part_.columns) {
            widths_.push_back(chosen.width > 0 ? chosen.width * plain_.horizontalAdvance(u'0') : neededBy(chosen));
        }
        fitWidths();
        columns_ = fittingRuns(widths_, room_.width() + padding);
        rowsPerPage_ = std::max<std::size_t>(1, static_cast<std::size_t>(room_.height() / line_) - 1);
    }

    int pages() const {
        return static_cast<int>(columns_.size() * std::max<std::size_t>(1, (rows() + rowsPerPage_ - 1) / rowsPerPage_));
    }

    Drawing page(int number) const {
        Drawing page = newPage(paper_, scale_, number, pages());
        const auto place = static_cast<std::size_t>(number);
        const Run& across = columns_[place % columns_.size()];
        const std::size_t first = place / columns_.size() * rowsPerPage_;
        const std::size_t last = std::min(rows(), first + rowsPerPage_);
        const auto begin = widths_.begin() + static_cast<std::ptrdiff_t>(across.first);
        const double width = std::accumulate(begin, begin + static_cast<std::ptrdiff_t>(across.count), 0.0);
        const double height = line_ * static_cast<double>(last - first + 1);
        QPainterPath rules;
        double x = 0;
        for (std::size_t column = across.first; column < across.first + across.count; ++column) {
            drawHeading(page, {x, 0, widths_[column], line_}, column);
            for (std::size_t row = first; row < last; ++row) {
                const double y = static_cast<double>(row - first + 1) * line_;
                drawCell(page, {x, y, widths_[column], line_}, static_cast<int>(row), column);
            }
            x += widths_[column];
            addRule(rules, page, {x, 0}, {x, height});
        }
        for (std::size_t row = 0; row <= last - first; ++row) {
            const double y = static_cast<double>(row + 1) * line_;
            addRule(rules, page, {0, y}, {width, y});
        }
        page.add(Drawing::Line{rules, ruleColour, 0.5});
        return page;
    }

private:
    std::size_t rows() const { return part_.records.size(); }
    const Column& columnAt(std::size_t column) const {
        return *table_.columns()[static_cast<std::size_t>(part_.columns[column].column)].column;
    }

    QString wordsOf(const Cell& cell, int column) const {
        return part_.isAsOnScreen ? table_.onScreen(column, shownIn(cell)) : shownIn(cell);
    }

    double neededBy(const TablePart::Chosen& chosen) const {
        const Column& column = *table_.columns()[static_cast<std::size_t>(chosen.column)].column;
        const double broad = bold_.horizontalAdvance(u'W');
        double width = bold_.horizontalAdvance(column.title.text());
        for (std::size_t row = 0; row < rows(); ++row) {
            const Cell cell = table_.cell(part_.records, static_cast<int>(row), chosen.column);
            const QString& words = shownIn(cell);
            // Few texts are long enough to be worth measuring.
            if (static_cast<double>(words.size()) * broad > width) {
                width = std::max(width, (cell.style.bold ? bold_ : plain_).horizontalAdvance(words));
            }
        }
        return std::min(width, widest) + 2 * padding;
    }

    /// Sets the scale and the widths at which columns fill the page.
    void fitWidths() {
        constexpr double mostShrunk = 0.6;
        constexpr double mostWidened = 1.5;
        room_ = contentsSize(paper_, scale_);
        const double taken = std::accumulate(widths_.begin(), widths_.end(), 0.0);
        if (taken <= 0) {
            return;
        }
        const double fitting = room_.width() / taken;
        if (fitting >= 1) {
            for (double& width : widths_) {
                width *= std::min(mostWidened, fitting);
            }
        } else if (fitting >= mostShrunk) {
            scale_ *= fitting;
            room_ = contentsSize(paper_, scale_);
        }
    }

    // Boxes are in the page's points from its upper left corner, y growing downward.

    static void addRule(QPainterPath& rules, const Drawing& page, QPointF from, QPointF to) {
        rules.moveTo(from.x(), page.size().height() - from.y());
        rules.lineTo(to.x(), page.size().height() - to.y());
    }

    static void fill(Drawing& page, const QRectF& box, const QColor& colour) {
        QPainterPath ground;
        ground.addRect(box.left(), page.size().height() - box.bottom(), box.width(), box.height());
        page.add(Drawing::Area{ground, colour});
    }

    void drawText(Drawing& page, const QRectF& box, QString words, Qt::Alignment alignment, bool bold,
                  const QColor& colour) const {
        if (words.isEmpty()) {
            return;
        }
        // A row has one line.
        std::replace_if(
            words.begin(), words.end(), [](QChar each) { return each.isSpace(); }, QChar(u' '));
        const QRectF inside = box.adjusted(padding, 0, -padding, 0);
        const double x = alignment & Qt::AlignRight     ? inside.right()
                         : alignment & Qt::AlignHCenter ? inside.center().x()
                                                        : inside.left();
        page.add(Drawing::Text{{x, page.size().height() - box.center().y()},
                               (bold ? bold_ : plain_).elidedText(words, Qt::ElideRight, inside.width()),
                               colour,
                               fontSize,
                               alignment | Qt::AlignVCenter,
                               bold});
    }

    void drawHeading(Drawing& page, const QRectF& box, std::size_t column) const {
        fill(page, box, headGround);
        drawText(page, box, columnAt(column).title.text(), columnAt(column).alignment, true, Qt::black);
    }

    void drawCell(Drawing& page, const QRectF& box, int row, std::size_t column) const {
        const int place = part_.columns[column].column;
        const Cell cell = table_.cell(part_.records, row, place);
        const QString words = wordsOf(cell, place);
        if (cell.style.background) {
            fill(page, box, *cell.style.background);
        }
        QRectF rest = box;
        if (!cell.image.isEmpty()) {
            const bool isCentred = words.isEmpty() && columnAt(column).alignment & Qt::AlignHCenter;
            const QPointF corner(isCentred ? box.center().x() - iconSize / 2 : box.left() + padding,
                                 page.size().height() - box.center().y() - iconSize / 2);
            page.add(Drawing::Icon{corner, {iconSize, iconSize}, cell.image});
            rest.setLeft(corner.x() + iconSize);
        }
        drawText(page, rest, words, columnAt(column).alignment, cell.style.bold, cell.style.text.value_or(Qt::black));
    }

    BookTable table_;
    TablePart part_;
    Paper paper_;
    double scale_;
    QSizeF room_;
    QFontMetricsF plain_{drawingFont(fontSize)};
    QFontMetricsF bold_{drawingFont(fontSize, true)};
    double line_ = 0;             ///< the height of a row
    std::vector<double> widths_;  ///< of the part's columns
    std::vector<Run> columns_;    ///< of the pages beside each other
    std::size_t rowsPerPage_ = 1;
};

}  // namespace

TablePart wholeTable(const BookBase& book) {
    const BookTable table(book);
    TablePart part{book.records(), {}};
    for (int column = 0; column < static_cast<int>(table.columns().size()); ++column) {
        if (table.isShown(column)) {
            part.columns.push_back({column});
        }
    }
    return part;
}

Pages pagesOf(const BookBase& book, TablePart part, const Paper& paper) {
    const auto sheet = std::make_shared<const TableSheet>(book, std::move(part), paper);
    Pages pages = pagesFor(paper, sheet->pages());
    pages.page = [sheet](int number) { return sheet->page(number); };
    return pages;
}

}  // namespace tavrel
