#pragma once

#include "base/failure.h"

#include <cstddef>

namespace tavrel {

/// Everything that a typed stream can be refused for.
enum class StreamFault {
    notTypedStream,      ///< the header is none
    unknownVersion,      ///< a streamer version other than 4
    truncated,           ///< the data end within a value
    countTooLarge,       ///< a length, count or array size that the bytes left cannot hold
    undefinedReference,  ///< a number that was not given out yet
    wrongReference,      ///< a number given to something else than what must stand here
    unexpectedTag,       ///< a tag where a number, string, class or object must begin
    unknownType,         ///< a type code that nobody knows
    nilName,             ///< nil where a type encoding or class name must stand
    classLoop,           ///< a class that is its own ancestor
    tooDeep,             ///< nesting beyond the bound
    tooMuch,             ///< far more work or contents than its bytes can mean
    rootNotArray,        ///< the root is no array
    wrongClass,          ///< an element of the root array is no record of the class
    missingItem,         ///< the record ends before its last item
    wrongItemType,       ///< an item under another type code
    valueOutOfRange,     ///< a number that does not fit its field
    wrongItemObject,     ///< an item holds an object of another kind
    notNumber,           ///< an element of a series is no number
    noColor,             ///< the archive holds no colour
    cancelled,           ///< the user cancelled
};

/// The failure as the user sees it; offset in bytes from the start of the data.
Failure streamFailure(StreamFault fault, std::size_t offset, const QString& what = {});

}  // namespace tavrel
