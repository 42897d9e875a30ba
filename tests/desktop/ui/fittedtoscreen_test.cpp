#include "desktop/ui/fittedtoscreen.h"

#include "desktop/ui/readablecolour.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace tavrel {

namespace {

TEST(FittedToScreen, scrollsOnlyWhatIsLargerThanTheScreen) {
    for (const int height : {100, 3000}) {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* contents = new QLabel(QStringLiteral("words"));
        contents->setMinimumSize(50, height);
        layout->addWidget(contents);
        fitToScreen(window);
        window.show();
        const int room = window.screen()->availableSize().height();
        EXPECT_LE(window.height(), room);
        EXPECT_GE(contents->height(), height);
        EXPECT_TRUE(window.isAncestorOf(contents));
        EXPECT_EQ(window.findChild<QScrollArea*>() != nullptr, height > room);
    }
}

TEST(Placeholders, areReadOnAnyBase) {
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Base, QColor(35, 38, 41));
    dark.setColor(QPalette::Text, QColor(252, 252, 252));
    dark.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    keepPlaceholdersReadable();
    QApplication::setPalette(dark);
    EXPECT_EQ(QApplication::palette().color(QPalette::PlaceholderText).lightness(), 252);
    EXPECT_EQ(QApplication::palette().color(QPalette::PlaceholderText).alpha(), 128);
    QApplication::setPalette(before);
}

}  // namespace

}  // namespace tavrel
