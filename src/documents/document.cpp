#include "documents/document.h"

#include "base/paths.h"
#include "base/texts.h"
#include "desktop/clock.h"
#include "desktop/preferences.h"
#include "documents/documentsettings.h"

#include <utility>

namespace tavrel {

Document::Document(Desktop& desktop) : desktop_(desktop) {
    connect(&undoStack_, &QUndoStack::cleanChanged, this, &Document::tellChangedState);
    connect(&undoStack_, &QUndoStack::indexChanged, this, &Document::touched);
}

Document::~Document() {
    // The stack empties itself on its way out, which is no news to anyone.
    undoStack_.disconnect(this);
}

QString Document::displayName() const {
    return file_.isEmpty() ? text("Main", "Untitled") : shownName(file_);
}

bool Document::isChanged() const {
    return changedBesideStack_ || !undoStack_.isClean();
}

Expected<void> Document::open(const QString& file) {
    const auto bytes = FileBytes::open(file);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    auto hash = contentHashAside(bytes->bytes());
    if (const auto loaded = loadDataRepresentation(bytes->bytes(), type_); !loaded) {
        return tl::unexpected(openingFailure(file, loaded.error()));
    }
    noteVersion(bytes->bytes());
    becomeFile(file, bytes->identity(hash.get()));
    undoStack_.clear();
    tellChangedState();
    return {};
}

Expected<void> Document::save(Overwriting overwriting) {
    if (file_.isEmpty()) {
        return failure(text("Main", "Document has no file"));
    }
    return saveAs(file_, overwriting);
}

Expected<void> Document::saveAs(const QString& file, Overwriting overwriting) {
    const auto bytes = dataRepresentationOfType(type_);
    if (!bytes) {
        return tl::unexpected(savingFailure(file, bytes.error()));
    }
    if (overwriting == Overwriting::no && isFile(file) && stateOnDisk() != FileIdentity::State::same) {
        return tl::unexpected(savingFailure(file, {text("Main", "File changed by another"), {}}));
    }
    if (overwriting == Overwriting::no && isFile(file) && isOfNewerVersion()) {
        return tl::unexpected(savingFailure(file, {text("Main", "File of newer version"), {}}));
    }
    keepBackup(file);
    Q_EMIT aboutToWrite(absolutePath(file), *bytes);
    auto written = replaceFile(file, *bytes);
    if (!written) {
        return tl::unexpected(written.error());
    }
    noteVersion(*bytes);
    becomeFile(file, std::move(*written));
    setReadOnly(false);
    undoStack_.setClean();
    tellChangedState();
    return {};
}

Expected<void> Document::writeExport(const QString& file, const Expected<QByteArray>& bytes) {
    if (!bytes) {
        return tl::unexpected(savingFailure(file, bytes.error()));
    }
    return isOutlet(file) ? writeToOutlet(file, *bytes) : writeExport({{file, *bytes}});
}

Expected<void> Document::writeExport(const std::vector<FileContents>& files) {
    for (const FileContents& each : files) {
        if (isFile(each.path)) {
            return tl::unexpected(savingFailure(each.path, {text("Main", "Export onto document"), {}}));
        }
    }
    return writeFiles(files);
}

Expected<void> Document::revert() {
    if (file_.isEmpty()) {
        return failure(text("Main", "Document has no file"));
    }
    return open(file_);
}

Expected<void> Document::revertToBackup() {
    const auto bytes = FileBytes::open(backupFile());
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    if (const auto loaded = loadDataRepresentation(bytes->bytes(), type_); !loaded) {
        return tl::unexpected(openingFailure(backupFile(), loaded.error()));
    }
    undoStack_.clear();
    markChanged();
    return {};
}

FileIdentity::State Document::stateOnDisk() {
    return file_.isEmpty() ? FileIdentity::State::same : identity_.stateOf(pathBytes(file_));
}

void Document::watchFile() {
    watch_ = std::make_unique<FileWatch>();
    connect(watch_.get(), &FileWatch::stateChanged, this, &Document::stateOnDiskChanged);
    watch_->watch(file_, identity_);
}

std::optional<LockHolder> Document::claimFile(const QString& file, std::chrono::milliseconds patience) {
    auto lock = std::make_unique<FileLock>(file);
    if (lock_ && lock_->file() == lock->file()) {
        return std::nullopt;
    }
    auto holder = lock->take(patience);
    if (!holder) {
        lock_ = std::move(lock);
    }
    return holder;
}

void Document::releaseFile() {
    lock_.reset();
    watch_.reset();
}

void Document::setReadOnly(bool readOnly) {
    if (std::exchange(readOnly_, readOnly) != readOnly) {
        Q_EMIT fileChanged();
    }
}

void Document::noteVersion(QByteArrayView contents) {
    const bool newer = isNewer(contents);
    if (std::exchange(ofNewerVersion_, newer) != newer) {
        Q_EMIT fileChanged();
    }
}

std::optional<Unsaved> Document::unsaved() const {
    Unsaved kept;
    kept.isChanged = isChanged();
    kept.form = unstoredForm();
    kept.contents = contentsLater();
    if (!kept.contents || (!kept.isChanged && !kept.form)) {
        return std::nullopt;
    }
    kept.version = contentsVersion();
    kept.name = displayName();
    kept.file = file_;
    kept.fileHash = identity_.hash();
    kept.fileSize = identity_.size();
    kept.records = recordCount();
    kept.time = desktop_.clock.now();
    return kept;
}

Expected<void> Document::restore(const Unsaved& unsaved) {
    if (unsaved.contents) {
        if (auto loaded = loadDataRepresentation(unsaved.contents(), type_); !loaded) {
            return loaded;
        }
    }
    if (!unsaved.file.isEmpty()) {
        becomeFile(unsaved.file, FileIdentity({}, unsaved.fileSize, unsaved.fileHash));
        // What was kept is of the present version, whatever the file is.
        if (const auto bytes = FileBytes::open(unsaved.file)) {
            noteVersion(bytes->bytes());
        }
    }
    undoStack_.clear();
    if (unsaved.isChanged) {
        markChanged();
    }
    return {};
}

void Document::markChanged() {
    changedBesideStack_ = true;
    Q_EMIT touched();
    tellChangedState();
}

/// Whether the name means the document's own file, also where that is gone.
bool Document::isFile(const QString& file) const {
    return !file_.isEmpty() && (absolutePath(file) == file_ || isSameFile(file, file_));
}

/// Keeps what a file holds before it is written for the first time. A backup that cannot be made stops no save, which
/// leaves the file whole by itself.
void Document::keepBackup(const QString& file) {
    const QString path = absolutePath(file);
    if (!backedUp_.contains(path) && pathExists(path) && desktop_.preferences.get(settings::keepsBackup)) {
        static_cast<void>(copyFile(path, path + u'~'));
    }
    backedUp_.insert(path);
}

void Document::becomeFile(const QString& file, FileIdentity identity) {
    changedBesideStack_ = false;
    const QString path = absolutePath(file);
    identity_ = std::move(identity);
    if (lock_ && lock_->file() != FileLock::lockedFile(path)) {
        lock_.reset();
    }
    if (watch_) {
        watch_->watch(path, identity_);
    }
    if (std::exchange(file_, path) != path) {
        Q_EMIT fileChanged();
    }
}

void Document::tellChangedState() {
    const bool changed = isChanged();
    if (std::exchange(toldChanged_, changed) != changed) {
        Q_EMIT changedStateChanged(changed);
    }
}

}  // namespace tavrel
