#pragma once

#include "base/failure.h"
#include "desktop/printsettings.h"
#include "drawing/drawing.h"
#include "drawing/styledtext.h"

#include <QByteArray>
#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QPainter;
class QTextDocument;

namespace tavrel {

/// Something ready for paper or for a picture's file: pages of one size, in points, the origin of each at its upper
/// left corner. Making and painting them needs a QGuiApplication, for its fonts.
struct Pages {
    QSizeF size;
    int count = 1;
    std::function<void(QPainter& painter, int page)> paint;
    QString title;
    QString description;
};

/// One page, as large as the drawing.
Pages pagesOf(const Drawing& drawing);
/// A text broken into pages of a paper, with the margins and the scale of the settings, and below them the page's
/// number where there are several. The paper's size, in points, is that of the orientation wanted.
Pages pagesOf(const StyledText& text, const QSizeF& paper, const PrintSettings& settings, const QString& title);
/// A4 in points, turned as the settings say.
QSizeF usualPaper(const PrintSettings& settings);

/// The text as a document of the toolkit, for windows and pages: its runs in their colours, broken at "\r" and "\n".
std::unique_ptr<QTextDocument> textDocumentOf(const StyledText& text);

enum class PictureFormat { png, svg, pdf };

/// By the ending of a file's name; nothing when it is another.
std::optional<PictureFormat> pictureFormatOf(const QString& path);
/// The bytes of a picture's file. PDF keeps the pages apart; the others show them one below the other. A PNG has two
/// pixels to the point, fewer when it would grow too large.
Expected<QByteArray> pictureBytes(const Pages& pages, PictureFormat format);
/// Writes the file in the format of its ending, whole or not at all.
Expected<void> writePicture(const QString& path, const Pages& pages);

}  // namespace tavrel
