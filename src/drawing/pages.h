#pragma once

#include "base/failure.h"
#include "base/safefile.h"
#include "desktop/printsettings.h"
#include "drawing/drawing.h"
#include "drawing/styledtext.h"

#include <QByteArray>
#include <QDate>
#include <QMarginsF>
#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QTextDocument;

namespace tavrel {

/// What contents are broken into pages for.
struct Paper {
    QSizeF size;             ///< of the sheet, points, turned as wanted
    PrintSettings settings;  ///< margins, scale and place of the contents
    QString title;           ///< stands below each page, beside the day and the page's number
    QDate day;
};

/// A4, turned as the settings say.
Paper usualPaper(const PrintSettings& settings, const QString& title, const QDate& day);

/// Something ready for a printer or for a picture's file: drawings of one size, one to a page. All that goes to paper,
/// from windows and from the command line, is painted from these. Making and painting them needs a QGuiApplication, for
/// its fonts.
struct Pages {
    QSizeF size;        ///< of the place that each page's drawing takes, points
    QMarginsF margins;  ///< around it, points
    int count = 1;
    std::function<Drawing(int page)> page;
    QString title;
    QString description;

    QSizeF paper() const { return size.grownBy(margins); }
};

/// One page, as large as the drawing.
Pages pagesOf(const Drawing& drawing);
/// One page of a paper, the drawing on it as large as it fits, a foot below.
Pages pagesOf(const Drawing& drawing, const Paper& paper);
/// A text broken into pages of a paper, a foot below each.
Pages pagesOf(const StyledText& text, const Paper& paper);

/// The space of a page's drawing for its contents: what the margins leave, at a scale, without the foot.
QSizeF contentsSize(const Paper& paper, double scale);
/// The drawing of a page with nothing in it but the foot: the title, the day, the page's number from 0. Contents go
/// into the contentsSize() at its top.
Drawing newPage(const Paper& paper, double scale, int number, int count);
/// Pages for the paper, their drawings still to be given.
Pages pagesFor(const Paper& paper, int count);

/// The text as a document of the toolkit, for windows and pages: its runs in their colours, broken at "\r" and "\n".
std::unique_ptr<QTextDocument> textDocumentOf(const StyledText& text);

enum class PictureFormat { png, svg, pdf };

/// By the ending of a file's name; nothing when it is another.
std::optional<PictureFormat> pictureFormatOf(const QString& path);
/// The bytes of a picture's file: of one page, and for PDF of all of them. A PNG has two pixels to the point.
Expected<QByteArray> pictureBytes(const Pages& pages, PictureFormat format, int page = 0);
/// The files of the pages in the format of the path's ending. A PDF holds them all; of PNG and SVG the second page goes
/// beside as NAME-2, and so on.
Expected<std::vector<FileContents>> pictureFiles(const QString& path, const Pages& pages);

}  // namespace tavrel
