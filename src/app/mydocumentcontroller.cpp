#include "app/mydocumentcontroller.h"

#include "app/applicationwindows.h"
#include "app/preferenceswindow.h"
#include "base/paths.h"
#include "base/safefile.h"
#include "base/texts.h"
#include "book/picklistusage.h"
#include "desktop/alerts.h"
#include "desktop/preferences.h"
#include "desktop/ui/bringtofront.h"
#include "documents/ui/shownprogress.h"

#include <QApplication>
#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace tavrel {

namespace {

/// Whether the memo comes to the front at launch; no window sets it.
constexpr Setting<bool> memoAtLaunch{"pense bete"};

FileFilter filterOf(const DocumentType& type) {
    return {text(type.title), {QString::fromLatin1(type.extension)}};
}

/// Does a document's reading or exporting with its progress shown; nothing when the user cancelled it.
std::optional<Expected<void>> withProgress(Document& document, QWidget* window, Title title,
                                           const std::function<Expected<void>()>& doWork) {
    const ShownProgress work(document, window, text(title));
    const Expected<void> done = doWork();
    return work.wasCancelled() ? std::nullopt : std::optional(done);
}

/// What is shown over one of a document's windows, the preview of an import or a dialog.
QList<QWidget*> shownOver(DocumentWindow& window) {
    QList<QWidget*> windows = window.furtherWindows();
    windows.append(&window);
    QList<QWidget*> shown = QApplication::topLevelWidgets();
    shown.removeIf([&](const QWidget* each) {
        return !each->isVisible() || !each->parentWidget() || !windows.contains(each->parentWidget()->window());
    });
    return shown;
}

/// Whether a dialog is among it; its code is still running and needs the windows.
bool hasOpenDialog(DocumentWindow& window) {
    const QList<QWidget*> shown = shownOver(window);
    return std::any_of(shown.begin(), shown.end(), [](const QWidget* each) { return each->isModal(); });
}

}  // namespace

MyDocumentController::MyDocumentController(Desktop& desktop, FileDialogs& fileDialogs, DocumentTypes types,
                                           const QString& journals, JournalPace::Times times)
    : desktop_(desktop),
      fileDialogs_(fileDialogs),
      types_(std::move(types)),
      recentDocuments_(desktop.preferences),
      journals_(journals, times) {}

MyDocumentController::~MyDocumentController() {
    // A signal ends the program with its windows open. What their journals keep stays for the next start.
    for (OpenDocument& each : open_) {
        each.journal.reset();
        // Closed while whole: what closing tells others makes them ask the window.
        each.window->closeWithDocument();
    }
    // Those closed before are still to be deleted, and know the desktop, which goes next.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QList<DocumentWindow*> MyDocumentController::windows() const {
    QList<DocumentWindow*> windows;
    for (const auto& each : open_) {
        windows.append(each.window.get());
    }
    return windows;
}

std::optional<QHash<QString, int>> MyDocumentController::pickListUsage(PickList list) const {
    if (open_.empty()) {
        return std::nullopt;
    }
    QHash<QString, int> total;
    for (const auto& each : open_) {
        const auto* book = qobject_cast<const BookBase*>(each.document.get());
        const auto usage = book ? tavrel::pickListUsage(*book, list) : QHash<QString, int>();
        for (const auto& [entry, uses] : usage.asKeyValueRange()) {
            total[entry] += uses;
        }
    }
    return total;
}

const DocumentType& MyDocumentController::typeOf(const DocumentWindow& window) const {
    const auto found =
        std::find_if(open_.begin(), open_.end(), [&](const auto& each) { return each.window.get() == &window; });
    return found == open_.end() ? types_.front() : *found->type;
}

QString MyDocumentController::defaultType() const {
    return defaultType_.isNull() ? types_.front().name.text() : defaultType_;
}

DocumentWindow* MyDocumentController::newDocument() {
    const DocumentType* type = documentKindNamed(types_, defaultType());
    if (!type) {
        return nullptr;
    }
    return addWindow(*type, type->makeDocument(desktop_));
}

void MyDocumentController::newDocumentOfType(const DocumentType& type) {
    setDefaultType(type.name.text());
    newDocument();
    setDefaultType({});
}

