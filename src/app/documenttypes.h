#pragma once

#include "platform/desktop.h"
#include "platform/document.h"
#include "platform/title.h"
#include "platform/ui/documentwindow.h"

#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace tavrel {

/// A format that a document can be exported to: its type name, and the extension of its files.
struct ExportFormat {
    QString name;
    QString extension;
};

/// A type of document that the application creates and opens. Some type names pass through the text table, others stand
/// as they are in every language.
struct DocumentType {
    Title name;
    TextKey title;            ///< in the menu of new documents and in file dialogs
    const char* newAction;    ///< the new-document action
    const char* extension;    ///< of its files, without the dot
    const char* recordClass;  ///< of the records in its files, which tells its files from others
    std::function<std::unique_ptr<Document>(Desktop&)> makeDocument;
    std::function<std::unique_ptr<DocumentWindow>(Document&, Desktop&)> makeWindow;
    std::function<QList<ExportFormat>(Document&)> exports = {};  ///< empty: it has none
};

/// The types in the order of the menu; the first is the one a plain new document gets.
using DocumentTypes = std::vector<DocumentType>;

/// The type whose name is given, literal or localised; null when there is none.
const DocumentType* documentTypeNamed(const DocumentTypes& types, const QString& name);

/// The type of a file: by the class of the records inside it; when it holds none, by its extension; the first type when
/// that says nothing either. A failure names the file.
Expected<const DocumentType*> documentTypeOf(const DocumentTypes& types, const QString& file);

}  // namespace tavrel
