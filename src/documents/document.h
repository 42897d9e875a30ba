#pragma once

#include "base/failure.h"
#include "base/fileidentity.h"
#include "base/progress.h"
#include "base/safefile.h"
#include "desktop/desktop.h"
#include "documents/filelock.h"
#include "documents/filewatch.h"
#include "documents/unsaved.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QObject>
#include <QSet>
#include <QString>
#include <QUndoStack>

#include <chrono>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

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
    enum class Overwriting { no, yes };
    /// Writes the document under its own type, atomically, to its file or to the one given, which becomes its file. The
    /// first time a file is written its contents before are kept beside it, as the user wishes. On failure the
    /// document, its change state and the file on the disk are as they were. A file of its own that another program has
    /// changed since, or that a newer version wrote, is a failure, unless it is to be written over.
    Expected<void> save(Overwriting overwriting = Overwriting::no);
    Expected<void> saveAs(const QString& file, Overwriting overwriting = Overwriting::no);
    /// Writes the bytes of an export, or tells why there are none; the document's file and change state stay. An export
    /// loses what it does not hold, so it never takes the place of the document's own file.
    Expected<void> writeExport(const QString& file, const Expected<QByteArray>& bytes);
    /// The same for the files of one export: all of them are written, or none.
    Expected<void> writeExport(const std::vector<FileContents>& files);
    /// Reads its file again, dropping all changes; a failure without a file.
    Expected<void> revert();
    /// The file's contents before this program first wrote it, kept beside it under its name and "~".
    QString backupFile() const { return file_ + u'~'; }
    /// Reads the backup in the place of the contents, which then differ from the file's.
    Expected<void> revertToBackup();

    /// What would be lost if the program ended now; nothing when the file and the records hold it all.
    std::optional<Unsaved> unsaved() const;
    /// Becomes what was kept so, its form apart: it has the file and differs from it as it did. A file that was changed
    /// meanwhile is found to be so when it is saved.
    Expected<void> restore(const Unsaved& unsaved);
    /// Shows again what was typed in the form.
    virtual void showUnstored(const UnstoredForm& form) { static_cast<void>(form); }

    /// What has become of the file since it was read or written.
    FileIdentity::State stateOnDisk();
    /// From now on says what other programs do to its file.
    void watchFile();
    /// Tells other programs that a file, which is to be the document's, is open here, until it is closed or another
    /// file takes its place. Who has it open already, waited for that long; nobody when the file could be taken.
    std::optional<LockHolder> claimFile(const QString& file, std::chrono::milliseconds patience = {});
    /// The document is closed: its file is anyone's.
    void releaseFile();
    /// Whether the file is to be looked at only, because another program has it open or a newer version of this one
    /// wrote it. The document can be saved elsewhere.
    bool isReadOnly() const { return readOnly_ || ofNewerVersion_; }
    /// Whether the file holds more than this version knows, which saving over it would lose.
    bool isOfNewerVersion() const { return ofNewerVersion_; }
    void setReadOnly(bool readOnly);

Q_SIGNALS:
    void fileChanged();
    void changedStateChanged(bool changed);
    /// Something was changed in the document, or typed in its form.
    void touched();
    /// These bytes are about to take the place of a file, which is then the document's.
    void aboutToWrite(const QString& file, const QByteArray& bytes);
    /// Another program changed or removed the file, or put things right again; told once for each.
    void stateOnDiskChanged(tavrel::FileIdentity::State state);

protected:
    void setType(const QString& type) { type_ = type; }
    /// What works out the file's contents as they are now, in another thread; null when the document cannot do that.
    virtual std::function<QByteArray()> contentsLater() const { return {}; }
    /// What stays the same as long as these contents do; null when nothing tells.
    virtual std::shared_ptr<const void> contentsVersion() const { return nullptr; }
    virtual int recordCount() const { return 0; }
    /// What is typed in the form and stored nowhere.
    virtual std::optional<UnstoredForm> unstoredForm() const { return std::nullopt; }
    /// Whether a newer version of the program wrote these contents.
    virtual bool isNewer(QByteArrayView contents) const {
        static_cast<void>(contents);
        return false;
    }
    /// For changes that no undo step carries.
    void markChanged();

private:
    bool isFile(const QString& file) const;
    void keepBackup(const QString& file);
    void becomeFile(const QString& file, FileIdentity identity);
    void tellChangedState();
    void noteVersion(QByteArrayView contents);

    Desktop& desktop_;
    QString type_;
    QString file_;
    QUndoStack undoStack_;
    Progress progress_;
    FileIdentity identity_;  ///< of the file as it was read or written last
    std::unique_ptr<FileWatch> watch_;
    std::unique_ptr<FileLock> lock_;
    QSet<QString> backedUp_;  ///< the files whose contents before were kept already
    bool readOnly_ = false;
    bool ofNewerVersion_ = false;
    bool changedBesideStack_ = false;
    bool toldChanged_ = false;
};

}  // namespace tavrel
