#pragma once

#include "app/documenttypes.h"
#include "app/recentdocuments.h"
#include "desktop/picklists.h"
#include "desktop/ui/filedialogs.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <memory>
#include <optional>
#include <vector>

namespace tavrel {

class MemoWindow;
class PreferencesWindow;

/// Owns the open documents with their windows: creates, opens, saves and closes them, and shows the windows that belong
/// to all of them (preferences, memo). Everything that fails is told through the desktop's alerts.
class MyDocumentController : public QObject {
    Q_OBJECT

public:
    MyDocumentController(Desktop& desktop, FileDialogs& fileDialogs, DocumentTypes types);
    ~MyDocumentController() override;

    const DocumentTypes& types() const { return types_; }
    /// The windows of the open documents, in the order in which they were opened.
    QList<DocumentWindow*> windows() const;
    /// How often the open documents use each entry of a shared list; nothing while none is open.
    std::optional<QHash<QString, int>> pickListUsage(PickList list) const;
    const DocumentType& typeOf(const DocumentWindow& window) const;
    RecentDocuments& recentDocuments() { return recentDocuments_; }

    /// The type of the next untitled document: the one set, otherwise the first declared.
    QString defaultType() const;
    /// A null name sets it back.
    void setDefaultType(const QString& name) { defaultType_ = name; }
    /// An untitled document of the default type.
    DocumentWindow* newDocument();
    /// The new-document action of a type.
    void newDocumentOfType(const DocumentType& type);

    /// Opens a file, or brings its window to the front when it is open; null when it cannot be opened.
    DocumentWindow* openFile(const QString& file);
    void openFiles(const QStringList& files);
    void openDocument(QWidget* parent);
    /// Start without a document: the memo when the user wants it, then the most recent document, or an untitled
    /// logbook when there is none. Always handled.
    bool applicationOpenUntitledFile();
    /// Start with files, or without: leaves at least one window open.
    void launch(const QStringList& files);

    // Each says whether it came to its end; a cancel or a failure stops it.
    bool saveDocument(DocumentWindow& window);
    bool saveDocumentAs(DocumentWindow& window);
    bool revertDocument(DocumentWindow& window);
    bool exportDocument(DocumentWindow& window);
    /// Asks about unsaved changes first.
    bool closeDocument(DocumentWindow& window);
    /// Asks about the unsaved changes of every document, then closes them all, or none after a cancel.
    bool closeAllDocuments();
    /// Asks about the unsaved changes of every document and closes none.
    bool mayQuit();
    /// The formats that the document can be exported to.
    QList<ExportFormat> exportFormats(DocumentWindow& window) const;

    void showPreferencePanel();
    void showPenseBeteWindow();

Q_SIGNALS:
    /// A document's window is about to be shown for the first time.
    void windowOpened(tavrel::DocumentWindow* window);
    void windowsChanged();

private:
    struct OpenDocument {
        const DocumentType* type;
        std::unique_ptr<Document> document;
        std::unique_ptr<DocumentWindow> window;
    };

    /// Null without a failure when the user cancelled.
    Expected<DocumentWindow*> open(const QString& file);
    Expected<const DocumentType*> typeOfFile(const QString& file) const;
    DocumentWindow* windowOf(const QString& file) const;
    /// Whether the file is that of another open document than the window's; tells when it is.
    bool isTaken(const QString& file, const DocumentWindow& window);
    DocumentWindow* addWindow(const DocumentType& type, std::unique_ptr<Document> document);
    void removeWindow(DocumentWindow& window);
    void discardUntouched();
    bool mayClose(DocumentWindow& window);
    bool mayLoseChanges(DocumentWindow& window);
    bool succeeded(const Expected<void>& result);

    Desktop& desktop_;
    FileDialogs& fileDialogs_;
    DocumentTypes types_;
    RecentDocuments recentDocuments_;
    QString defaultType_;
    std::vector<OpenDocument> open_;
    DocumentWindow* untouched_ = nullptr;  ///< the untitled document of a start, until something else is opened
    QSet<DocumentWindow*> asked_;          ///< about which the user is being asked
    std::unique_ptr<PreferencesWindow> preferences_;
    std::unique_ptr<MemoWindow> penseBeteWindow_;
};

}  // namespace tavrel
