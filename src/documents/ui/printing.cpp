#include "documents/ui/printing.h"

#include "base/texts.h"
#include "desktop/ui/progresswindow.h"

#include <QAbstractTextDocumentLayout>
#include <QDate>
#include <QFontInfo>
#include <QHeaderView>
#include <QLocale>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QTableView>
#include <QTextDocument>

#include <algorithm>
#include <functional>
#include <memory>
#include <numeric>
#include <optional>
#include <vector>

namespace tavrel {

namespace {

constexpr double pointsPerInch = 72;
constexpr int cellMargin = 3;  // screen pixels on each side of a cell's text

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

/// A sheet in the units of the screen, and how it is painted on the printer.
struct Sheet {
    Sheet(const QPrinter& printer, const QPaintDevice& screen, double scale) {
        // One pixel of the screen is so many points on paper at scale 1 that an inch there is an inch here.
        factor = scale * printer.resolution() / screen.logicalDpiX();
        const QRectF paintable = printer.pageLayout().paintRectPixels(printer.resolution());
        size = paintable.size() / factor;
    }

    double factor = 1;
    QSizeF size;
};

/// Paints the pages one after the other; says whether all of them were.
bool paintPages(QPrinter& printer, QWidget* window, const Sheet& sheet, int pages,
                const std::function<void(QPainter&, int page)>& paintPage) {
    QPainter painter;
    if (!painter.begin(&printer)) {
        return false;
    }
    ProgressWindow work(window, text("Main", "Printing"));
    const Progress progress = work.progress();
    for (int page = 0; page < pages; ++page) {
        const bool goesOn = progress(static_cast<std::size_t>(page), static_cast<std::size_t>(pages));
        if (!goesOn || (page > 0 && !printer.newPage())) {
            painter.end();
            printer.abort();
            return false;
        }
        painter.save();
        painter.scale(sheet.factor, sheet.factor);
        paintPage(painter, page);
        painter.restore();
    }
    return true;
}

/// Fonts on paper keep the height they have on the screen, whatever the printer's resolution.
QFont inPixels(QFont font) {
    font.setPixelSize(QFontInfo(font).pixelSize());
    return font;
}

/// The sheet of a table: smaller than the scale says where all columns then stand beside each other.
Sheet sheetFor(const QTableView& table, const QPrinter& printer, double scale) {
    constexpr double mostShrunk = 0.6;
    const Sheet sheet(printer, table, scale);
    // One pixel more, so that rounding leaves no column over.
    const double fitting = sheet.size.width() / (table.horizontalHeader()->length() + 1);
    return fitting >= 1 || fitting < mostShrunk ? sheet : Sheet(printer, table, scale * fitting);
}

/// A run of columns or rows that stands on one page: the first, and how many.
struct Run {
    int first = 0;
    int count = 0;
    int length = 0;
};

/// Breaks lengths into runs that fit; a length that is too long for a page has one of its own.
std::vector<Run> fittingRuns(const std::vector<int>& lengths, double available) {
    std::vector<Run> runs;
    for (std::size_t index = 0; index < lengths.size(); ++index) {
        if (runs.empty() || runs.back().length + lengths[index] > available) {
            runs.push_back({static_cast<int>(index)});
        }
        ++runs.back().count;
        runs.back().length += lengths[index];
    }
    return runs;
}

/// The room below the contents of a page for its title, day and number, in the units of the sheet.
int footHeight(const QFont& font) {
    return QFontMetrics(font).height() * 3 / 2;
}

void paintFoot(QPainter& painter, const QSizeF& sheet, const QFont& font, const QString& title, int page, int pages) {
    const int height = footHeight(font);
    const QRectF foot(0, sheet.height() - height, sheet.width(), height);
    const QString day = QLocale().toString(QDate::currentDate(), QLocale::ShortFormat);
    const QString number = textWith("Main", "Page number", page + 1, pages);
    const QString right = QStringLiteral("%1  ·  %2").arg(day, number);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom | Qt::TextSingleLine, right);
    const QFontMetrics metrics(font);
    const int room = static_cast<int>(sheet.width()) - metrics.horizontalAdvance(right) - 3 * cellMargin;
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine,
                     metrics.elidedText(title, Qt::ElideMiddle, room));
}

