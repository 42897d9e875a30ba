#pragma once

#include "base/progress.h"

#include <QElapsedTimer>
#include <QProgressDialog>

#include <memory>

namespace tavrel {

/// Shows how far a piece of work is and offers to cancel it, once the work has taken half a second; quicker work costs
/// nothing. While it shows nothing else in the application can be used.
class ProgressWindow {
public:
    ProgressWindow(QWidget* parent, const QString& work);

    /// What the work is to tell; valid while the window lives.
    Progress progress();
    bool wasCancelled() const { return dialog_ && dialog_->wasCanceled(); }

private:
    bool goOn(std::size_t done, std::size_t total);
    void open();

    QWidget* parent_;
    QString work_;
    QElapsedTimer sinceStart_;
    QElapsedTimer sinceShown_;
    std::unique_ptr<QProgressDialog> dialog_;
};

}  // namespace tavrel
