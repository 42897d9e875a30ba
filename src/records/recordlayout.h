#pragma once

#include "records/field.h"
#include "records/record.h"

#include <QStringView>

#include <limits>
#include <memory>
#include <span>
#include <string_view>

namespace tavrel {

enum class Travel {
    plain,       ///< an object as "@", an integer as "i", a float as "f"
    bitsAsInt,   ///< a float whose 32 bits travel unchanged under "i"
    integer,     ///< an integer under "i" whatever the field: a float takes its value, a text its decimal digits
    memoryOnly,  ///< a field that can be read by its name but never travels
};

constexpr int anyLaterVersion = std::numeric_limits<int>::max();

/// One archived item of a record: the key of the field that it holds, how it travels, and the first and the last class
/// version that hold it. The field is that of the key for everyone; only the archive's writer knows that some slots are
/// filled from another one.
class Item {
public:
    constexpr Item(std::string_view key, Field field, Travel travel = Travel::plain, int since = 0,
                   int until = anyLaterVersion)
        : key_(key), field_(field), source_(field), travel_(travel), since_(since), until_(until) {}

    /// The same item, whose slot the writer fills from another field of the same kind. Reading takes it into the item's
    /// own field.
    constexpr Item writtenFrom(Field source) const {
        Item item = *this;
        item.source_ = source;
        return item;
    }

    constexpr std::string_view key() const { return key_; }
    constexpr Field field() const { return field_; }
    constexpr Travel travel() const { return travel_; }
    constexpr bool travels(int version) const {
        return travel_ != Travel::memoryOnly && version >= since_ && version <= until_;
    }
    /// Whether this is a slot of older layouts only.
    constexpr bool isFormer() const { return until_ != anyLaterVersion; }

private:
    friend class RecordWriter;

    std::string_view key_;
    Field field_;
    Field source_;
    Travel travel_;
    int since_;
    int until_;
};

/// A record class as the archive knows it: name, the version that is written, the items in archive order, how to make
/// and copy a record, and what is left to do for one that was read from an archive of some version (null: nothing).
/// Made by recordLayout().
struct RecordLayout {
    std::string_view className;
    int version;
    std::span<const Item> items;
    std::shared_ptr<Record> (*make)();
    std::shared_ptr<Record> (*copy)(const Record& record);
    void (*afterReading)(Record& record, int version) = nullptr;

    /// The item of that key (the one of the written version before those of older layouts), or null.
    const Item* find(std::string_view key) const;
    /// The field of that key; a null field when the class has none. Look it up once, not for every record.
    Field field(std::string_view key) const;
    Field field(QStringView key) const;
};

/// The layout of the record class Class. What afterReading names is called with each record that was read and the class
/// version of its archive.
template <class Class, void (*afterReading)(Class& record, int version) = nullptr>
constexpr RecordLayout recordLayout(std::string_view className, int version, std::span<const Item> items) {
    RecordLayout layout{className, version, items,
                        []() -> std::shared_ptr<Record> { return std::make_shared<Class>(); },
                        [](const Record& record) -> std::shared_ptr<Record> {
                            return std::make_shared<Class>(static_cast<const Class&>(record));
                        }};
    if constexpr (afterReading != nullptr) {
        layout.afterReading = [](Record& record, int itsVersion) {
            afterReading(static_cast<Class&>(record), itsVersion);
        };
    }
    return layout;
}

}  // namespace tavrel
