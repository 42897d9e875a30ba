#include "documents/ui/messagebar.h"

#include "base/texts.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace tavrel {

MessageBar::MessageBar(QWidget* parent) : QToolBar(parent), label_(new QLabel(this)) {
    setObjectName(QStringLiteral("messageBar"));
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    toggleViewAction()->setVisible(false);
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    label_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    label_->setContentsMargins(8, 4, 8, 4);
    label_->installEventFilter(this);
    addWidget(label_);
    // Hidden until a message brings a command with its own words.
    command_ = addAction(text("Main", "Dismiss"), this, [this] {
        hide();
        if (run_) {
            run_();
        }
    });
    command_->setObjectName(QStringLiteral("messageCommand"));
    addAction(text("Main", "Dismiss"), this, &QWidget::hide)->setObjectName(QStringLiteral("dismissMessage"));
    hide();
}

void MessageBar::tell(const QString& message, const QString& command, std::function<void()> run) {
    label_->setText(message);
    if (!command.isEmpty()) {
        command_->setText(command);
    }
    command_->setVisible(!command.isEmpty());
    run_ = std::move(run);
    fitHeight();
    setVisible(!message.isEmpty());
}

bool MessageBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == label_ && event->type() == QEvent::Resize) {
        fitHeight();
    }
    return QToolBar::eventFilter(watched, event);
}

void MessageBar::fitHeight() {
    // A tool bar asks no item for its height at a width, and keeps room for the most lines that the text might take.
    label_->setMaximumHeight(std::max(0, label_->heightForWidth(label_->width())));
}

void MessageBar::paintEvent(QPaintEvent*) {
    // Not as the style paints the bars of tools: told apart from them by a touch of the palette's highlight.
    constexpr int touch = 48;
    QColor colour = palette().color(QPalette::Highlight);
    colour.setAlpha(touch);
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.fillRect(rect(), colour);
}

}  // namespace tavrel
