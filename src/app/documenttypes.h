#pragma once

#include "desktop/desktop.h"
#include "documents/document.h"
#include "documents/documentkind.h"
#include "documents/ui/documentwindow.h"

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

/// A type of document that the application creates and opens.
struct DocumentType : DocumentKind {
    Title title;            ///< in the menu of new documents and in file dialogs
    const char* newAction;  ///< the new-document action
    std::function<std::unique_ptr<Document>(Desktop&)> makeDocument;
    std::function<std::unique_ptr<DocumentWindow>(Document&, Desktop&)> makeWindow;
    std::function<QList<ExportFormat>(Document&)> exports = {};  ///< empty: it has none
};

/// The types in the order of the menu; the first is the one a plain new document gets.
using DocumentTypes = std::vector<DocumentType>;

}  // namespace tavrel
