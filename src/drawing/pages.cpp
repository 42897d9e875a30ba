#include "drawing/pages.h"

#include "base/texts.h"
#include "drawing/drawingfont.h"

#include <QBuffer>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QImage>
#include <QLocale>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <QTransform>

#include <algorithm>
#include <array>
#include <utility>
#include <variant>

namespace tavrel {

namespace {

constexpr double pointsPerInch = 72;
constexpr double pixelsPerPoint = 2;
constexpr double footSize = 10;    // of its font, points of the page's drawing
constexpr double footHeight = 20;  // of the foot with the space above it
constexpr double leastSide = 10;   // of a page that its margins leave nothing of

QMarginsF marginsOf(const PrintSettings& settings) {
    return {settings.left, settings.top, settings.right, settings.bottom};
}

/// What the margins leave of the paper.
QSizeF roomOn(const Paper& paper) {
    return paper.size.shrunkBy(marginsOf(paper.settings)).expandedTo(QSizeF(leastSide, leastSide));
}

void paintPage(QPainter& painter, const Pages& pages, int page) {
    pages.page(page).paint(painter, QRectF(QPointF(pages.margins.left(), pages.margins.top()), pages.size));
}

tl::unexpected<Failure> cannotMake() {
    return failure(text("Main", "Picture cannot be made"));
}

Expected<QByteArray> pngBytes(const Pages& pages, int page) {
    QImage image((pages.paper() * pixelsPerPoint).toSize(), QImage::Format_RGB32);
    if (image.isNull()) {
        return cannotMake();
    }
    image.fill(Qt::white);
    const int dotsPerMetre = qRound(pixelsPerPoint * pointsPerInch / 0.0254);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.setText(QStringLiteral("Title"), pages.title);
    image.setText(QStringLiteral("Description"), pages.description);
    QPainter painter(&image);
    painter.scale(pixelsPerPoint, pixelsPerPoint);
    paintPage(painter, pages, page);
    painter.end();
    QBuffer file;
    if (!image.save(&file, "PNG")) {
        return cannotMake();
    }
    return file.data();
}

Expected<QByteArray> svgBytes(const Pages& pages, int page) {
    QBuffer file;
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setResolution(static_cast<int>(pointsPerInch));
    const QSizeF size = pages.paper();
    generator.setSize(QSize(qCeil(size.width()), qCeil(size.height())));
    generator.setViewBox(QRectF(QPointF(), size));
    // The generator writes both as they are.
    generator.setTitle(pages.title.toHtmlEscaped());
    generator.setDescription(pages.description.toHtmlEscaped());
    QPainter painter;
    if (!painter.begin(&generator)) {
        return cannotMake();
    }
    paintPage(painter, pages, page);
    painter.end();
    return file.data();
}

Expected<QByteArray> pdfBytes(const Pages& pages) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setTitle(pages.title);
    writer.setCreator(QStringLiteral("Tavrel"));
    writer.setPageLayout(QPageLayout(QPageSize(pages.paper(), QPageSize::Point, QString(), QPageSize::ExactMatch),
                                     QPageLayout::Portrait, QMarginsF()));
    QPainter painter;
    if (!painter.begin(&writer)) {
        return cannotMake();
    }
    const double scale = writer.logicalDpiX() / pointsPerInch;
    for (int page = 0; page < pages.count; ++page) {
        if (page > 0 && !writer.newPage()) {
            return cannotMake();
        }
        painter.save();
        painter.scale(scale, scale);
        paintPage(painter, pages, page);
        painter.restore();
    }
    painter.end();
    return file.data();
}

/// A drawing's primitive elsewhere.
Drawing::Primitive moved(Drawing::Primitive primitive, QPointF by) {
    if (auto* area = std::get_if<Drawing::Area>(&primitive)) {
        area->path.translate(by);
        area->brush.setTransform(area->brush.transform() * QTransform::fromTranslate(by.x(), by.y()));
    } else if (auto* line = std::get_if<Drawing::Line>(&primitive)) {
        line->path.translate(by);
    } else if (auto* label = std::get_if<Drawing::Text>(&primitive)) {
        label->at += by;
    } else {
        std::get<Drawing::Icon>(primitive).at += by;
    }
    return primitive;
}

/// NAME.png, NAME-2.png …
QString nameOfPage(const QString& path, int page) {
    if (page == 0) {
        return path;
    }
    const auto ending = path.lastIndexOf(u'.');
    return QStringLiteral("%1-%2%3").arg(path.left(ending)).arg(page + 1).arg(path.mid(ending));
}

}  // namespace

