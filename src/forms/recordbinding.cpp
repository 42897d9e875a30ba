#include "forms/recordbinding.h"

#include <algorithm>
#include <type_traits>

namespace tavrel {

namespace {

bool holdsText(ControlKind kind) {
    switch (kind) {
        case ControlKind::text:
        case ControlKind::wholeNumber:
        case ControlKind::decimal:
        case ControlKind::combo:
        case ControlKind::longText:
        case ControlKind::readOnly:
            return true;
        default:
            return false;
    }
}

bool holdsTag(ControlKind kind) {
    switch (kind) {
        case ControlKind::popUp:
        case ControlKind::radio:
        case ControlKind::onOff:
        case ControlKind::slider:
        case ControlKind::rating:
            return true;
        default:
            return false;
    }
}

bool carries(ControlKind control, FieldKind field) {
    switch (field) {
        case FieldKind::integer:
            return holdsText(control) || holdsTag(control);
        case FieldKind::real:
        case FieldKind::text:
            return holdsText(control);
        case FieldKind::date:
            return control == ControlKind::date || control == ControlKind::time;
        case FieldKind::image:
            return control == ControlKind::picture;
        default:
            return false;
    }
}

}  // namespace

RecordBinding::RecordBinding(const ControlTableBase& table, const RecordLayout& layout) {
    const auto& controls = table.controls();
    for (std::size_t index = 0; index < controls.size(); ++index) {
        const PlacedControl& placed = controls[index];
        if (placed.field.empty()) {
            continue;
        }
        const Field field = layout.field(placed.field);
        if (field.isNull() || !carries(placed.control.kind, field.kind())) {
            qFatal("The control %s cannot carry the field %s", placed.name.c_str(), placed.field.c_str());
        }
        bound_.push_back({static_cast<int>(index), field, holdsText(placed.control.kind)});
    }
}

std::optional<FieldKind> RecordBinding::fieldKind(int control) const {
    const auto found = std::lower_bound(bound_.begin(), bound_.end(), control,
                                        [](const Bound& bound, int wanted) { return bound.control < wanted; });
    return found == bound_.end() || found->control != control ? std::nullopt : std::optional(found->field.kind());
}

void RecordBinding::load(FormStateBase& state, const Record& record) const {
    for (const Bound& bound : bound_) {
        bound.field.visit(record, [&](const auto& value) {
            using Value = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, QString>) {
                state.setText(bound.control, value);
            } else if constexpr (std::is_same_v<Value, Date>) {
                state.setDate(bound.control, value);
            } else if constexpr (std::is_same_v<Value, float>) {
                state.setText(bound.control, textOf(value));
            } else if constexpr (std::is_same_v<Value, Image>) {
                state.setImage(bound.control, value);
            } else if constexpr (std::is_same_v<Value, qint32>) {
                if (bound.typed) {
                    state.setText(bound.control, QString::number(value));
                } else {
                    state.setTag(bound.control, value);
                }
            }
        });
    }
}

void RecordBinding::build(const FormStateBase& state, Record& record) const {
    for (const Bound& bound : bound_) {
        const ControlState& held = state.at(bound.control);
        bound.field.visit(record, [&](auto& target) {
            using Value = std::decay_t<decltype(target)>;
            if constexpr (std::is_same_v<Value, QString>) {
                target = held.text;
            } else if constexpr (std::is_same_v<Value, Date>) {
                target = held.date;
            } else if constexpr (std::is_same_v<Value, float>) {
                target = singleOf(held);
            } else if constexpr (std::is_same_v<Value, Image>) {
                target = held.image;
            } else if constexpr (std::is_same_v<Value, qint32>) {
                target = bound.typed ? integerOf(held) : held.tag;
            }
        });
    }
}

}  // namespace tavrel
