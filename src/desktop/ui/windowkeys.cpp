#include "desktop/ui/windowkeys.h"

#include <QShortcut>
#include <QWidget>

namespace tavrel {

namespace {

void bind(QWidget& window, const QKeySequence& keys, const std::function<void()>& act) {
    QObject::connect(new QShortcut(keys, &window), &QShortcut::activated, &window, act);
}

}  // namespace

void addCloseKeys(QWidget& window) {
    for (const auto& keys : {QKeySequence(QKeySequence::Close), QKeySequence(Qt::Key_Escape)}) {
        bind(window, keys, [&window] { window.close(); });
    }
}

void addPageKeys(QWidget& window, int pages, const std::function<int()>& shown,
                 const std::function<void(int page)>& go) {
    const auto step = [&](const QKeySequence& keys, int by) {
        bind(window, keys, [pages, shown, go, by] { go((shown() - 1 + by + pages) % pages + 1); });
    };
    step(Qt::CTRL | Qt::Key_Tab, 1);
    step(Qt::CTRL | Qt::Key_PageDown, 1);
    // The toolkit reports Shift and Tab together as a key of its own.
    step(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1);
    step(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1);
    step(Qt::CTRL | Qt::Key_PageUp, -1);
}

}  // namespace tavrel
