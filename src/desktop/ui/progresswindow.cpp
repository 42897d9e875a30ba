#include "desktop/ui/progresswindow.h"

#include "base/texts.h"

namespace tavrel {

namespace {

constexpr int steps = 1000;
constexpr int patience = 500;  // milliseconds without a window
constexpr int pace = 40;       // milliseconds between two looks at the user

}  // namespace

ProgressWindow::ProgressWindow(QWidget* parent, const QString& work) : parent_(parent), work_(work) {
    sinceStart_.start();
}

Progress ProgressWindow::progress() {
    return [this](std::size_t done, std::size_t total) { return goOn(done, total); };
}

bool ProgressWindow::goOn(std::size_t done, std::size_t total) {
    if (wasCancelled() || sinceStart_.elapsed() < patience || (dialog_ && sinceShown_.elapsed() < pace)) {
        return !wasCancelled();
    }
    if (!dialog_) {
        open();
    }
    const double share = total > 0 ? static_cast<double>(done) / static_cast<double>(total) : 0;
    dialog_->setValue(static_cast<int>(share * steps));
    sinceShown_.start();
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
