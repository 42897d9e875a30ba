#pragma once

#include "documents/ui/documentwindow.h"
#include "logbook/carnet.h"

#include <functional>
#include <map>
#include <memory>

class QLabel;
class QMenu;

namespace tavrel {

class CustomToolBar;
class DiveEditWindow;
class DiveSearchField;
class DiveTable;
class RenumberWindow;

/// The window of a logbook: the table of its dives, the search, and every command on them. The edit window and the
/// renumbering window are made when they are asked for first.
class LogbookWindow : public DocumentWindow {
    Q_OBJECT

public:
    LogbookWindow(Carnet& carnet, Desktop& desktop);
    ~LogbookWindow() override;

    /// What an item of the toolbars does that others provide: "importUDCF", "importUDDF", "profil", "profilData",
    /// "synthese", "statistics". The edit window gets those that it has a place for. Until then an item does not show.
    void provideCommand(const QString& identifier, std::function<void()> command);
    /// An import that the toolbars have no item for; the File menu shows it behind theirs.
    void addImport(const QString& title, const std::function<void()>& command);

    /// Deselects all dives and prints the table, landscape.
    void printLogbook();

    DiveTable& table() { return *table_; }
    DiveSearchField& searchField() { return *search_; }
    CustomToolBar& toolBar() { return *toolBar_; }
    DiveEditWindow& editWindow();
    RenumberWindow& renumberWindow();

    QString ownMenuTitle() const override;
    QList<QAction*> ownMenuActions() override;
    QList<QAction*> viewActions() override;
    QList<QAction*> editActions() override;
    QList<QAction*> importActions() override;
    void printDocument() override { printLogbook(); }
    QList<QWidget*> furtherWindows() override;
    void commitEditing() override;

private:
    QAction* addCommand(const char* name, const QString& title, const char* icon, const QKeySequence& keys,
                        std::function<void()> command);
    void buildCommands();
    void buildToolBar();
    void giveToEditWindow(const QString& identifier);
    void finishEntry();
    void showEditWindow();
    void showRowMenu(const QPoint& place);
    void copySelection();
    void updateState();

    Carnet& carnet_;
    DiveTable* table_;
    DiveSearchField* search_;
    CustomToolBar* toolBar_;
    QLabel* count_;
    QLabel* found_;
    RenumberWindow* renumberWindow_ = nullptr;
    std::unique_ptr<DiveEditWindow> editWindow_;
    std::map<QString, std::function<void()>> provided_;
    QList<QAction*> furtherImports_;

    QAction *newDive_, *editDive_, *insertDive_, *deleteDive_, *previousDive_, *nextDive_;
    QAction *copy_, *selectAll_, *find_, *columns_, *customise_;
};

}  // namespace tavrel
