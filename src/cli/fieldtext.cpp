#include "cli/fieldtext.h"

#include "base/numbers.h"

#include <QStringList>

namespace tavrel {

namespace {

QString textOf(qint32 value) {
    return QString::number(value);
}
QString textOf(float value) {
    return shortestText(value);
}
QString textOf(const QString& value) {
    return value;
}
QString textOf(const Date& value) {
    return value.toIso();
}
QString textOf(const Image& value) {
    return value.tiff.isEmpty() ? QString() : QStringLiteral("%1 × %2").arg(value.width).arg(value.height);
}
QString textOf(const Series& value) {
    QStringList numbers;
    for (std::size_t index = 0; index < value.size(); ++index) {
        const Number number = value.at(index);
        numbers.append(number.isReal() ? shortestText(number.real) : QString::number(number.integer));
    }
    return numbers.join(u',');
}

}  // namespace

QString fieldText(const FieldValue& value) {
    return std::visit([](const auto& held) { return textOf(held); }, value);
}

}  // namespace tavrel
