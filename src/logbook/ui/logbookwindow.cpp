#include "logbook/ui/logbookwindow.h"

#include "logbook/ui/profilecommands.h"
#include "logbook/ui/renumberwindow.h"

namespace tavrel {

LogbookWindow::LogbookWindow(Carnet& carnet, Desktop& desktop)
    : BookWindow(carnet, desktop), carnet_(carnet), profile_(new ProfileCommands(carnet, *this, desktop)) {
    connect(&carnet, &Carnet::renumberWindowRequested, this, [this] { renumberWindow().bringToFront(); });
}

void LogbookWindow::addImport(const QString& title, const std::function<void()>& command) {
    auto* action = new QAction(title, this);
    connect(action, &QAction::triggered, this, command);
    furtherImports_.append(action);
}

RenumberWindow& LogbookWindow::renumberWindow() {
    if (!renumberWindow_) {
        renumberWindow_ = new RenumberWindow(carnet_, this);
    }
    return *renumberWindow_;
}

QList<QAction*> LogbookWindow::importActions() {
    QList<QAction*> actions;
    for (const char* identifier : {"importUDCF", "importUDDF"}) {
        if (QAction* action = BookWindow::actions().action(QLatin1StringView(identifier))) {
            actions.append(action);
        }
    }
    return actions + furtherImports_;
}

QList<QWidget*> LogbookWindow::furtherWindows() {
    QList<QWidget*> windows = BookWindow::furtherWindows() + profile_->windows();
    if (renumberWindow_) {
        windows.append(renumberWindow_);
    }
    return windows;
}

}  // namespace tavrel
