#include "app/documenttypes.h"

#include "platform/recordarchive.h"
#include "platform/safefile.h"
#include "platform/texts.h"

#include <QFileInfo>

#include <algorithm>

namespace tavrel {

namespace {

template <class Condition>
const DocumentType* firstType(const DocumentTypes& types, Condition condition) {
    const auto found = std::find_if(types.begin(), types.end(), condition);
    return found == types.end() ? nullptr : &*found;
}

}  // namespace

const DocumentType* documentTypeNamed(const DocumentTypes& types, const QString& name) {
    return firstType(types, [&](const DocumentType& type) { return type.name.text() == name; });
}

Expected<const DocumentType*> documentTypeOf(const DocumentTypes& types, const QString& file) {
    const auto bytes = FileBytes::open(file);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    const auto recordClass = recordClassOf(bytes->bytes());
    if (!recordClass) {
        return tl::unexpected(openingFailure(file, recordClass.error()));
    }
    if (!recordClass->isEmpty()) {
        const auto* type = firstType(
            types, [&](const DocumentType& each) { return *recordClass == QLatin1StringView(each.recordClass); });
        if (!type) {
            const Failure unknown{text("Main", "Unknown kind of document"), *recordClass};
            return tl::unexpected(openingFailure(file, unknown));
        }
        return type;
    }
    const QString extension = QFileInfo(file).suffix().toLower();
    const auto* type =
        firstType(types, [&](const DocumentType& each) { return extension == QLatin1StringView(each.extension); });
    return type ? type : &types.front();
}

}  // namespace tavrel
