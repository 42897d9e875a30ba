#include "documents/ui/messagebar.h"

#include "base/texts.h"

#include <utility>

namespace tavrel {

MessageBar::MessageBar(QWidget* parent) : QToolBar(parent), label_(new QLabel(this)) {
    setObjectName(QStringLiteral("messageBar"));
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    toggleViewAction()->setVisible(false);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    label_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    label_->setContentsMargins(8, 4, 8, 4);
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
    setVisible(!message.isEmpty());
}

}  // namespace tavrel
