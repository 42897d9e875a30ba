#include "forms/ui/picturebox.h"

#include "base/texts.h"
#include "forms/pictures.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

namespace tavrel {

namespace {

struct CopyControls : ControlTable<CopyControls> {
    const int copyGroup = group({1, literal("Copy")});
    const Id copyView = add({.name = "copyView", .kind = ControlKind::picture, .label = literal("Copy")});
};

struct PictureBox : testing::Test {
    PictureBox() {
        control = makeFormControl(state, 0, nullptr);
        control->widget()->setParent(&page);
        control->widget()->resize(400, 300);
        QObject::connect(&state, &FormStateBase::controlChanged, control.get(), &FormControl::show);
        page.show();
        control->show();
    }

    QWidget* view() { return control->widget()->findChild<QWidget*>(QStringLiteral("pictureView")); }
    QString message() { return control->widget()->findChild<QLabel*>(QStringLiteral("pictureMessage"))->text(); }
    QPushButton* button(const char* name) {
        return control->widget()->findChild<QPushButton*>(QString::fromUtf8(name));
    }
    const Image& held() { return state.at(0).image; }
    void drop(QMimeData* data) {
        // What was dragged is dropped only where it has entered.
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view(), &enter);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view(), &event);
    }
    static QImage painted() {
        QImage image(40, 30, QImage::Format_RGB32);
        image.fill(QColor(255, 0, 0));
        return image;
    }

    QTemporaryDir folder;
    QWidget page;
    CopyControls controls;
    FormState<CopyControls> state{controls};
    std::unique_ptr<FormControl> control;
};

TEST_F(PictureBox, showsThePicture) {
    EXPECT_FALSE(button("pictureExport")->isEnabled());
    const QColor middle = view()->grab().toImage().pixelColor(view()->rect().center());
    EXPECT_NE(middle, QColor(255, 0, 0));
    state.setImage(0, *pictureOf(painted()));
    EXPECT_EQ(view()->grab().toImage().pixelColor(view()->rect().center()), QColor(255, 0, 0));
    EXPECT_TRUE(button("pictureExport")->isEnabled());
    QCoreApplication::processEvents();
    EXPECT_EQ(view()->accessibleDescription(), u"Picture, 40 × 30 pixels");
}

TEST_F(PictureBox, takesWhatIsDroppedAndPasted) {
    int edits = 0;
    QObject::connect(&state, &FormStateBase::edited, &page, [&] { ++edits; });
    const QString path = folder.filePath(QStringLiteral("a.png"));
    ASSERT_TRUE(painted().save(path));
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(path)});
    drop(&files);
    EXPECT_EQ(edits, 1);
    EXPECT_EQ(pixelsOf(held())->size(), QSize(40, 30));

    QApplication::clipboard()->setImage(painted().scaled(7, 5));
    button("picturePaste")->click();
    EXPECT_EQ(edits, 2);
    EXPECT_EQ(pixelsOf(held())->size(), QSize(7, 5));
    QTest::keyClick(view(), Qt::Key_Delete);
    EXPECT_EQ(edits, 3);
    EXPECT_TRUE(held().isNull());
}

TEST_F(PictureBox, saysWhatCannotBeTakenOrShown) {
    state.setImage(0, *pictureOf(painted()));
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(folder.filePath(QStringLiteral("none.png")))});
    drop(&files);
    EXPECT_TRUE(message().contains(u"There is no such file.")) << message().toStdString();
    EXPECT_FALSE(control->widget()->hasHeightForWidth()) << "the message takes its room from the picture";
    EXPECT_EQ(pixelsOf(held())->size(), QSize(40, 30));
    QApplication::clipboard()->setText(QStringLiteral("words"));
    button("picturePaste")->click();
    EXPECT_EQ(message(), u"There is no picture.");

    state.setImage(0, {QByteArray("II*\0\xff\xff\xff\xff", 8), 1, 1, {}});
    view()->grab();
    QCoreApplication::processEvents();
    EXPECT_EQ(message(), u"The picture is damaged.");
    EXPECT_FALSE(button("pictureEnlarge")->isEnabled());
    EXPECT_TRUE(button("pictureExport")->isEnabled());
    state.setImage(0, {{}, 1, 1, "an object"});
    EXPECT_FALSE(button("pictureExport")->isEnabled());
    state.setImage(0, {});
    EXPECT_EQ(message(), u"");
}

}  // namespace

}  // namespace tavrel
