#pragma once

#include "book/bookdescription.h"
#include "records/recordlayout.h"

#include <QString>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace tavrel {

/// A record book as the contract of all books holds it: its description, and what its files hold, written down by hand.
struct BookCase {
    const char* name;
    const BookDescription& (*book)();
    const char* typeName;   ///< in English
    const char* commands;   ///< the toolbars' identifiers for new, add, insert, update, delete
    const char* oneRecord;  ///< the count line in English
    int pages;
    const char* columns;  ///< their fields in order, with ">" behind what is written at the right, "|" in the middle
    /// The items of a record in archive order, "field:code"; "field<source:code" where another field is written.
    std::string archive;
    /// What the last run of the card of "/home/b.file" begins with, and between or before the records of a card; null
    /// for a book without cards.
    const char* closing = "\rFile dir : /home/b.file\r\rEdition date : 2024-06-15 ";
    int separators = 2;  ///< in a card of two records, at least
};

inline void PrintTo(const BookCase& book, std::ostream* out) {
    *out << book.name;
}

struct ArchivedItem {
    std::string field;
    std::string source;
    char code;
};

/// The items of a case's list.
std::vector<ArchivedItem> archivedItems(const BookCase& book);

/// A record in which the field at each place of the list, counted from 1, has a value of its own; see distinctValue().
std::shared_ptr<Record> distinctRecord(const BookCase& book);

/// What a file of one record holds, item by item: "i 3", "f 4.5", "@ t1", "@ 86400", "@ nil".
QStringList itemsOf(const QByteArray& file);

/// All nine books.
extern const std::vector<BookCase> bookCases;

}  // namespace tavrel
