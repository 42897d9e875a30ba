#pragma once

#include "desktop/desktop.h"
#include "documents/document.h"
#include "documents/ui/messagebar.h"

#include <QAction>
#include <QList>
#include <QMainWindow>
#include <QMimeData>
#include <QString>
#include <QStringList>

#include <optional>

namespace tavrel {

/// What comes next where entries under way are settled first.
enum class Settling {
    saving,   ///< the document's bytes are taken
    leaving,  ///< the document closes, is read again or takes records in, or the program ends
};

/// The main window of a document: title with the change mark, the save prompt on closing, files dropped on it, and the
/// places where the application hangs the menus it builds for every document.
class DocumentWindow : public QMainWindow {
    Q_OBJECT

public:
    DocumentWindow(Document& document, Desktop& desktop);

    Document& document() { return document_; }
    /// Tells what needs no answer at once.
    MessageBar& messageBar() { return *messageBar_; }

    /// The menu of the document's own commands, as "Dive" in a logbook; null actions are separators.
    virtual QString ownMenuTitle() const { return {}; }
    virtual QList<QAction*> ownMenuActions() { return {}; }
    /// Commands of the View menu (columns, toolbar).
    virtual QList<QAction*> viewActions() { return {}; }
    /// Commands of the Edit menu beyond undo and redo (copy, find, select all).
    virtual QList<QAction*> editActions() { return {}; }
    /// Imports of the File menu.
    virtual QList<QAction*> importActions() { return {}; }
    virtual void printDocument() = 0;
    virtual void previewDocument() = 0;
    /// The document's further windows (edit form …), closed with it.
    virtual QList<QWidget*> furtherWindows() { return {}; }
    /// Settles what the user entered and the document does not hold yet; false when the user wants to go on entering,
    /// and everything is to stay as it is.
    bool leaveEditing(Settling next);
    /// Its two halves. The first asks what is to become of it, where that needs asking, and changes nothing; nothing
    /// when the user wants to go on.
    virtual std::optional<Entries> askAboutEntries(Settling) { return Entries::none; }
    virtual void settleEntries(Entries) {}
    /// The window's own action for a command of the application's menus ("saveDocument", "printDocument"), which then
    /// show it; null where it has none.
    virtual QAction* commandAction(const QString& name) {
        static_cast<void>(name);
        return nullptr;
    }

    /// Closes the window and the document's further ones without asking anyone.
    void closeWithDocument();

Q_SIGNALS:
    /// Asked by the title bar's close button; the application answers with the save prompt and closes the document.
    void closeRequested();
    /// Asked by a Save of the window's own (a toolbar's); the application saves as its File menu does.
    void saveRequested();
    void filesDropped(const QStringList& files);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

    Desktop& desktop_;

private:
    void updateTitle();

    Document& document_;
    MessageBar* messageBar_;
    bool mayClose_ = false;
};

/// The local files that dragged data names; other addresses are left out.
QStringList localFiles(const QMimeData& data);

}  // namespace tavrel