DocumentWindow* MyDocumentController::addWindow(const DocumentType& type, std::unique_ptr<Document> document) {
    auto window = type.makeWindow(*document, desktop_);
    DocumentWindow* added = window.get();
    auto journal = std::make_unique<Journal>(journals_, *document, QString::fromLatin1(type.recordClass));
    connect(journal.get(), &Journal::notKept, added,
            [added] { added->messageBar().tell(text("Main", "Unsaved work not kept")); });
    connect(journal.get(), &Journal::keptAgain, added,
            [this, added] { tellStateOnDisk(*added, added->document().stateOnDisk()); });
    open_.push_back({&type, std::move(document), std::move(window), std::move(journal)});
    connect(&added->document(), &Document::touched, this, [this, added] { ++touches_[added]; });
    connect(added, &DocumentWindow::closeRequested, this, [this, added] { closeDocument(*added); });
    connect(added, &DocumentWindow::filesDropped, this,
            [this, added](const QStringList& files) { openDropped(*added, files); });
    connect(added, &DocumentWindow::saveRequested, this, [this, added] { saveDocument(*added); });
    connect(&added->document(), &Document::fileChanged, this, &MyDocumentController::windowsChanged);
    connect(&added->document(), &Document::stateOnDiskChanged, added,
            [this, added](FileIdentity::State state) { tellStateOnDisk(*added, state); });
    tellStateOnDisk(*added, FileIdentity::State::same);
    added->document().watchFile();
    Q_EMIT windowOpened(added);
    bringToFront(added);
    Q_EMIT windowsChanged();
    return added;
}

DocumentWindow* MyDocumentController::windowOf(const QString& file) const {
    const QString wanted = canonicalPath(file);
    for (const auto& each : open_) {
        if (!wanted.isEmpty() && canonicalPath(each.document->file()) == wanted) {
            return each.window.get();
        }
    }
    return nullptr;
}

Expected<const DocumentType*> MyDocumentController::typeOfFile(const QString& file) const {
    return FileBytes::open(file).and_then([&](const FileBytes& bytes) {
        return documentKindOf(types_, file, bytes.bytes()).map_error([&](const Failure& reason) {
            return openingFailure(file, reason);
        });
    });
}

Expected<DocumentWindow*> MyDocumentController::open(const QString& file) {
    if (DocumentWindow* window = windowOf(file)) {
        bringToFront(window);
        return window;
    }
    const auto type = typeOfFile(file);
    if (!type) {
        if (!pathExists(file)) {
            recentDocuments_.drop(absolutePath(file));
        }
        return tl::unexpected(type.error());
    }
    auto document = (*type)->makeDocument(desktop_);
    if (!claim(*document, file)) {
        return nullptr;
    }
    const auto opened = withProgress(*document, QApplication::activeWindow(), Title("Main", "Loading"),
                                     [&] { return document->open(file); });
    if (!opened) {
        return nullptr;
    }
    if (!*opened) {
        return tl::unexpected(opened->error());
    }
    DocumentWindow* window = addWindow(**type, std::move(document));
    // Writing the list can wait until the window is there.
    QMetaObject::invokeMethod(
        this, [this, name = window->document().file()] { recentDocuments_.note(name); }, Qt::QueuedConnection);
    discardUntouched();
    return window;
}

DocumentWindow* MyDocumentController::openFile(const QString& file) {
    const auto window = open(file);
    if (!window) {
        if (!offerIntake(file)) {
            desktop_.alerts.fail(window.error());
        }
        return nullptr;
    }
    return *window;
}

void MyDocumentController::openFiles(const QStringList& files) {
    for (const QString& file : files) {
        openFile(file);
    }
}

void MyDocumentController::openDropped(DocumentWindow& window, const QStringList& files) {
    const DocumentType& type = typeOf(window);
    for (const QString& file : files) {
        const bool isRecords = type.takesIn && !windowOf(file) && !typeOfFile(file) && type.takesIn(file);
        if (isRecords) {
            type.takeIn(window, file);
        } else {
            openFile(file);
        }
    }
}

bool MyDocumentController::offerIntake(const QString& file) {
    const auto type = std::find_if(types_.begin(), types_.end(),
                                   [&](const DocumentType& each) { return each.takesIn && each.takesIn(file); });
    if (type == types_.end()) {
        return false;
    }
    const auto open = std::find_if(open_.rbegin(), open_.rend(), [&](const auto& each) { return each.type == &*type; });
    const QString name = QFileInfo(file).fileName();
    const QString question = open == open_.rend()
                                 ? textWith("Main", "Import into new", name)
                                 : textWith("Main", "Import into", name, open->document->displayName());
    if (desktop_.alerts.ask(question, {text("Main", "Import into it"), text("Main", "Cancel")}) != 0) {
        return true;
    }
    DocumentWindow* window = open == open_.rend() ? nullptr : open->window.get();
    if (!window) {
        newDocumentOfType(*type);
        window = open_.back().window.get();
    }
    type->takeIn(*window, file);
    return true;
}

