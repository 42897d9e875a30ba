#include "desktop/ui/pagekeys.h"

#include <QShortcut>
#include <QWidget>

namespace tavrel {

void addPageKeys(QWidget& window, const std::function<void(int step)>& go) {
    const auto bind = [&](const QKeySequence& keys, int step) {
        QObject::connect(new QShortcut(keys, &window), &QShortcut::activated, &window, [go, step] { go(step); });
    };
    bind(Qt::CTRL | Qt::Key_Tab, 1);
    bind(Qt::CTRL | Qt::Key_PageDown, 1);
    // The toolkit reports Shift and Tab together as a key of its own.
    bind(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1);
    bind(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1);
    bind(Qt::CTRL | Qt::Key_PageUp, -1);
}

}  // namespace tavrel
