#include "desktop/ui/progresswindow.h"

#include "base/texts.h"

#include <QElapsedTimer>

#include <utility>

namespace tavrel {

namespace {

constexpr int steps = 1000;
constexpr int patience = 500;  // milliseconds without a window
constexpr int pace = 40;       // milliseconds between two looks at the user

QElapsedTimer startedTimer() {
    QElapsedTimer timer;
    timer.start();
    return timer;
}

}  // namespace

ProgressWindow::ProgressWindow(QWidget* parent, const QString& work)
    : ProgressWindow(parent, work, [time = startedTimer()] { return time.elapsed(); }) {}

ProgressWindow::ProgressWindow(QWidget* parent, const QString& work, Milliseconds clock)
    : parent_(parent), work_(work), clock_(std::move(clock)), nextLook_(clock_() + patience) {}

Progress ProgressWindow::progress() {
    return [this](std::size_t done, std::size_t total) { return goOn(done, total); };
}

bool ProgressWindow::goOn(std::size_t done, std::size_t total) {
    if (wasCancelled() || clock_() < nextLook_) {
        return !wasCancelled();
    }
    if (!dialog_) {
        open();
    }
    const double share = total > 0 ? static_cast<double>(done) / static_cast<double>(total) : 0;
    dialog_->setValue(static_cast<int>(share * steps));
    nextLook_ = clock_() + pace;
    return !wasCancelled();
}

void ProgressWindow::open() {
    dialog_ = std::make_unique<QProgressDialog>(work_, text("Main", "Cancel"), 0, steps, parent_);
    dialog_->setWindowModality(Qt::ApplicationModal);
    dialog_->setMinimumDuration(0);
    dialog_->setAutoReset(false);
    dialog_->setAutoClose(false);
}

}  // namespace tavrel
