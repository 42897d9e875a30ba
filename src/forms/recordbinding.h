#pragma once

#include "forms/formstate.h"
#include "records/recordlayout.h"

#include <optional>
#include <vector>

namespace tavrel {

/// The way between a record's fields and the controls of a form that bear them, found once from the table and the
/// layout. A control that names an unknown field, or one of a kind that it cannot carry, ends the program: it is an
/// error of the table.
class RecordBinding {
public:
    RecordBinding(const ControlTableBase& table, const RecordLayout& layout);

    /// Puts every field of the record that has a control into it, without any display rule.
    void load(FormStateBase& state, const Record& record) const;
    /// Takes every field of the record that has a control from it, without any correction.
    void build(const FormStateBase& state, Record& record) const;

    /// The kind of field that a control bears; nothing for one without a field.
    std::optional<FieldKind> fieldKind(int control) const;

private:
    struct Bound {
        int control;
        Field field;
        bool typed;  ///< the control holds text where the field is a number
    };

    std::vector<Bound> bound_;
};

}  // namespace tavrel
