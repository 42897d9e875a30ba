#pragma once

#include "drawing/drawing.h"

#include <QPixmap>
#include <QWidget>

#include <functional>

class QAction;
class QPainter;

namespace tavrel {

class DataTableWindow;

/// Shows a drawing as large as fits, with its title and description for screen readers. Its menu opens the data behind
/// it as a table, and copies them or the picture.
class DrawingView : public QWidget {
    Q_OBJECT

public:
    explicit DrawingView(QWidget* parent = nullptr);

    void setDrawing(Drawing drawing);
    const Drawing& drawing() const { return drawing_; }

    /// The point of the drawing that a place in the widget shows.
    QPointF pointAt(const QPointF& place) const { return drawing_.pointAt(place, rect()); }

    /// What its menu offers, to be hung into others too.
    QList<QAction*> commands() const { return actions(); }
    /// The data as a table in a window of its own, made when it is asked for first.
    void showData();
    void copyData() const;
    /// As an image twice the drawing's size.
    void copyPicture() const;
    DataTableWindow* dataWindow() const { return dataWindow_; }

    QSize sizeHint() const override { return drawing_.size().toSize(); }
    QSize minimumSizeHint() const override { return drawing_.size().toSize() / 3; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// Paints over the drawing, in the drawing's points with y growing upward.
    virtual void paintOver(QPainter& painter);

private:
    void addCommand(const char* name, const QString& title, std::function<void()> command);

    Drawing drawing_;
    QPixmap painted_;  ///< the drawing at the widget's size and sharpness; null when it is to be painted anew
    DataTableWindow* dataWindow_ = nullptr;
};

}  // namespace tavrel
