#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <cstdio>
#include <unistd.h>

// Loaded before a program that uses widgets, ends it when its first window has been painted, and says how large that
// is. So a start can be timed without the program's help.

namespace {

class FirstPaint : public QObject {
protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* window = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::UpdateRequest && window && window->isWindow() && window->isVisible()) {
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
