#pragma once

#include "forms/formstate.h"
#include "records/recordlayout.h"

#include <type_traits>

namespace tavrel {

/// The form of one table for one kind of record: its state, and the way between a record's fields and their controls.
template <class Table, class Record>
class RecordForm : public FormState<Table> {
public:
    explicit RecordForm(const Table& table) : FormState<Table>(table) {
        for (const auto& placed : table.controls()) {
            const auto* item = placed.field.empty() ? nullptr : Record::layout().find(placed.field);
            if (!item && !placed.field.empty()) {
                qFatal("The control %s names the unknown field %s", placed.name.c_str(), placed.field.c_str());
            }
            items_.push_back(item);
        }
    }

    /// Puts every field of the record that has a control into it, without any display rule.
    void load(const Record& record) {
        forEachBound([&](int index, bool typed, auto member) { put(index, typed, record.*member); });
    }

    /// Takes every field of the record that has a control from it, without any correction.
    void build(Record& record) const {
        forEachBound([&](int index, bool typed, auto member) { take(this->at(index), typed, record.*member); });
    }

private:
    template <class Visit>
    void forEachBound(Visit visit) const {
        for (std::size_t index = 0; index < items_.size(); ++index) {
            if (!items_[index]) {
                continue;
            }
            const ControlKind kind = this->table().controls()[index].control.kind;
            const bool typed =
                kind == ControlKind::wholeNumber || kind == ControlKind::text || kind == ControlKind::combo;
            std::visit([&](auto member) { visit(static_cast<int>(index), typed, member); }, items_[index]->member);
        }
    }

    template <class Value>
    void put(int index, bool typed, const Value& value) {
        FormStateBase& state = *this;
        if constexpr (std::is_same_v<Value, QString>) {
            state.setText(index, value);
        } else if constexpr (std::is_same_v<Value, Date>) {
            state.setDate(index, value);
        } else if constexpr (std::is_same_v<Value, float>) {
            state.setText(index, textOf(value));
        } else if constexpr (std::is_same_v<Value, qint32>) {
            if (typed) {
                state.setText(index, QString::number(value));
            } else {
                state.setTag(index, value);
            }
        }
    }

    template <class Value>
    static void take(const ControlState& held, bool typed, Value& target) {
        if constexpr (std::is_same_v<Value, QString>) {
            target = held.text;
        } else if constexpr (std::is_same_v<Value, Date>) {
            target = held.date;
        } else if constexpr (std::is_same_v<Value, float>) {
            target = singleOf(held);
        } else if constexpr (std::is_same_v<Value, qint32>) {
            target = typed ? integerOf(held) : held.tag;
        }
    }

    std::vector<const Item<Record>*> items_;
};

}  // namespace tavrel
