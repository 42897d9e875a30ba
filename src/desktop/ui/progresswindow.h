#pragma once

#include "base/progress.h"

#include <QProgressDialog>

#include <functional>
#include <memory>

namespace tavrel {

/// Shows how far a piece of work is and offers to cancel it, once the work has taken half a second; quicker work costs
/// nothing. While it shows nothing else in the application can be used.
class ProgressWindow {
public:
    /// A clock in milliseconds that only goes forward.
    using Milliseconds = std::function<qint64()>;

    ProgressWindow(QWidget* parent, const QString& work);
    ProgressWindow(QWidget* parent, const QString& work, Milliseconds clock);

    /// What the work is to tell; valid while the window lives.
    Progress progress();
    bool wasCancelled() const { return dialog_ && dialog_->wasCanceled(); }

private:
    bool goOn(std::size_t done, std::size_t total);
    void open();

    QWidget* parent_;
    QString work_;
    Milliseconds clock_;
    qint64 nextLook_;  ///< when it is shown, or shows more
    std::unique_ptr<QProgressDialog> dialog_;
};

}  // namespace tavrel
