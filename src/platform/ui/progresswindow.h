#pragma once

#include "platform/progress.h"

#include <QProgressDialog>

namespace tavrel {

/// Shows how far a piece of work is and offers to cancel it, once the work has taken half a second. While it works
/// nothing else in the application can be used.
class ProgressWindow {
public:
    ProgressWindow(QWidget* parent, const QString& work);

    /// What the work is to tell; valid while the window lives.
    Progress progress();
    bool wasCancelled() const { return dialog_.wasCanceled(); }

private:
    QProgressDialog dialog_;
};

}  // namespace tavrel
