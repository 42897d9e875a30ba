#include "desktop/ui/keptframe.h"

#include "desktop/preferences.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScreen>
#include <QWidget>

namespace tavrel {

KeptFrame::KeptFrame(QWidget& window, Preferences& preferences, const QString& name)
    : QObject(&window), window_(window), preferences_(preferences), name_(name) {
    window.restoreGeometry(preferences.windowState(name));
    window.resize(window.size().boundedTo(window.screen()->availableSize()));
    window.installEventFilter(this);
    // A window that is still open at the end is not hidden before it goes.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] {
        if (window_.isVisible()) {
            keep();
        }
    });
}

bool KeptFrame::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        keep();
    }
    return QObject::eventFilter(watched, event);
}

void KeptFrame::keep() {
    const QByteArray frame = window_.saveGeometry();
    if (frame != preferences_.windowState(name_)) {
        preferences_.setWindowState(name_, frame);
    }
}

}  // namespace tavrel
