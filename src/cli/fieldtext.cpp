#include "cli/fieldtext.h"

#include "base/numbers.h"

#include <QStringList>

namespace tavrel {

namespace {

QString written(qint32 value) {
    return QString::number(value);
}
QString written(float value) {
    return shortestText(value);
}
QString written(const QString& value) {
    return value;
}
QString written(const Date& value) {
    return value.toIso();
}
QString written(const Image& value) {
    return value.tiff.isEmpty() ? QString() : QStringLiteral("%1 × %2").arg(value.width).arg(value.height);
}
QString written(const Series& value) {
    QStringList numbers;
    for (std::size_t index = 0; index < value.size(); ++index) {
        const Number number = value.at(index);
        numbers.append(number.isReal() ? shortestText(number.real) : QString::number(number.integer));
    }
    return numbers.join(u',');
}

}  // namespace

QString fieldText(const FieldValue& value) {
    return std::visit([](const auto& held) { return written(held); }, value);
}

}  // namespace tavrel
