#include "desktop/ui/progresswindow.h"

#include "support/printing.h"

#include <QAbstractButton>
#include <QApplication>

namespace tavrel {

namespace {

TEST(ProgressWindow, showsLongWorkAndCancels) {
    QWidget window;
    qint64 now = 1000;
    ProgressWindow work(&window, QStringLiteral("Working"), [&now] { return now; });
    const Progress progress = work.progress();
    now += 499;
    EXPECT_TRUE(progress(1, 100));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "quick work shows nothing";
    now += 1;
    EXPECT_TRUE(progress(10, 100));
    auto* shown = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->value() * 10, shown->maximum());
    now += 39;
    EXPECT_TRUE(progress(50, 100));
    EXPECT_EQ(shown->value() * 10, shown->maximum()) << "nobody reads that quickly";
    now += 1;
    EXPECT_TRUE(progress(50, 100));
    EXPECT_EQ(shown->value() * 2, shown->maximum());
    const auto buttons = shown->findChildren<QAbstractButton*>();
    ASSERT_EQ(buttons.size(), 1);
    buttons[0]->click();
    EXPECT_FALSE(progress(51, 100));
    EXPECT_TRUE(work.wasCancelled());
}

}  // namespace

}  // namespace tavrel
