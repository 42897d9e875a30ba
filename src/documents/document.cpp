#include "documents/document.h"

#include "base/paths.h"
#include "base/safefile.h"
#include "base/texts.h"

#include <utility>

namespace tavrel {

Document::Document(Desktop& desktop) : desktop_(desktop) {
    connect(&undoStack_, &QUndoStack::cleanChanged, this, &Document::tellChangedState);
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
    if (const auto loaded = loadDataRepresentation(bytes->bytes(), type_); !loaded) {
        return tl::unexpected(openingFailure(file, loaded.error()));
    }
    becomeFile(file);
    undoStack_.clear();
    tellChangedState();
    return {};
}

Expected<void> Document::save() {
    if (file_.isEmpty()) {
        return failure(text("Main", "Document has no file"));
    }
    return saveAs(file_);
}

Expected<void> Document::saveAs(const QString& file) {
    if (auto written = exportAs(file, type_); !written) {
        return written;
    }
    becomeFile(file);
    undoStack_.setClean();
    tellChangedState();
    return {};
}

Expected<void> Document::exportAs(const QString& file, const QString& type) {
    if (type != type_) {
        return isOwnFile(file) ? writeExport(file, {}) : writeExport(file, dataRepresentationOfType(type));
    }
    const auto bytes = dataRepresentationOfType(type);
    return bytes ? writeFile(file, *bytes) : tl::unexpected(savingFailure(file, bytes.error()));
}

bool Document::isOwnFile(const QString& file) const {
    return !file_.isEmpty() && canonicalPath(file) == canonicalPath(file_);
}

Expected<void> Document::writeExport(const QString& file, const Expected<QByteArray>& bytes) {
    if (isOwnFile(file)) {
        return tl::unexpected(savingFailure(file, {text("Main", "Export onto document"), {}}));
    }
    if (!bytes) {
        return tl::unexpected(savingFailure(file, bytes.error()));
    }
    return isOutlet(file) ? writeToOutlet(file, *bytes) : writeFile(file, *bytes);
}

Expected<void> Document::revert() {
    if (file_.isEmpty()) {
        return failure(text("Main", "Document has no file"));
    }
    return open(file_);
}

void Document::markChanged() {
    changedBesideStack_ = true;
    tellChangedState();
}

void Document::becomeFile(const QString& file) {
    changedBesideStack_ = false;
    const QString path = absolutePath(file);
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
