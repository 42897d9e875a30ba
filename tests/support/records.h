#pragma once

#include "records/recordlayout.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
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

template <class Class>
RecordList listOf(const std::vector<Class>& records) {
    RecordList list;
    for (const Class& record : records) {
        list.push_back(std::make_shared<Class>(record));
    }
    return list;
}

/// The names and values of "name=value|name=value".
std::vector<std::pair<std::string, QString>> namedValues(const char* values);

/// Fills fields that are named as in namedValues(): numbers and texts as they are, a date as a local one in ISO 8601 or
/// as seconds since 2001, a series as decimals with commas; "nil" for a text or a date that there is not.
void fill(Record& record, const RecordLayout& layout, const char* values);

template <class Class>
void fill(Class& record, const char* values) {
    fill(record, Class::layout(), values);
}

template <class Class>
Class filled(const char* values) {
    Class record;
    fill(record, values);
    return record;
}

/// A value that the field of no other number has: 3, 3.5, "t3", the day 3 days after 1 January 2001, the series 3 and
/// 3.5, a picture whose bytes are the text.
FieldValue distinctValue(FieldKind kind, int number);

/// Whether the fields hold exactly these values, given as to fill().
testing::AssertionResult holds(const Record& record, const RecordLayout& layout, const char* values);

template <class Class>
testing::AssertionResult holds(const Class& record, const char* values) {
    return holds(record, Class::layout(), values);
}

/// What the named fields hold, "temps lieu" as "42; Gozo".
QString fieldsOf(const Record& record, const RecordLayout& layout, const char* names);

template <class Class>
QString fieldsOf(const Class& record, const char* names) {
    return fieldsOf(record, Class::layout(), names);
}

}  // namespace tavrel
