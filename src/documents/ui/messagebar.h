#pragma once

#include <QLabel>
#include <QToolBar>

#include <functional>

namespace tavrel {

/// A line at the top of a window that tells something which needs no answer at once, with what can be done about it and
/// a button that puts it away. Hidden while there is nothing to tell.
class MessageBar : public QToolBar {
    Q_OBJECT

public:
    explicit MessageBar(QWidget* parent);

    /// Tells this in the place of what was told; without a command's title there is only the button to put it away.
    void tell(const QString& message, const QString& command = {}, std::function<void()> run = {});
    QString message() const { return isHidden() ? QString() : label_->text(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fitHeight();

    QLabel* label_;
    QAction* command_;
    std::function<void()> run_;
};

}  // namespace tavrel
