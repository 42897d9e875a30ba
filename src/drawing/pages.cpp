#include "drawing/pages.h"

#include "base/safefile.h"
#include "base/texts.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>
#include <array>

namespace tavrel {

namespace {

constexpr double pointsPerInch = 72;
constexpr double pixelsPerPoint = 2;
constexpr double leastPixelsPerPoint = 0.5;
constexpr double longestSide = 32000;  // pixels; the painter's coordinates end a little above

/// The pages one below the other.
QSizeF stackedSize(const Pages& pages) {
    return {pages.size.width(), pages.size.height() * pages.count};
}

void paintStacked(QPainter& painter, const Pages& pages) {
    for (int page = 0; page < pages.count; ++page) {
        painter.save();
        painter.translate(0, page * pages.size.height());
        pages.paint(painter, page);
        painter.restore();
    }
}

tl::unexpected<Failure> cannotMake() {
    return failure(text("Main", "Picture cannot be made"));
}

Expected<QByteArray> pngBytes(const Pages& pages) {
    const QSizeF size = stackedSize(pages);
    const double scale = std::min(pixelsPerPoint, longestSide / std::max(size.width(), size.height()));
    if (scale < leastPixelsPerPoint) {
        return failure(text("Main", "Drawing too long"));
    }
    QImage image((size * scale).toSize(), QImage::Format_RGB32);
    if (image.isNull()) {
        return cannotMake();
    }
    image.fill(Qt::white);
    const int dotsPerMetre = qRound(scale * pointsPerInch / 0.0254);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.setText(QStringLiteral("Title"), pages.title);
    image.setText(QStringLiteral("Description"), pages.description);
    QPainter painter(&image);
    painter.scale(scale, scale);
    paintStacked(painter, pages);
    painter.end();
    QBuffer file;
    if (!image.save(&file, "PNG")) {
        return cannotMake();
    }
    return file.data();
}

Expected<QByteArray> svgBytes(const Pages& pages) {
    QBuffer file;
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setResolution(static_cast<int>(pointsPerInch));
    const QSizeF size = stackedSize(pages);
    generator.setSize(QSize(qCeil(size.width()), qCeil(size.height())));
    generator.setViewBox(QRectF(QPointF(), size));
    // The generator writes both as they are.
    generator.setTitle(pages.title.toHtmlEscaped());
    generator.setDescription(pages.description.toHtmlEscaped());
    QPainter painter;
    if (!painter.begin(&generator)) {
        return cannotMake();
    }
    paintStacked(painter, pages);
    painter.end();
    return file.data();
}

Expected<QByteArray> pdfBytes(const Pages& pages) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setTitle(pages.title);
    writer.setCreator(QStringLiteral("Tavrel"));
    writer.setPageLayout(QPageLayout(QPageSize(pages.size, QPageSize::Point, QString(), QPageSize::ExactMatch),
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
        pages.paint(painter, page);
        painter.restore();
    }
    painter.end();
    return file.data();
}

}  // namespace

Pages pagesOf(const Drawing& drawing) {
    Pages pages;
    pages.size = drawing.size();
    pages.paint = [drawing](QPainter& painter, int) { drawing.paint(painter, QRectF(QPointF(), drawing.size())); };
    pages.title = drawing.title;
    pages.description = drawing.description;
    return pages;
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

Expected<QByteArray> pictureBytes(const Pages& pages, PictureFormat format) {
    switch (format) {
        case PictureFormat::svg:
            return svgBytes(pages);
        case PictureFormat::pdf:
            return pdfBytes(pages);
        case PictureFormat::png:
            break;
    }
    return pngBytes(pages);
}

Expected<void> writePicture(const QString& path, const Pages& pages) {
    const auto format = pictureFormatOf(path);
    if (!format) {
        return failure(textWith("Main", "Not a picture format", QFileInfo(path).fileName()));
    }
    return pictureBytes(pages, *format).and_then([&](const QByteArray& bytes) { return writeFile(path, bytes); });
}

}  // namespace tavrel
