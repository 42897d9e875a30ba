#pragma once

#include <QColor>
#include <QToolButton>

#include <functional>
#include <optional>

namespace tavrel {

/// A button that shows a colour and lets the user choose another.
class ColorWell : public QToolButton {
    Q_OBJECT

public:
    /// Asks for a colour, starting from one; nothing on cancel.
    using Chooser = std::function<std::optional<QColor>(QWidget* parent, const QColor& start)>;

    explicit ColorWell(QWidget* parent);

    const QColor& color() const { return color_; }
    void setColor(const QColor& color);
    /// Another way to choose than the colour dialog (tests).
    void setChooser(Chooser chooser) { chooser_ = std::move(chooser); }

Q_SIGNALS:
    /// The user chose another colour.
    void colorChosen();

protected:
    void changeEvent(QEvent* event) override;

private:
    void choose();
    void showColor();

    QColor color_;
    Chooser chooser_;
};

}  // namespace tavrel
