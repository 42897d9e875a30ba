#pragma once

#include "book/book.h"
#include "documents/documentkind.h"
#include "interchange/exports.h"
#include "interchange/imports.h"

#include <memory>
#include <span>

namespace tavrel {

/// A type of document as the application and the command line list it: its description, how to make a document of it,
/// and the formats that it takes in and can be exported to.
struct CatalogueType : DocumentKind {
    const BookDescription* book;
    std::unique_ptr<BookBase> (*make)(Desktop& desktop);
    std::span<const LogbookImport> imports = {};
    std::span<const LogbookExport> exports = {};
};

/// All types in the order of the menu; the first is the one that a plain new document gets.
std::span<const CatalogueType> documentTypes();

/// The type that the user means by a word: its name in any language of the program, its untranslated name, or its
/// record class, case aside; null when there is none.
const CatalogueType* documentTypeMeantBy(const QString& word);

}  // namespace tavrel
