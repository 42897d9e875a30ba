#include "desktop/ui/dialogalerts.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace tavrel {

namespace {

/// Does something with the next message box once it is open.
void withNextBox(const std::function<void(QMessageBox&)>& act) {
    QTimer::singleShot(0, qApp, [act] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        act(*box);
    });
}

TEST(DialogAlerts, answerWithTheButtonChosen) {
    DialogAlerts alerts;
    const QStringList buttons{QStringLiteral("Save"), QStringLiteral("Don’t Save"), QStringLiteral("Cancel")};
    const auto askAndPress = [&](int key) {
        withNextBox([&](QMessageBox& box) {
            QStringList titles;
            for (const QAbstractButton* button : box.buttons()) {
                titles.append(button->text());
            }
            EXPECT_EQ(QSet(titles.begin(), titles.end()), QSet(buttons.begin(), buttons.end()));
            EXPECT_EQ(box.text(), u"<b>50 %</b>");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            QTest::keyClick(&box, static_cast<Qt::Key>(key));
        });
        return alerts.ask(QStringLiteral("<b>50 %</b>"), buttons);
    };
    EXPECT_EQ(askAndPress(Qt::Key_Return), 0);
    EXPECT_EQ(askAndPress(Qt::Key_Escape), 2);
    withNextBox([](QMessageBox& box) { box.buttons()[1]->click(); });
    EXPECT_EQ(alerts.ask(QStringLiteral("?"), {QStringLiteral("Yes"), QStringLiteral("No")}), 1);
    withNextBox([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(alerts.ask(QStringLiteral("?"), {QStringLiteral("OK"), QStringLiteral("Cancel")}), 1);
}

TEST(DialogAlerts, tellFailuresWithTheirDetail) {
    DialogAlerts alerts;
    QWidget window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    withNextBox([&](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), u"It failed.");
        EXPECT_EQ(box.text(), u"It failed.\nBadly.");
        EXPECT_EQ(box.informativeText(), u"at byte 12");
        EXPECT_EQ(box.parentWidget(), &window);
        EXPECT_EQ(box.windowModality(), Qt::ApplicationModal) << "a form is a window beside its table";
        box.close();
    });
    alerts.fail({QStringLiteral("It failed.\nBadly."), QStringLiteral("at byte 12")});
}

TEST(DialogAlerts, takeNothingForMarkup) {
    DialogAlerts alerts;
    withNextBox([](QMessageBox& box) {
        int texts = 0;
        for (const QLabel* label : box.findChildren<QLabel*>()) {
            if (label->text().contains(u"<a ")) {
                ++texts;
                EXPECT_EQ(label->textFormat(), Qt::PlainText);
                EXPECT_TRUE(label->text().endsWith(u"\u2407\uFFFD")) << label->text().toStdString();
            }
        }
        EXPECT_EQ(texts, 2);
        box.close();
    });
    alerts.fail({QStringLiteral("<a href='x'>1</a>\a\u202E"), QStringLiteral("<a href='x'>2</a>\a\u202E")});
}

}  // namespace

}  // namespace tavrel
