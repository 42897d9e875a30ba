#include "archive/typedstreamfault.h"

namespace tavrel {

namespace {

QString sentenceOf(StreamFault fault) {
    switch (fault) {
        case StreamFault::notTypedStream:
            return QStringLiteral("The file is not a document of this program.");
        case StreamFault::unknownVersion:
            return QStringLiteral("The file is written in an unknown version of the archive format.");
        case StreamFault::truncated:
            return QStringLiteral("The file is damaged: it ends too early.");
        case StreamFault::countTooLarge:
            return QStringLiteral("The file is damaged: it announces more data than it holds.");
        case StreamFault::undefinedReference:
            return QStringLiteral("The file is damaged: it refers to something that it has not defined.");
        case StreamFault::wrongReference:
            return QStringLiteral("The file is damaged: it refers to something of another kind.");
        case StreamFault::unexpectedTag:
            return QStringLiteral("The file is damaged: an unexpected mark stands in it.");
        case StreamFault::unknownType:
            return QStringLiteral("The file is damaged: it holds a value of an unknown type.");
        case StreamFault::nilName:
            return QStringLiteral("The file is damaged: a type or class has no name.");
        case StreamFault::classLoop:
            return QStringLiteral("The file is damaged: a class descends from itself.");
        case StreamFault::tooDeep:
            return QStringLiteral("The file is nested too deeply.");
        case StreamFault::rootNotArray:
            return QStringLiteral("The file holds no list of records.");
        case StreamFault::wrongClass:
            return QStringLiteral("The file holds records of another kind.");
        case StreamFault::missingItem:
            return QStringLiteral("The file is damaged: a record ends before its last field.");
        case StreamFault::wrongItemType:
            return QStringLiteral("The file is damaged: a field has another type than it must have.");
        case StreamFault::valueOutOfRange:
            return QStringLiteral("The file is damaged: a number does not fit its field.");
        case StreamFault::wrongItemObject:
            return QStringLiteral("The file is damaged: a field holds something of another kind.");
        case StreamFault::notNumber:
            return QStringLiteral("The file is damaged: a series holds something else than numbers.");
        case StreamFault::noColor:
            return QStringLiteral("The archive holds no colour.");
        case StreamFault::cancelled:
            return QStringLiteral("Cancelled.");
    }
    return {};
}

}  // namespace

Failure streamFailure(StreamFault fault, std::size_t offset, const QString& what) {
    const QString place = QStringLiteral("at byte %1").arg(offset);
    return {sentenceOf(fault), what.isEmpty() ? place : what + QStringLiteral(", ") + place};
}

}  // namespace tavrel
