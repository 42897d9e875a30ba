#pragma once

#include "records/image.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>

class QMimeData;

namespace tavrel {

/// Shows a picture, read when it is first painted, or the placeholder where there is none to show.
class PictureView : public QWidget {
    Q_OBJECT

public:
    explicit PictureView(QWidget* parent = nullptr);

    void showPicture(const Image& picture);
    const Image& picture() const { return picture_; }
    /// The pixels of the picture; null when it has none to show.
    const QImage& pixels() const;
    /// Why the picture is not shown; empty when it is, or when there is none.
    const QString& fault() const;

    QSize sizeHint() const override { return {360, 260}; }
    QSize minimumSizeHint() const override { return {160, 120}; }

    /// Whether dropped or pasted data may hold a picture.
    static bool mayHoldPicture(const QMimeData* data);

Q_SIGNALS:
    void offered(const QMimeData* data);
    void enlargeRequested();
    void copyRequested();
    void pasteRequested();
    void removeRequested();
    void faultChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void read() const;

    Image picture_;
    mutable bool isRead_ = true;
    mutable QImage pixels_;
    mutable QString fault_;
    QPixmap scaled_;
};

}  // namespace tavrel
