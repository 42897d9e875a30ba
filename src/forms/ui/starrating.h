#pragma once

#include <QAbstractSlider>

namespace tavrel {

/// A rating by stars: the value is how many are filled. Chosen by a click on a star, one on the only filled star takes
/// it back, or by the arrow keys and digits. A value outside the range fills all stars or none, and stays.
class StarRating : public QAbstractSlider {
    Q_OBJECT

public:
    explicit StarRating(QWidget* parent = nullptr);

    /// Shows a value without telling anyone.
    void showValue(int value);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The user's choice.
    void chosen(int value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int side() const;
    void choose(int value);
};

}  // namespace tavrel
