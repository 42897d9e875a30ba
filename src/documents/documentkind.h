#pragma once

#include "archive/recordarchive.h"
#include "base/failure.h"
#include "base/texts.h"

#include <QByteArrayView>
#include <QFileInfo>
#include <QString>

#include <algorithm>
#include <iterator>

namespace tavrel {

/// What tells the documents of one type from others: the type's name (some pass through the text table, others stand as
/// they are in every language), the class of the records in its files, and the extension of new files, without the dot.
/// The application and the command line each list the types that they handle as kinds of this.
struct DocumentKind {
    Title name;
    const char* recordClass;
    const char* extension;
    bool hasOlderFormat = false;  ///< files with its extension may be no typed streams
};

/// The one of that name, in the user's language or as its key, whatever its case; null when there is none.
template <class Kinds>
auto documentKindNamed(const Kinds& kinds, const QString& name) -> decltype(&*std::begin(kinds)) {
    const auto found = std::find_if(std::begin(kinds), std::end(kinds), [&](const DocumentKind& kind) {
        return name.compare(kind.name.text(), Qt::CaseInsensitive) == 0 ||
               name.compare(QString::fromUtf8(kind.name.key), Qt::CaseInsensitive) == 0;
    });
    return found == std::end(kinds) ? nullptr : &*found;
}

/// The one that a file belongs to: by the class of the records inside it; when it holds none, or is of an older format,
/// by its name's extension; the first one when that says nothing either.
template <class Kinds>
auto documentKindOf(const Kinds& kinds, const QString& path, QByteArrayView file)
    -> Expected<decltype(&*std::begin(kinds))> {
    const auto recordClass = recordClassOf(file);
    const QString extension = QFileInfo(path).suffix();
    const auto found = std::find_if(std::begin(kinds), std::end(kinds), [&](const DocumentKind& kind) {
        if (recordClass && !recordClass->isEmpty()) {
            return *recordClass == QLatin1StringView(kind.recordClass);
        }
        return (recordClass || kind.hasOlderFormat) &&
               extension.compare(QLatin1StringView(kind.extension), Qt::CaseInsensitive) == 0;
    });
    if (found != std::end(kinds)) {
        return &*found;
    }
    if (!recordClass) {
        return tl::unexpected(recordClass.error());
    }
    if (recordClass->isEmpty()) {
        return &*std::begin(kinds);
    }
    return failure(text("Main", "Unknown kind of document"), *recordClass);
}

}  // namespace tavrel
