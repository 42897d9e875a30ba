#pragma once

#include "book/ui/bookwindow.h"
#include "logbook/carnet.h"

#include <functional>

class QSplitter;

namespace tavrel {

class DiveDetails;
class DiveWindows;
class ProfileCommands;
class RenumberWindow;

/// The window of a logbook: that of a book, with imports, the details of the selected dive below the table, the windows
/// of what the dives tell and of a dive's profile, and the renumbering window, which is made when it is asked for
/// first.
class LogbookWindow : public BookWindow {
    Q_OBJECT

public:
    LogbookWindow(Carnet& carnet, Desktop& desktop);
    ~LogbookWindow() override;

    /// An import for the File menu, which is that of the toolbars' item where they have one; null: they have none.
    void addImport(const Title& title, const char* toolItem, std::function<void()> command);

    RenumberWindow& renumberWindow();
    ProfileCommands& profileCommands() { return *profile_; }
    DiveWindows& diveWindows() { return *dives_; }
    DiveDetails& details() { return *details_; }
    /// Asks of which dives, then shows their card.
    void showCard() override;
    /// The series typed into the profile's editor are entries too.
    std::optional<Entries> askAboutEntries(Settling next) override;
    void settleEntries(Entries entries) override;

    QList<QAction*> ownMenuActions() override;
    QList<QAction*> viewActions() override;
    QList<QAction*> importActions() override { return imports_; }
    QList<QWidget*> furtherWindows() override;

private:
    void addDetails();
    void restoreDetails();
    void showSelectedDive();

    Carnet& carnet_;
    ProfileCommands* profile_;
    DiveWindows* dives_;
    QSplitter* panes_;
    DiveDetails* details_;
    QAction* detailsShown_ = nullptr;
    RenumberWindow* renumberWindow_ = nullptr;
    QList<QAction*> imports_;
};

}  // namespace tavrel
