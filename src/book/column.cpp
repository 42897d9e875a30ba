#include "book/column.h"

#include "base/numbers.h"
#include "book/bookdescription.h"
#include "desktop/clock.h"
#include "desktop/desktop.h"
#include "records/nodate.h"

#include <type_traits>

namespace tavrel {

namespace {

/// The locale's short format, years with all digits.
QString fullYearFormat(const QLocale& locale) {
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(QStringLiteral("yyyy"))) {
        format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    }
    return format;
}

}  // namespace

TableStyle::TableStyle(const Clock& clock, const QLocale& itsLocale)
    : now(clock.now()), locale(itsLocale), dateFormat(fullYearFormat(itsLocale)) {}

std::unique_ptr<TableStyle> plainTableStyle(const Desktop& desktop) {
    return std::make_unique<TableStyle>(desktop.clock);
}

QString plainText(const Record& record, const Field& field, const TableStyle& style) {
    return field.visit(record, [&style](const auto& value) -> QString {
        using Value = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, QString>) {
            return value;
        } else if constexpr (std::is_same_v<Value, Date>) {
            return isNoDate(value) ? QString() : style.locale.toString(value.toDateTime().date(), style.dateFormat);
        } else if constexpr (std::is_same_v<Value, qint32>) {
            return QString::number(value);
        } else if constexpr (std::is_same_v<Value, float>) {
            return shortestText(value);
        } else {
            return {};
        }
    });
}

}  // namespace tavrel
