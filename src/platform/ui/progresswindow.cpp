#include "platform/ui/progresswindow.h"

#include "platform/texts.h"

#include <algorithm>

namespace tavrel {

namespace {

constexpr int steps = 1000;
constexpr int patience = 500;  // milliseconds

}  // namespace

ProgressWindow::ProgressWindow(QWidget* parent, const QString& work)
    : dialog_(work, text("Main", "Cancel"), 0, steps, parent) {
    dialog_.setWindowModality(Qt::ApplicationModal);
    dialog_.setMinimumDuration(patience);
    dialog_.setAutoReset(false);
    dialog_.setAutoClose(false);
    dialog_.setValue(0);
}

Progress ProgressWindow::progress() {
    return [this](std::size_t done, std::size_t total) {
        // Below its end, which would end the wait for a slow start too.
        const std::size_t share = total > 0 ? done * steps / total : 0;
        dialog_.setValue(static_cast<int>(std::min<std::size_t>(share, steps - 1)));
        return !dialog_.wasCanceled();
    };
}

}  // namespace tavrel
