#pragma once

#include "book/ui/bookwindow.h"
#include "logbook/carnet.h"

#include <functional>

namespace tavrel {

class ProfileCommands;
class RenumberWindow;

/// The window of a logbook: that of a book, with imports, the windows of a dive's profile, and the renumbering window,
/// which is made when it is asked for first.
class LogbookWindow : public BookWindow {
    Q_OBJECT

public:
    LogbookWindow(Carnet& carnet, Desktop& desktop);

    /// An import that the toolbars have no item for; the File menu shows it behind theirs.
    void addImport(const QString& title, const std::function<void()>& command);

    RenumberWindow& renumberWindow();
    ProfileCommands& profileCommands() { return *profile_; }

    QList<QAction*> importActions() override;
    QList<QWidget*> furtherWindows() override;

private:
    Carnet& carnet_;
    ProfileCommands* profile_;
    RenumberWindow* renumberWindow_ = nullptr;
    QList<QAction*> furtherImports_;
};

}  // namespace tavrel
