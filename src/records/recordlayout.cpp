#include "records/recordlayout.h"

namespace tavrel {

const Item* RecordLayout::find(std::string_view key) const {
    const Item* found = nullptr;
    for (const auto& item : items) {
        if (item.key() == key && (!found || found->isFormer())) {
            found = &item;
        }
    }
    return found;
}

Field RecordLayout::field(std::string_view key) const {
    const Item* item = find(key);
    return item ? item->field() : Field();
}

Field RecordLayout::field(QStringView key) const {
    const QByteArray name = key.toUtf8();
    return field(std::string_view(name.constData(), static_cast<std::size_t>(name.size())));
}

}  // namespace tavrel