void MyDocumentController::openDocument(QWidget* parent) {
    FileFilter all{text("Main", "All documents"), {}};
    QList<FileFilter> filters;
    for (const DocumentType& type : types_) {
        all.extensions.append(QString::fromLatin1(type.extension));
        filters.append(filterOf(type));
    }
    filters.prepend(all);
    // What a file is shows inside it, so its name may be any.
    filters.append({text("Main", "All files"), {}});
    openFiles(fileDialogs_.filesToOpen(parent, text("Main", "Open document"), filters, true));
}

bool MyDocumentController::applicationOpenUntitledFile() {
    if (desktop_.preferences.get(memoAtLaunch)) {
        showPenseBeteWindow();
    }
    const QStringList recent = recentDocuments_.files();
    launch(recent.mid(0, 1));
    return true;
}

void MyDocumentController::launch(const QStringList& files) {
    std::vector<std::pair<QString, Failure>> failures;
    for (const QString& file : files) {
        if (auto window = open(file); !window) {
            failures.emplace_back(file, window.error());
        }
    }
    if (open_.empty()) {
        newDocumentOfType(types_.front());
        untouched_ = open_.back().window.get();
    }
    // Told and asked last, over a window.
    for (const auto& [file, failure] : failures) {
        if (!offerIntake(file)) {
            desktop_.alerts.fail(failure);
        }
    }
}

void MyDocumentController::discardUntouched() {
    DocumentWindow* window = std::exchange(untouched_, nullptr);
    if (!window || window->document().isChanged() || !window->document().file().isEmpty()) {
        return;
    }
    const QList<QWidget*> further = window->furtherWindows();
    const bool isEdited = std::any_of(further.begin(), further.end(), [](auto* each) { return each->isVisible(); });
    if (!isEdited && shownOver(*window).isEmpty()) {
        removeWindow(*window);
    }
}

bool MyDocumentController::succeeded(const Expected<void>& result) {
    if (!result) {
        desktop_.alerts.fail(result.error());
    }
    return result.has_value();
}

bool MyDocumentController::isTaken(const QString& file, const DocumentWindow& window) {
    const DocumentWindow* other = windowOf(file);
    if (!other || other == &window) {
        return false;
    }
    desktop_.alerts.fail(savingFailure(file, {text("Main", "File is open"), {}}));
    return true;
}

bool MyDocumentController::saveDocument(DocumentWindow& window) {
    const auto entries = window.askAboutEntries(Settling::saving);
    return entries && save(window, *entries);
}

bool MyDocumentController::saveDocumentAs(DocumentWindow& window) {
    const auto entries = window.askAboutEntries(Settling::saving);
    return entries && saveElsewhere(window, *entries);
}

bool MyDocumentController::save(DocumentWindow& window, Entries entries) {
    Document& document = window.document();
    if (document.file().isEmpty() || document.isReadOnly()) {
        return saveElsewhere(window, entries);
    }
    if (const auto state = document.stateOnDisk(); state != FileIdentity::State::same) {
        return saveOverChange(window, state, entries);
    }
    window.settleEntries(entries);
    return succeeded(document.save());
}

bool MyDocumentController::saveElsewhere(DocumentWindow& window, Entries entries) {
    Document& document = window.document();
    const DocumentType& type = typeOf(window);
    const QString proposal =
        document.file().isEmpty() ? document.displayName() + u'.' + QLatin1StringView(type.extension) : document.file();
    const auto chosen = fileDialogs_.fileToSave(&window, text("Main", "Save document as"), proposal, {filterOf(type)});
    if (!chosen || isTaken(chosen->file, window)) {
        return false;
    }
    window.settleEntries(entries);
    if (!succeeded(document.saveAs(chosen->file))) {
        return false;
    }
    window.messageBar().tell({});
    // Whoever has it open otherwise was written over by the user's choice.
    static_cast<void>(document.claimFile(document.file()));
    recentDocuments_.note(document.file());
    return true;
}

bool MyDocumentController::reload(DocumentWindow& window, const QString& question,
                                  const std::function<Expected<void>()>& read) {
    const auto entries = window.askAboutEntries(Settling::leaving);
    if (!entries) {
        return false;
    }
    // What was to be stored would go with the list that is read anew.
    const QString asked = question.isEmpty() && *entries == Entries::stored
                              ? textWith("Main", "Revert question", window.document().displayName())
                              : question;
    if (!asked.isEmpty()) {
        desktop_.alerts.beep();
        if (desktop_.alerts.ask(asked, {text("Main", "Revert"), text("Main", "Cancel")}) != 0) {
            return false;
        }
    }
    const auto done = withProgress(window.document(), &window, Title("Main", "Loading"), read);
    if (!done || !succeeded(*done)) {
        return false;  // the form keeps what was typed
    }
    if (*entries != Entries::none) {
        window.settleEntries(Entries::dropped);
    }
    return true;
}

