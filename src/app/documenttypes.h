#pragma once

#include "desktop/desktop.h"
#include "desktop/ui/filedialogs.h"
#include "documents/document.h"
#include "documents/documentkind.h"
#include "documents/ui/documentwindow.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace tavrel {

/// A type of document that the application creates and opens.
struct DocumentType : DocumentKind {
    Title title;            ///< in the menu of new documents and in file dialogs
    const char* newAction;  ///< the new-document action
    std::function<std::unique_ptr<Document>(Desktop&)> makeDocument;
    std::function<std::unique_ptr<DocumentWindow>(Document&, Desktop&)> makeWindow;
    /// Asks what to export and how, and does it; empty where there is nothing to export to.
    std::function<void(DocumentWindow&, const FileTaken&)> showExport = {};
    /// Whether a file that is no document holds records that a document of this type can take in, and how that begins;
    /// both empty where there is no such file.
    std::function<bool(const QString& file)> takesIn = {};
    std::function<void(DocumentWindow&, const QString& file)> takeIn = {};
};

/// The types in the order of the menu; the first is the one a plain new document gets.
using DocumentTypes = std::vector<DocumentType>;

}  // namespace tavrel
