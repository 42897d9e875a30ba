#include "drawing/ui/drawingview.h"

#include "drawing/ui/datatablewindow.h"

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QTableView>
#include <gtest/gtest.h>

namespace tavrel {

namespace {

/// 40 x 20 points, red below and white above.
Drawing halves(const QColor& colour) {
    Drawing drawing(QSizeF(40, 20));
    QPainterPath below;
    below.addRect(0, 0, 40, 10);
    drawing.add(Drawing::Area{below, colour});
    drawing.title = QStringLiteral("Halves");
    drawing.description = QStringLiteral("Two halves");
    drawing.table = {{QStringLiteral("n"), QStringLiteral("square")}, 3, [](int row, int column) {
                         return QString::number(column == 0 ? row : row * row);
                     }};
    return drawing;
}

TEST(DrawingView, showsItsDrawingAndFollowsChanges) {
    DrawingView view;
    view.grab();  // nothing to show yet
    view.setDrawing(halves(Qt::red));
    view.resize(80, 80);
    EXPECT_EQ(view.sizeHint(), QSize(40, 20));
    const QImage shown = view.grab().toImage();
    EXPECT_EQ(shown.pixelColor(40, 50), QColor(Qt::red));
    EXPECT_NE(shown.pixelColor(40, 30), QColor(Qt::red));
    EXPECT_EQ(view.pointAt({80, 20}), QPointF(40, 20));

    view.setDrawing(halves(Qt::blue));
    EXPECT_EQ(view.grab().toImage().pixelColor(40, 50), QColor(Qt::blue));

    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(told->text(QAccessible::Name), u"Halves");
    EXPECT_EQ(told->text(QAccessible::Description), u"Two halves");
}

TEST(DrawingView, handsOutItsDataAndPicture) {
    DrawingView view;
    view.setDrawing(halves(Qt::red));
    view.findChild<QAction*>(QStringLiteral("copyData"))->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"n\tsquare\n0\t0\n1\t1\n2\t4\n");
    view.findChild<QAction*>(QStringLiteral("copyPicture"))->trigger();
    const QImage picture = QGuiApplication::clipboard()->image();
    EXPECT_EQ(picture.size(), QSize(80, 40));
    EXPECT_EQ(picture.pixelColor(40, 30), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(40, 10), QColor(Qt::white));

    view.findChild<QAction*>(QStringLiteral("showData"))->trigger();
    ASSERT_TRUE(view.dataWindow());
    QTableView& table = view.dataWindow()->table();
    EXPECT_EQ(table.model()->index(2, 1).data().toString(), u"4");
    view.dataWindow()->copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text().count(u'\n'), 4);
    table.selectRow(2);
    view.dataWindow()->copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"n\tsquare\n2\t4\n");
    // The open table follows the drawing.
    Drawing other = halves(Qt::red);
    other.table.rows = 1;
    view.setDrawing(other);
    EXPECT_EQ(table.model()->rowCount(), 1);
}

}  // namespace

}  // namespace tavrel