Paper usualPaper(const PrintSettings& settings, const QString& title, const QDate& day) {
    const QSizeF upright = QPageSize(QPageSize::A4).size(QPageSize::Point);
    return {settings.landscape ? upright.transposed() : upright, settings, title, day};
}

Pages pagesOf(const Drawing& drawing) {
    Pages pages;
    pages.size = drawing.size();
    pages.page = [drawing](int) { return drawing; };
    pages.title = drawing.title;
    pages.description = drawing.description;
    return pages;
}

Pages pagesOf(const Drawing& drawing, const Paper& paper) {
    const QSizeF needed = drawing.size() + QSizeF(0, footHeight);
    const QSizeF room = roomOn(paper);
    const double scale = std::min(room.width() / needed.width(), room.height() / needed.height());
    Pages pages = pagesFor(paper, 1);
    pages.description = drawing.description;
    pages.page = [drawing, paper, scale](int number) {
        Drawing page = newPage(paper, scale, number, 1);
        const QSizeF beside = page.size() - drawing.size();
        for (const Drawing::Primitive& each : drawing.primitives()) {
            page.add(moved(each, {beside.width() / 2, beside.height()}));
        }
        return page;
    };
    return pages;
}

Pages pagesFor(const Paper& paper, int count) {
    return {roomOn(paper), marginsOf(paper.settings), count, {}, paper.title, {}};
}

QSizeF contentsSize(const Paper& paper, double scale) {
    const QSizeF space = roomOn(paper) / scale;
    return {space.width(), qMax(leastSide, space.height() - footHeight)};
}

Drawing newPage(const Paper& paper, double scale, int number, int count) {
    Drawing page(roomOn(paper) / scale);
    const QString day = QLocale().toString(paper.day, QLocale::ShortFormat);
    const QString right = QStringLiteral("%1  ·  %2").arg(day, textWith("Main", "Page of pages", number + 1, count));
    const QFontMetricsF metrics(drawingFont(footSize));
    const double room = page.size().width() - metrics.horizontalAdvance(right) - footSize;
    page.add(Drawing::Text{{0, 0}, metrics.elidedText(paper.title, Qt::ElideMiddle, room), Qt::black, footSize});
    page.add(Drawing::Text{{page.size().width(), 0}, right, Qt::black, footSize, Qt::AlignRight | Qt::AlignBottom});
    return page;
}

std::optional<PictureFormat> pictureFormatOf(const QString& path) {
    static constexpr std::array<std::pair<const char*, PictureFormat>, 3> formats{
        {{"png", PictureFormat::png}, {"svg", PictureFormat::svg}, {"pdf", PictureFormat::pdf}}};
    const QString ending = QFileInfo(path).suffix().toLower();
    for (const auto& [name, format] : formats) {
        if (ending == QLatin1StringView(name)) {
            return format;
        }
    }
    return std::nullopt;
}

Expected<QByteArray> pictureBytes(const Pages& pages, PictureFormat format, int page) {
    switch (format) {
        case PictureFormat::svg:
            return svgBytes(pages, page);
        case PictureFormat::pdf:
            return pdfBytes(pages);
        case PictureFormat::png:
            break;
    }
    return pngBytes(pages, page);
}

Expected<std::vector<FileContents>> pictureFiles(const QString& path, const Pages& pages) {
    const auto format = pictureFormatOf(path);
    if (!format) {
        return failure(textWith("Main", "Not a picture format", QFileInfo(path).fileName()));
    }
    std::vector<FileContents> files;
    const int count = *format == PictureFormat::pdf ? 1 : pages.count;
    for (int file = 0; file < count; ++file) {
        auto bytes = pictureBytes(pages, *format, file);
        if (!bytes) {
            return tl::unexpected(bytes.error());
        }
        files.push_back({nameOfPage(path, file), std::move(*bytes)});
    }
    return files;
}

}  // namespace tavrel
