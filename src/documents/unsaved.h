#pragma once

#include "base/failure.h"
#include "records/date.h"
#include "records/image.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QString>

#include <functional>
#include <optional>
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
    std::optional<UnstoredForm> form;
    /// Works out the document's file as it would be saved; may be called in another thread.
    std::function<QByteArray()> contents;
};

/// The bytes to keep it by.
QByteArray archived(const Unsaved& unsaved);
/// Reads these; a failure when they are not whole.
Expected<Unsaved> unarchivedUnsaved(QByteArrayView bytes);

}  // namespace tavrel
