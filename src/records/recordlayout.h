#pragma once

#include "records/date.h"
#include "records/image.h"
#include "records/series.h"

#include <QString>

#include <limits>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

namespace tavrel {

/// The kinds of member that a record may have. A null QString, a null Date and a null Series stand for the archive's
/// nil.
template <class Record>
using Member = std::variant<qint32 Record::*, float Record::*, QString Record::*, Date Record::*, Series Record::*,
                            Image Record::*>;

/// The value of one member, as the variants of Member.
using FieldValue = std::variant<qint32, float, QString, Date, Series, Image>;

enum class Travel {
    plain,       ///< an object as "@", an integer as "i", a float as "f"
    bitsAsInt,   ///< a float whose 32 bits travel unchanged under "i"
    integer,     ///< an integer under "i" whatever the member: a float takes its value, a text its decimal digits
    memoryOnly,  ///< a field that can be read by its name but never travels
};

constexpr int anyLaterVersion = std::numeric_limits<int>::max();

/// One archived item of a record: the key of the field that it holds, the member that it is written from, how it
/// travels, the first and the last class version that hold it, and the member that it is read into where that is
/// another one.
template <class Record>
struct Item {
    std::string_view key;
    Member<Record> member;
    Travel travel = Travel::plain;
    int since = 0;
    std::optional<Member<Record>> readInto = std::nullopt;
    int until = anyLaterVersion;

    bool travels(int version) const { return travel != Travel::memoryOnly && version >= since && version <= until; }
    const Member<Record>& field() const { return readInto ? *readInto : member; }
};

/// A record class as the archive knows it: name, the version that is written, the items in archive order, and what is
/// left to do for a record that was read from an archive of some version (null: nothing).
template <class Record>
struct RecordLayout {
    std::string_view className;
    int version;
    std::span<const Item<Record>> items;
    void (*afterReading)(Record& record, int version) = nullptr;

    /// The item of that key (the one of the written version before those of older layouts), or null.
    const Item<Record>* find(std::string_view key) const {
        const Item<Record>* found = nullptr;
        for (const auto& item : items) {
            if (item.key == key && (!found || found->until < item.until)) {
                found = &item;
            }
        }
        return found;
    }
};

/// The field that the item's key names.
template <class Record>
FieldValue fieldValue(const Record& record, const Item<Record>& item) {
    return std::visit([&](auto member) { return FieldValue(record.*member); }, item.field());
}

}  // namespace tavrel
