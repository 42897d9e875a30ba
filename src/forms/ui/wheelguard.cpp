#include "forms/ui/wheelguard.h"

#include <QEvent>
#include <QObject>
#include <QWidget>

namespace tavrel {

namespace {

class WheelGuard : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* widget = qobject_cast<const QWidget*>(watched);
        if (event->type() != QEvent::Wheel || !widget || widget->hasFocus()) {
            return false;
        }
        event->ignore();
        return true;
    }
};

}  // namespace

void guardAgainstWheel(QWidget* widget) {
    widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(new WheelGuard(widget));
}

}  // namespace tavrel
