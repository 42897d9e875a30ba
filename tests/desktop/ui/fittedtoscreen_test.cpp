#include "desktop/ui/fittedtoscreen.h"

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

}  // namespace

}  // namespace tavrel