class TablePages {
public:
    TablePages(const QTableView& table, const Sheet& sheet, const PrintSettings& settings)
        : table_(table), model_(*table.model()), sheet_(sheet), settings_(settings), font_(inPixels(table.font())) {
        const QHeaderView& header = *table.horizontalHeader();
        for (int place = 0; place < header.count(); ++place) {
            const int column = header.logicalIndex(place);
            if (!header.isSectionHidden(column)) {
                columns_.push_back(column);
                widths_.push_back(header.sectionSize(column));
            }
        }
        spread(sheet.size.width());
        std::vector<int> heights;
        heights.reserve(static_cast<std::size_t>(model_.rowCount()));
        for (int row = 0; row < model_.rowCount(); ++row) {
            heights.push_back(table.rowHeight(row));
        }
        headerHeight_ = header.isHidden() ? header.sizeHint().height() : header.height();
        across_ = fittingRuns(widths_, sheet.size.width());
        down_ = fittingRuns(heights, sheet.size.height() - headerHeight_);
        if (down_.empty()) {
            down_.push_back({});
        }
    }

    int count() const { return static_cast<int>(across_.size() * down_.size()); }

    void paint(QPainter& painter, int page) const {
        const auto pagesAcross = static_cast<int>(across_.size());
        const Run& columns = across_[static_cast<std::size_t>(page % pagesAcross)];
        const Run& rows = down_[static_cast<std::size_t>(page / pagesAcross)];
        const double spareWidth = sheet_.size.width() - columns.length;
        const double spareHeight = sheet_.size.height() - headerHeight_ - rows.length;
        painter.translate(settings_.centredHorizontally ? qMax(0.0, spareWidth / 2) : 0.0,
                          settings_.centredVertically ? qMax(0.0, spareHeight / 2) : 0.0);
        paintRow(painter, columns, 0, headerHeight_,
                 [&](int column, const QRect& box) { paintHeader(painter, column, box); });
        int y = headerHeight_;
        for (int row = rows.first; row < rows.first + rows.count; ++row) {
            const int height = table_.rowHeight(row);
            paintRow(painter, columns, y, height,
                     [&](int column, const QRect& box) { paintCell(painter, model_.index(row, column), box); });
            y += height;
        }
    }

private:
    /// Widens columns that leave a part of the width free.
    void spread(double width) {
        constexpr double mostWidened = 1.5;
        const int taken = std::accumulate(widths_.begin(), widths_.end(), 0);
        if (taken > 0 && taken < width) {
            for (int& each : widths_) {
                each = static_cast<int>(each * std::min(mostWidened, width / taken));
            }
        }
    }

    void paintRow(QPainter& painter, const Run& columns, int y, int height,
                  const std::function<void(int column, const QRect& box)>& paintBox) const {
        int x = 0;
        for (int place = columns.first; place < columns.first + columns.count; ++place) {
            const int column = columns_[static_cast<std::size_t>(place)];
            const QRect box(x, y, widths_[static_cast<std::size_t>(place)], height);
            if (box.height() > 0) {
                paintBox(column, box);
                painter.setPen(QPen(Qt::lightGray, 0));
                painter.drawRect(box);
            }
            x += box.width();
        }
    }

    void paintHeader(QPainter& painter, int column, const QRect& box) const {
        painter.fillRect(box, QColor(0xe8, 0xe8, 0xe8));
        QFont bold = font_;
        bold.setBold(true);
        painter.setFont(bold);
        painter.setPen(Qt::black);
        drawText(painter, box, Qt::AlignCenter, model_.headerData(column, Qt::Horizontal).toString());
    }

    void paintCell(QPainter& painter, const QModelIndex& cell, const QRect& box) const {
        if (const QVariant background = cell.data(Qt::BackgroundRole); background.isValid()) {
            painter.fillRect(box, background.value<QBrush>());
        }
        const QVariant alignment = cell.data(Qt::TextAlignmentRole);
        const QVariant font = cell.data(Qt::FontRole);
        const QVariant foreground = cell.data(Qt::ForegroundRole);
        painter.setFont(font.isValid() ? inPixels(font.value<QFont>().resolve(table_.font())) : font_);
        painter.setPen(foreground.isValid() ? foreground.value<QBrush>().color() : QColor(Qt::black));
        QRect rest = box;
        if (const QVariant decoration = cell.data(Qt::DecorationRole); decoration.isValid()) {
            rest.setLeft(rest.left() + paintDecoration(painter, decoration, box));
        }
        drawText(painter, rest, alignment.isValid() ? alignment.toInt() : int(Qt::AlignLeft | Qt::AlignVCenter),
                 cell.data(Qt::DisplayRole).toString());
    }

