#include "app/appdelegate.h"

#include "base/texts.h"
#include "desktop/notificationcentre.h"
#include "desktop/ui/bringtofront.h"

#include <QApplication>
#include <QMessageBox>

namespace tavrel {

QWidget* AppDelegate::showEditor(const PickListEditorDescription& editor) {
    if (editor.reloads) {
        desktop_.pickLists.reload(editor.first.list);
    }
    auto& window = editors_[&editor];
    if (!window) {
        window = std::make_unique<PickListWindow>(desktop_, editor, usage_);
    }
    bringToFront(window.get());
    return window.get();
}

void AppDelegate::sendRenumDivesNotification() {
    desktop_.notifications.post(Notification::renumDives);
}

void AppDelegate::showAbout(QWidget* parent) {
    auto* about = new QMessageBox(parent);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->setWindowTitle(text("Main", "About title"));
    about->setIconPixmap(QApplication::windowIcon().pixmap(64));
    about->setTextFormat(Qt::RichText);
    // The sentence would otherwise be broken to the width of the name.
    about->setText(QStringLiteral("<h3>%1 %2</h3><p style=\"white-space: nowrap\">%3</p>")
                       .arg(QApplication::applicationDisplayName(), QApplication::applicationVersion(),
                            text("Main", "About text").toHtmlEscaped()));
    about->addButton(QMessageBox::Ok);
    about->open();
}

}  // namespace tavrel
