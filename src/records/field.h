#pragma once

#include "records/date.h"
#include "records/image.h"
#include "records/record.h"
#include "records/series.h"

#include <QString>

#include <type_traits>
#include <utility>
#include <variant>

namespace tavrel {

/// The value of a field. A null QString, a null Date and a null Series stand for the archive's nil.
using FieldValue = std::variant<qint32, float, QString, Date, Series, Image>;

/// The kinds of field that a record may have, as the alternatives of FieldValue.
enum class FieldKind { integer, real, text, date, series, image };

/// A field of a record class, whatever the class: found once by its key (RecordLayout::field) and then asked of any
/// record of that class. A null field stands for a key that the class does not have; it is asked nothing.
class Field {
    template <bool constant, class Visitor>
    decltype(auto) visitAs(void* address, Visitor&& visitor) const {
        const auto as = [address]<class Value>(std::type_identity<Value>) -> auto& {
            return *static_cast<std::conditional_t<constant, const Value*, Value*>>(address);
        };
        switch (kind_) {
            case FieldKind::integer:
                return visitor(as(std::type_identity<qint32>()));
            case FieldKind::real:
                return visitor(as(std::type_identity<float>()));
            case FieldKind::text:
                return visitor(as(std::type_identity<QString>()));
            case FieldKind::date:
                return visitor(as(std::type_identity<Date>()));
            case FieldKind::series:
                return visitor(as(std::type_identity<Series>()));
            default:
                return visitor(as(std::type_identity<Image>()));
        }
    }

public:
    constexpr Field() = default;
    /// The field that a member of the record class Owner holds.
    template <class Owner, class Value, Value Owner::*member>
    static constexpr Field ofMember() {
        return Field(kindOf<Value>(), [](Record& record) -> void* { return &(static_cast<Owner&>(record).*member); });
    }

    constexpr bool isNull() const { return !address_; }
    constexpr FieldKind kind() const { return kind_; }

    /// Calls the visitor with a reference to the field's value.
    template <class Visitor>
    decltype(auto) visit(const Record& record, Visitor&& visitor) const {
        return visitAs<true>(address_(const_cast<Record&>(record)), std::forward<Visitor>(visitor));
    }
    template <class Visitor>
    decltype(auto) visit(Record& record, Visitor&& visitor) const {
        return visitAs<false>(address_(record), std::forward<Visitor>(visitor));
    }

    FieldValue value(const Record& record) const {
        return visit(record, [](const auto& held) { return FieldValue(held); });
    }
    /// Whether the value was of the field's kind, and so was stored.
    bool setValue(Record& record, const FieldValue& value) const {
        return visit(record, [&value](auto& held) {
            const auto* given = std::get_if<std::decay_t<decltype(held)>>(&value);
            if (given) {
                held = *given;
            }
            return given != nullptr;
        });
    }
    /// The text, number … of a field whose kind is known; null when it is of another kind.
    template <class Value>
    const Value* get(const Record& record) const {
        return !isNull() && kind_ == kindOf<Value>() ? static_cast<const Value*>(address_(const_cast<Record&>(record)))
                                                     : nullptr;
    }

    friend constexpr bool operator==(const Field&, const Field&) = default;

private:
    using Address = void* (*)(Record& record);

    constexpr Field(FieldKind kind, Address address) : kind_(kind), address_(address) {}

    template <class Value>
    static constexpr FieldKind kindOf() {
        if constexpr (std::is_same_v<Value, qint32>) {
            return FieldKind::integer;
        } else if constexpr (std::is_same_v<Value, float>) {
            return FieldKind::real;
        } else if constexpr (std::is_same_v<Value, QString>) {
            return FieldKind::text;
        } else if constexpr (std::is_same_v<Value, Date>) {
            return FieldKind::date;
        } else if constexpr (std::is_same_v<Value, Series>) {
            return FieldKind::series;
        } else {
            static_assert(std::is_same_v<Value, Image>, "a record holds no such kind of field");
            return FieldKind::image;
        }
    }

    FieldKind kind_ = FieldKind::integer;
    Address address_ = nullptr;
};

namespace fielddetail {

template <class>
struct Traits;
template <class Itself, class Held>
struct Traits<Held Itself::*> {
    using Owner = Itself;
    using Value = Held;
};

}  // namespace fielddetail

/// The field that a member holds: member<&Plongee::lieu>.
template <auto pointer>
inline constexpr Field member = Field::ofMember<typename fielddetail::Traits<decltype(pointer)>::Owner,
                                                typename fielddetail::Traits<decltype(pointer)>::Value, pointer>();

}  // namespace tavrel
