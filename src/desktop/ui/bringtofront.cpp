#include "desktop/ui/bringtofront.h"

#include <QWidget>

namespace tavrel {

void bringToFront(QWidget* window) {
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

}  // namespace tavrel
