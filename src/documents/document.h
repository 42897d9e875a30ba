#pragma once

#include "base/failure.h"
#include "base/progress.h"
#include "desktop/desktop.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QObject>
#include <QString>
#include <QUndoStack>

#include <utility>

namespace tavrel {

/// An open document: its type name, its file, whether it has unsaved changes, how it is saved and loaded, and its undo
/// stack. Knows no windows; they listen to its signals. The sentences of its failures name the file.
class Document : public QObject {
    Q_OBJECT

public:
    explicit Document(Desktop& desktop);
    ~Document() override;

    /// The bytes to save under a type name; a failure when the type is not the document's or a text cannot be encoded.
    virtual Expected<QByteArray> dataRepresentationOfType(const QString& type) = 0;
    /// Replaces the contents by what the bytes hold, then checks the type.
    virtual Expected<void> loadDataRepresentation(QByteArrayView data, const QString& type) = 0;

    /// What the document has of the desktop: its clock, its preferences, its alerts.
    Desktop& desktop() const { return desktop_; }
    const QString& type() const { return type_; }
    /// The absolute path of the file; empty before the first save.
    const QString& file() const { return file_; }
    /// What a window's title says: the file's name, or the localised "Untitled".
    QString displayName() const;
    /// Whether the contents differ from the file's: a step was done or undone since, or something changed beside the
    /// steps.
    bool isChanged() const;
    QUndoStack& undoStack() { return undoStack_; }

    /// Is told of reading and exporting, which may take long, until another one is set. Cancelling makes them fail,
    /// with the document as it was and nothing written.
    void setProgress(Progress progress) { progress_ = std::move(progress); }
    const Progress& progress() const { return progress_; }

    /// Reads the file as the document's type; its steps can then no longer be undone. On failure the document is as it
    /// was.
    Expected<void> open(const QString& file);
    /// Writes the document under its own type, atomically, to its file or to the one given, which becomes its file. On
    /// failure the document, its change state and the file on the disk are as they were.
    Expected<void> save();
    Expected<void> saveAs(const QString& file);
    /// Writes another type (an export) beside; the document's file and change state stay. An export loses what it does
    /// not hold, so it never takes the place of the document's own file.
    Expected<void> exportAs(const QString& file, const QString& type);
    /// The same with the bytes of an export, or why there are none.
    Expected<void> writeExport(const QString& file, const Expected<QByteArray>& bytes);
    /// Reads its file again, dropping all changes; a failure without a file.
    Expected<void> revert();

Q_SIGNALS:
    void fileChanged();
    void changedStateChanged(bool changed);

protected:
    void setType(const QString& type) { type_ = type; }
    /// For changes that no undo step carries.
    void markChanged();

private:
    bool isOwnFile(const QString& file) const;
    void becomeFile(const QString& file);
    void tellChangedState();

    Desktop& desktop_;
    QString type_;
    QString file_;
    QUndoStack undoStack_;
    Progress progress_;
    bool changedBesideStack_ = false;
    bool toldChanged_ = false;
};

}  // namespace tavrel
