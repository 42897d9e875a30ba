#include "app/applicationwindows.h"

#include "base/texts.h"
#include "desktop/preferences.h"
#include "desktop/ui/keptframe.h"

#include <QCoreApplication>
#include <QEvent>
#include <QShortcut>
#include <QVBoxLayout>

namespace tavrel {

namespace {

constexpr Setting<QString> memo{"pense bete text"};

}  // namespace

MemoWindow::MemoWindow(Preferences& preferences) : preferences_(preferences), editor_(new QPlainTextEdit(this)) {
    setWindowTitle(text("Main", "Memo"));
    editor_->setPlainText(preferences.get(memo));
    editor_->setAccessibleName(windowTitle());
    editor_->setPlaceholderText(text("Main", "Memo hint"));
    editor_->setFrameShape(QFrame::NoFrame);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(editor_);
    resize(360, 280);
    new KeptFrame(*this, preferences, QStringLiteral("PenseBete"));
    new QShortcut(QKeySequence::Close, this, [this] { close(); });
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &MemoWindow::keep);
}

void MemoWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && !isActiveWindow()) {
        keep();
    }
    QWidget::changeEvent(event);
}

void MemoWindow::hideEvent(QHideEvent* event) {
    keep();
    QWidget::hideEvent(event);
}

void MemoWindow::keep() {
    if (editor_->document()->isModified()) {
        preferences_.set(memo, editor_->toPlainText());
        editor_->document()->setModified(false);
    }
}

}  // namespace tavrel
