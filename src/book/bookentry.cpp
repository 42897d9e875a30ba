#include "book/bookentry.h"

#include "base/texts.h"
#include "book/bookform.h"
#include "forms/formentry.h"

namespace tavrel {

namespace {

/// The index of a control that takes entries, by its name or its field; -1 when there is none.
int entryIndex(const FormStateBase& form, const QString& name) {
    const int index = form.table().find(name.toStdString());
    const auto& controls = form.table().controls();
    return index >= 0 && takesEntries(controls[static_cast<std::size_t>(index)].control.kind) ? index : -1;
}

}  // namespace

bool readsFile(const BookForm& form, const QString& name) {
    const int index = entryIndex(form.state(), name);
    return index >= 0 &&
           form.state().table().controls()[static_cast<std::size_t>(index)].control.kind == ControlKind::picture;
}

Expected<void> enterByName(BookForm& form, const QString& name, const QString& value) {
    if (const int index = entryIndex(form.state(), name); index >= 0) {
        return enterValue(form.state(), index, value);
    }
    return form.holdsBeside(name) ? form.enterBeside(name, value) : failure(textWith("Main", "No such field", name));
}

}  // namespace tavrel
