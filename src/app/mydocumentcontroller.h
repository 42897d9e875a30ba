#pragma once

#include "app/documenttypes.h"
#include "app/recentdocuments.h"
#include "desktop/picklists.h"
#include "desktop/ui/filedialogs.h"
#include "documents/journal.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <functional>
#include <map>
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
    /// What is unsaved is kept within the folder journals; without one nothing is.
    MyDocumentController(Desktop& desktop, FileDialogs& fileDialogs, DocumentTypes types, const QString& journals = {},
                         JournalPace::Times times = {});
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

    /// Opens a file, or brings its window to the front when it is open; null when it cannot be opened. One that holds
    /// records of another program is offered to a document that takes them in.
    DocumentWindow* openFile(const QString& file);
    void openFiles(const QStringList& files);
    /// Files dropped on a window: records of other programs that its document can take in come into it, others open.
    void openDropped(DocumentWindow& window, const QStringList& files);
    void openDocument(QWidget* parent);
    /// Start without a document: the memo when the user wants it, then the most recent document, or an untitled
    /// logbook when there is none. Always handled.
    bool applicationOpenUntitledFile();
    /// Start with files, or without: leaves at least one window open.
    void launch(const QStringList& files);

    /// Offers what an earlier run of the program that ended suddenly had not saved.
    void offerUnsaved();
    /// Keeps what is unsaved for the next start, now: the program is about to end without asking anyone.
    bool keepUnsaved();

    // Each says whether it came to its end; a cancel or a failure stops it.
    bool saveDocument(DocumentWindow& window);
    bool saveDocumentAs(DocumentWindow& window);
    bool revertDocument(DocumentWindow& window);
    /// Puts the contents back that the file had before this program first wrote it.
    bool revertToBackup(DocumentWindow& window);
    /// Asks about unsaved changes first.
    bool closeDocument(DocumentWindow& window);
    /// Does as mayQuit(), then closes all documents.
    bool closeAllDocuments();
    /// Asks about what every document has unsaved, then saves what is to be saved, and closes none. A cancel leaves
    /// everything as it was, what other documents were asked about included.
    bool mayQuit();
    /// Asks how the document is to be exported, beside its file.
    void exportDocument(DocumentWindow& window);

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
        std::unique_ptr<Journal> journal;
    };

    /// Null without a failure when the user cancelled.
    Expected<DocumentWindow*> open(const QString& file);
    Expected<const DocumentType*> typeOfFile(const QString& file) const;
    DocumentWindow* windowOf(const QString& file) const;
    /// Whether the file is that of another open document than the window's; tells when it is.
    bool isTaken(const QString& file, const DocumentWindow& window);
    DocumentWindow* addWindow(const DocumentType& type, std::unique_ptr<Document> document);
    void removeWindow(DocumentWindow& window);
    /// Offers a file to the newest document of a type that takes it in, or to a new one; false when there is none.
    bool offerIntake(const QString& file);
    void discardUntouched();
    /// What the user answered about a document that is to close, and how often that had been touched by then.
    struct Parting {
        Entries entries;
        bool saves;
        int touches;
    };
    /// Asks, and changes nothing; nothing after a cancel.
    std::optional<Parting> askBeforeClosing(DocumentWindow& window);
    // These settle the entries so once nothing is asked any more.
    bool save(DocumentWindow& window, Entries entries);
    bool saveElsewhere(DocumentWindow& window, Entries entries);
    /// Reads the document anew, after a question unless that is empty.
    bool reload(DocumentWindow& window, const QString& question, const std::function<Expected<void>()>& read);
    bool restore(const Unsaved& unsaved);
    /// Asks what to do about a program that has the file open; false when the user would rather not open it.
    bool claim(Document& document, const QString& file);
    /// Asks what to do about a file that another program changed or removed.
    bool saveOverChange(DocumentWindow& window, FileIdentity::State state, Entries entries);
    void tellStateOnDisk(DocumentWindow& window, FileIdentity::State state);
    bool succeeded(const Expected<void>& result);

    Desktop& desktop_;
    FileDialogs& fileDialogs_;
    DocumentTypes types_;
    RecentDocuments recentDocuments_;
    JournalFolder journals_;
    QString defaultType_;
    std::vector<OpenDocument> open_;
    DocumentWindow* untouched_ = nullptr;  ///< the untitled document of a start, until something else is opened
    std::map<const DocumentWindow*, int> touches_;
    QSet<DocumentWindow*> asked_;  ///< about which the user is being asked
    std::unique_ptr<PreferencesWindow> preferences_;
    std::unique_ptr<MemoWindow> penseBeteWindow_;
};

}  // namespace tavrel
