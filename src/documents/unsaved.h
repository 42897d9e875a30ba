#pragma once

#include "base/failure.h"
#include "records/date.h"
#include "records/image.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace tavrel {

/// What is typed in a document's form and stored in no record yet.
struct UnstoredForm {
    struct Control {
        QString name;
        QString text;
        qint32 tag = 0;
        Date date;
        Image image;
    };

    int row = -1;  ///< of the record that is edited; -1: of a new one
    std::vector<Control> controls;
    /// Works out what the form holds beside its controls; may be called in another thread. Null for nothing.
    std::function<QByteArray()> beside = {};
};

/// What becomes of entries that no record holds yet.
enum class Entries {
    none,  ///< there are none
    stored,
    dropped,
};

/// What would be lost if the program ended now: of one document, everything that it takes to go on with it.
struct Unsaved {
    QString recordClass;  ///< which tells the type of document
    QString name;         ///< as the user knows the document
    QString file;         ///< empty: it has none yet
    QByteArray fileHash;  ///< of what the file held when it was read or written last
    qint64 fileSize = 0;
    bool isChanged = true;  ///< the records differ from the file's
    qint32 records = 0;
    QDateTime time;
    qint64 number = 0;  ///< of the times that the document was kept
    std::optional<UnstoredForm> form;
    /// As long as this is the same, the contents are; null: they may be others each time.
    std::shared_ptr<const void> version;
    /// Works out the document's file as it would be saved; may be called in another thread. Null: what was kept of it
    /// is lost, and so is the file.
    std::function<QByteArray()> contents;
};

/// The file of the contents: its name without the folder, and the hash that tells whether it is whole.
struct ContentsFile {
    QString name;
    QByteArray hash;
};

/// The bytes to keep it by, but for the contents, which lie in a file of their own: they may be large, and most of what
/// is typed leaves them as they are.
QByteArray archived(const Unsaved& unsaved, const ContentsFile& contents);
/// Reads these, still without the contents; a failure when they are not whole.
Expected<std::pair<Unsaved, ContentsFile>> unarchivedUnsaved(QByteArrayView bytes);

}  // namespace tavrel
