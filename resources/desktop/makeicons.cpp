#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

/// tavrel-icons ICON SIZE TARGET [SIZE TARGET …]: writes an SVG icon as a PNG of each size, in pixels.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QSvgRenderer icon(arguments.value(1));
    if (!icon.isValid()) {
        std::fprintf(stderr, "%s is no SVG icon.\n", qPrintable(arguments.value(1)));
        return 1;
    }
    for (qsizetype place = 2; place + 1 < arguments.size(); place += 2) {
        const int size = arguments[place].toInt();
        QImage image(size, size, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        icon.render(&painter);
        painter.end();
        const QString& target = arguments[place + 1];
        if (!QDir().mkpath(QFileInfo(target).path()) || !image.save(target, "PNG")) {
            std::fprintf(stderr, "%s could not be written.\n", qPrintable(target));
            return 1;
        }
    }
    return 0;
}
