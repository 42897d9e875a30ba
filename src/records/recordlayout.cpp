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

}  // namespace tavrel