bool MyDocumentController::revertDocument(DocumentWindow& window) {
    Document& document = window.document();
    return reload(window, textWith("Main", "Revert question", document.displayName()),
                  [&] { return document.revert(); });
}

bool MyDocumentController::revertToBackup(DocumentWindow& window) {
    Document& document = window.document();
    return reload(window, textWith("Main", "Revert to backup question", document.displayName()),
                  [&] { return document.revertToBackup(); });
}

void MyDocumentController::exportDocument(DocumentWindow& window) {
    if (typeOf(window).showExport && window.leaveEditing(Settling::saving)) {
        typeOf(window).showExport(window, [this, &window](const QString& file) { return isTaken(file, window); });
    }
}

std::optional<MyDocumentController::Parting> MyDocumentController::askBeforeClosing(DocumentWindow& window) {
    if (asked_.contains(&window) || hasOpenDialog(window)) {
        // What the user is asked there comes first.
        bringToFront(&window);
        return std::nullopt;
    }
    asked_.insert(&window);
    const auto asked = qScopeGuard([&] { asked_.remove(&window); });
    const auto entries = window.askAboutEntries(Settling::leaving);
    if (!entries) {
        return std::nullopt;
    }
    const int touches = touches_[&window];
    const Document& document = window.document();
    if (!document.isChanged() && *entries != Entries::stored) {
        return Parting{*entries, false, touches};
    }
    bringToFront(&window);
    desktop_.alerts.beep();
    const QString question = textWith("Main", "Save changes", document.displayName());
    enum Answer { saveIt, leaveIt };
    const int answer =
        desktop_.alerts.ask(question, {text("Main", "Save"), text("Main", "Don't save"), text("Main", "Cancel")});
    if (answer != saveIt && answer != leaveIt) {
        return std::nullopt;
    }
    return Parting{*entries, answer == saveIt, touches};
}

bool MyDocumentController::closeDocument(DocumentWindow& window) {
    const auto parting = askBeforeClosing(window);
    if (!parting || (parting->saves && !save(window, parting->entries))) {
        return false;
    }
    removeWindow(window);
    return true;
}

bool MyDocumentController::mayQuit() {
    std::map<DocumentWindow*, Parting> partings;
    const auto isUnanswered = [&](DocumentWindow* window) {
        const auto found = partings.find(window);
        return found == partings.end() || found->second.touches != touches_[window];
    };
    // While one document asks, others may be closed, opened or changed.
    for (;;) {
        const QList<DocumentWindow*> all = windows();
        const auto next = std::find_if(all.begin(), all.end(), isUnanswered);
        if (next == all.end()) {
            break;
        }
        const auto parting = askBeforeClosing(**next);
        if (!parting) {
            return false;
        }
        partings.insert_or_assign(*next, *parting);
    }
    const QList<DocumentWindow*> all = windows();
    return std::all_of(all.begin(), all.end(), [&](DocumentWindow* window) {
        const Parting& parting = partings.at(window);
        return !parting.saves || !windows().contains(window) || save(*window, parting.entries);
    });
}

bool MyDocumentController::closeAllDocuments() {
    if (!mayQuit()) {
        return false;
    }
    for (DocumentWindow* window : windows()) {
        removeWindow(*window);
    }
    return true;
}

void MyDocumentController::removeWindow(DocumentWindow& window) {
    const auto found =
        std::find_if(open_.begin(), open_.end(), [&](const auto& each) { return each.window.get() == &window; });
    if (found == open_.end()) {
        return;
    }
    OpenDocument closed = std::move(*found);
    open_.erase(found);
    touches_.erase(&window);
    if (untouched_ == &window) {
        untouched_ = nullptr;
    }
    closed.journal->drop();
    closed.journal.reset();
    // The document itself goes when the event is over, and its file may be opened again before.
    closed.document->releaseFile();
    closed.window->closeWithDocument();
    // The window may be in the middle of the event that closes it, so it goes later, before its document.
    closed.window.release()->deleteLater();
    closed.document.release()->deleteLater();
    Q_EMIT windowsChanged();
}

void MyDocumentController::showPreferencePanel() {
    if (!preferences_) {
        preferences_ = std::make_unique<PreferencesWindow>(desktop_);
    }
    bringToFront(preferences_.get());
}

void MyDocumentController::showPenseBeteWindow() {
    if (!penseBeteWindow_) {
        penseBeteWindow_ = std::make_unique<MemoWindow>(desktop_.preferences);
    }
    bringToFront(penseBeteWindow_.get());
}

}  // namespace tavrel
