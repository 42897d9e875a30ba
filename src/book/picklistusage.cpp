#include "book/picklistusage.h"

#include <QRegularExpression>
#include <QSet>

namespace tavrel {

namespace {

/// The record's field of a control; null where it has none of text.
Field textField(const BookBase& book, const PlacedControl& placed) {
    const Field field = placed.field.empty() ? Field() : book.layout().field(QString::fromStdString(placed.field));
    return field.isNull() || field.kind() != FieldKind::text ? Field() : field;
}

template <class Visit>
void forEachText(const BookBase& book, Field field, Visit visit) {
    if (field.isNull()) {
        return;
    }
    for (const RecordPointer& record : book.records()) {
        if (const QString& text = *field.get<QString>(*record); !text.isEmpty()) {
            visit(text);
        }
    }
}

}  // namespace

QStringList heldTexts(const BookBase& book, int control) {
    QSet<QString> texts;
    const auto& placed = book.form().state().table().controls()[static_cast<std::size_t>(control)];
    forEachText(book, textField(book, placed), [&](const QString& text) { texts.insert(text); });
    return texts.values();
}

QHash<QString, int> pickListUsage(const BookBase& book, PickList list) {
    static const QRegularExpression parting(QStringLiteral("\\s*[,;]\\s*"));
    QHash<QString, int> usage;
    for (const PlacedControl& placed : book.form().state().table().controls()) {
        if (placed.control.pickList != list) {
            continue;
        }
        forEachText(book, textField(book, placed), [&](const QString& text) {
            ++usage[text];
            const QStringList parts = text.split(parting, Qt::SkipEmptyParts);
            for (const QString& part : parts) {
                usage[part] += part == text ? 0 : 1;
            }
        });
    }
    return usage;
}

}  // namespace tavrel
