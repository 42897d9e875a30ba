#pragma once

#include "records/recordlayout.h"

#include <memory>
#include <vector>

namespace tavrel {

/// A record of a list as what it is.
template <class Class>
const Class& as(const RecordPointer& record) {
    return static_cast<const Class&>(*record);
}

template <class Class>
std::vector<std::shared_ptr<const Class>> allAs(const RecordList& records) {
    std::vector<std::shared_ptr<const Class>> list;
    for (const auto& record : records) {
        list.push_back(std::static_pointer_cast<const Class>(record));
    }
    return list;
}

/// Sets fields by their names: "temps=42; lieu=Gozo; profilProfondeur=0 18.5 3".
void setFields(Record& record, const RecordLayout& layout, const char* fields);
/// What the named fields hold, "temps lieu" as "42; Gozo".
QString fieldsOf(const Record& record, const RecordLayout& layout, const char* names);

}  // namespace tavrel
