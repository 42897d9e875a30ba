#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QWidget>

#include <cstdio>
#include <unistd.h>

// Loaded before a program that uses widgets, ends it when its first window has been painted, and says how large that
// is. So a start can be timed without the program's help. Dialogs do not count: one that shows progress is no start.

namespace {

class FirstPaint : public QObject {
protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* window = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::UpdateRequest && window && window->isWindow() && window->isVisible() &&
            !qobject_cast<QDialog*>(watched)) {
            // The event paints the window; what comes after it in the queue finds it painted.
            QMetaObject::invokeMethod(
                window,
                [window] {
                    std::printf("%d %d\n", window->width(), window->height());
                    std::fflush(stdout);
                    _exit(0);
                },
                Qt::QueuedConnection);
        }
        return false;
    }
};

void watch() {
    static FirstPaint filter;
    QCoreApplication::instance()->installEventFilter(&filter);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)
