#pragma once

#include "base/failure.h"
#include "base/jsonwriter.h"

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <vector>

namespace tavrel {

/// What a typed stream holds, counted.
struct StreamSummary {
    struct Class {
        QString name;
        std::int64_t version = 0;
        std::size_t objects = 0;  ///< of this class itself
    };

    bool littleEndian = true;
    std::int64_t systemVersion = 0;
    std::size_t groups = 0;   ///< outermost ones; a document has one
    std::size_t objects = 0;  ///< literal ones
    std::size_t references = 0;
    std::vector<Class> classes;  ///< in the order in which they appear
};

/// Walks a whole typed stream, whatever it holds; fails where it cannot be read.
Expected<StreamSummary> inspectStream(QByteArrayView bytes);

/// The whole tree as one JSON object. A group is a pair of lists, its type codes and its values; an object has its
/// number in the object table, its chain of classes with versions, and its groups, and is {"ref": number} when it is
/// met again. Texts that are not UTF-8, and raw bytes, are given as {"hex": …}. The stream is walked once before
/// anything is written, so that one that cannot be read writes nothing.
Expected<void> writeStreamJson(JsonWriter& json, QByteArrayView bytes);

}  // namespace tavrel
