#include "archive/recordarchive.h"

namespace tavrel {

Expected<QString> recordClassOf(QByteArrayView bytes) {
    TypedStreamReader reader(bytes);
    const std::size_t count = reader.openRoot();
    const QString name = count > 0 ? reader.nextElementClass() : QString();
    if (!reader.ok()) {
        return tl::unexpected(reader.failure());
    }
    return name;
}

}  // namespace tavrel
