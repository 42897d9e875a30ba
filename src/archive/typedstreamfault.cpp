#include "archive/typedstreamfault.h"

#include "base/texts.h"

namespace tavrel {

namespace {

Title sentenceOf(StreamFault fault) {
    switch (fault) {
        case StreamFault::notTypedStream:
            return Title("Archive", "Not typed stream");
        case StreamFault::unknownVersion:
            return Title("Archive", "Unknown version");
        case StreamFault::truncated:
            return Title("Archive", "Truncated");
        case StreamFault::countTooLarge:
            return Title("Archive", "Count too large");
        case StreamFault::undefinedReference:
            return Title("Archive", "Undefined reference");
        case StreamFault::wrongReference:
            return Title("Archive", "Wrong reference");
        case StreamFault::unexpectedTag:
            return Title("Archive", "Unexpected tag");
        case StreamFault::unknownType:
            return Title("Archive", "Unknown type");
        case StreamFault::nilName:
            return Title("Archive", "Nil name");
        case StreamFault::classLoop:
            return Title("Archive", "Class loop");
        case StreamFault::tooDeep:
            return Title("Archive", "Too deep");
        case StreamFault::tooMuch:
            return Title("Archive", "Too much");
        case StreamFault::rootNotArray:
            return Title("Archive", "Root not array");
        case StreamFault::wrongClass:
            return Title("Archive", "Wrong class");
        case StreamFault::missingItem:
            return Title("Archive", "Missing item");
        case StreamFault::wrongItemType:
            return Title("Archive", "Wrong item type");
        case StreamFault::valueOutOfRange:
            return Title("Archive", "Value out of range");
        case StreamFault::wrongItemObject:
            return Title("Archive", "Wrong item object");
        case StreamFault::notNumber:
            return Title("Archive", "Not number");
        case StreamFault::noColor:
            return Title("Archive", "No color");
        case StreamFault::cancelled:
            return Title("Archive", "Cancelled");
    }
    return {};
}

}  // namespace

Failure streamFailure(StreamFault fault, std::size_t offset, const QString& what) {
    const QString place = textWith("Archive", "At byte", static_cast<qint64>(offset));
    return {text(sentenceOf(fault)), what.isEmpty() ? place : what + QStringLiteral(", ") + place};
}

}  // namespace tavrel