    /// Paints the image of a cell at its left; the width it took.
    static int paintDecoration(QPainter& painter, const QVariant& decoration, const QRect& box) {
        const int side = qMin(box.height() - 2, 16);
        const QRect place(box.left() + cellMargin, box.top() + (box.height() - side) / 2, side, side);
        if (decoration.typeId() == QMetaType::QColor) {
            painter.fillRect(place, decoration.value<QColor>());
        } else if (decoration.typeId() == QMetaType::QIcon) {
            decoration.value<QIcon>().paint(&painter, place);
        } else {
            painter.drawPixmap(place, decoration.value<QPixmap>());
        }
        return side + cellMargin;
    }

    static void drawText(QPainter& painter, const QRect& box, int alignment, const QString& words) {
        const QRect inner = box.adjusted(cellMargin, 0, -cellMargin, 0);
        const QString fitting = painter.fontMetrics().elidedText(words, Qt::ElideRight, inner.width());
        painter.drawText(inner, alignment | Qt::TextSingleLine, fitting);
    }

    const QTableView& table_;
    const QAbstractItemModel& model_;
    Sheet sheet_;
    PrintSettings settings_;
    QFont font_;
    std::vector<int> columns_;
    std::vector<int> widths_;  ///< of columns_, as printed
    int headerHeight_ = 0;
    std::vector<Run> across_;
    std::vector<Run> down_;
};

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

bool printTable(QPrinter& printer, const QTableView& table, const PrintSettings& settings, const QString& title) {
    printer.setDocName(title);
    const Sheet sheet = sheetFor(table, printer, settings.scale);
    const QFont font = inPixels(table.font());
    Sheet contents = sheet;
    contents.size.rheight() -= footHeight(font);
    const TablePages pages(table, contents, settings);
    return paintPages(printer, table.window(), sheet, pages.count(), [&](QPainter& painter, int page) {
        paintFoot(painter, sheet.size, font, title, page, pages.count());
        pages.paint(painter, page);
    });
}

bool printText(QPrinter& printer, const QTextDocument& text, const PrintSettings& settings, const QString& title) {
    printer.setDocName(title);
    const std::unique_ptr<QTextDocument> laidOut(text.clone());
    QWidget screen;
    const Sheet sheet(printer, screen, settings.scale);
    laidOut->documentLayout()->setPaintDevice(&screen);
    laidOut->setDocumentMargin(0);
    const QFont font = inPixels(text.defaultFont());
    const QSizeF contents(sheet.size.width(), sheet.size.height() - footHeight(font));
    laidOut->setPageSize(contents);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    return paintPages(printer, nullptr, sheet, laidOut->pageCount(), [&](QPainter& painter, int page) {
        paintFoot(painter, sheet.size, font, title, page, laidOut->pageCount());
        const QRectF part(QPointF(0, page * contents.height()), contents);
        painter.translate(0, -part.top());
        painter.setClipRect(part);
        context.clip = part;
        laidOut->documentLayout()->draw(&painter, context);
    });
}

bool runPrintDialog(QWidget* parent, const PrintSettings& settings, QPrinter& printer) {
    applyPrintSettings(printer, settings);
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowModality(Qt::WindowModal);
    return dialog.exec() == QDialog::Accepted;
}

void runPrintPreview(QWidget* parent, const PrintSettings& settings, const std::function<void(QPrinter&)>& print) {
    QPrinter printer;
    applyPrintSettings(printer, settings);
    QPrintPreviewDialog dialog(&printer, parent);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setWindowTitle(text("Main", "Print preview title"));
    dialog.resize(parent->size().expandedTo(QSize(720, 560)));
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, parent,
                     [&print](QPrinter* paper) { print(*paper); });
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
