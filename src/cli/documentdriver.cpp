#include "cli/documentdriver.h"

#include "cli/logbookdriver.h"
#include "forms/formentry.h"
#include "platform/recordarchive.h"
#include "platform/texts.h"

#include <QFileInfo>

namespace tavrel {

namespace {

constexpr DocumentKind kinds[] = {
    {"Carnet de plongee", "Plongee", "carnet",
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
    return enterBeside(field, value)
        .value_or(failure(textWith("Main", "No such field", QStringLiteral("error !"), field)));
}

QString DocumentKind::name() const {
    return text("Main", key);
}

std::span<const DocumentKind> documentKinds() {
    return kinds;
}

const DocumentKind* documentKindNamed(const QString& name) {
    for (const DocumentKind& kind : kinds) {
        if (name.compare(kind.name(), Qt::CaseInsensitive) == 0 ||
            name.compare(QLatin1StringView(kind.key), Qt::CaseInsensitive) == 0) {
            return &kind;
        }
    }
    return nullptr;
}

Expected<const DocumentKind*> documentKindOf(const QString& path, QByteArrayView file) {
    const auto recordClass = recordClassOf(file);
    if (!recordClass) {
        return tl::unexpected(recordClass.error());
    }
    const QString ending = QFileInfo(path).suffix();
    for (const DocumentKind& kind : kinds) {
        if (recordClass->isNull() ? ending.compare(QLatin1StringView(kind.ending), Qt::CaseInsensitive) == 0
                                  : *recordClass == QLatin1StringView(kind.recordClass)) {
            return &kind;
        }
    }
    if (recordClass->isNull()) {
        return &kinds[0];
    }
    return failure(textWith("Cli", "Unknown records", QStringLiteral("error !"), *recordClass));
}

}  // namespace tavrel
