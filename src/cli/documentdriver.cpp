#include "cli/documentdriver.h"

#include "base/texts.h"
#include "cli/logbookdriver.h"
#include "forms/formentry.h"

namespace tavrel {

namespace {

constexpr DriverKind kinds[] = {
    {Carnet::kind,
     [](Desktop& desktop) -> std::unique_ptr<DocumentDriver> { return std::make_unique<LogbookDriver>(desktop); }},
};

/// The index of a control that takes entries, by its name or its field; -1 when there is none.
int entryIndex(const FormStateBase& form, const QString& field) {
    const int index = form.table().find(field.toStdString());
    const auto& controls = form.table().controls();
    return index >= 0 && takesEntries(controls[static_cast<std::size_t>(index)].control.kind) ? index : -1;
}

}  // namespace

bool DocumentDriver::hasEntry(const QString& field) {
    return entryIndex(form(), field) >= 0 || hasEntryBeside(field);
}

Expected<void> DocumentDriver::enter(const QString& field, const QString& value) {
    if (const int index = entryIndex(form(), field); index >= 0) {
        return enterValue(form(), index, value);
    }
    return enterBeside(field, value).value_or(failure(textWith("Main", "No such field", field)));
}

std::span<const DriverKind> documentKinds() {
    return kinds;
}

}  // namespace tavrel
