#pragma once

#include "platform/date.h"
#include "platform/image.h"
#include "platform/series.h"

#include <QString>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

namespace tavrel {

/// The kinds of member that a record may have. A null QString, a null Date and a null Series stand for the archive's nil.
template <class Record>
using Member = std::variant<qint32 Record::*, float Record::*, QString Record::*, Date Record::*, Series Record::*,
                            Image Record::*>;

/// The value of one member, as the variants of Member.
using FieldValue = std::variant<qint32, float, QString, Date, Series, Image>;

enum class Travel {
    plain,       ///< an object as "@", an integer as "i", a float as "f"
    bitsAsInt,   ///< a float whose 32 bits travel unchanged under "i"
    memoryOnly,  ///< a field that can be read by its name but never travels
};

/// One archived item of a record: its key, the member that it is written from and read into, how it travels, and the
/// first class version that holds it.
template <class Record>
struct Item {
    std::string_view key;
    Member<Record> member;
    Travel travel = Travel::plain;
    int since = 0;
    std::optional<Member<Record>> readInto = std::nullopt;
};

/// A record class as the archive knows it: name, the version that is written, and the items in archive order.
template <class Record>
struct RecordLayout {
    std::string_view className;
    int version;
    std::span<const Item<Record>> items;

    /// The item of that key, or null.
    const Item<Record>* find(std::string_view key) const {
        for (const auto& item : items)
            if (item.key == key)
                return &item;
        return nullptr;
    }
};

template <class Record>
FieldValue fieldValue(const Record& record, const Item<Record>& item) {
    return std::visit([&](auto member) { return FieldValue(record.*member); }, item.member);
}

}  // namespace tavrel
