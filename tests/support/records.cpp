#include "support/records.h"

#include "base/numbers.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace tavrel {

namespace {

void take(const QString& text, qint32& held) {
    held = text.toInt();
}
void take(const QString& text, float& held) {
    held = text.toFloat();
}
void take(const QString& text, QString& held) {
    held = text;
}
void take(const QString& text, Series& held) {
    std::vector<double> numbers;
    for (const QString& number : text.split(u' ')) {
        numbers.push_back(number.toDouble());
    }
    held = Series::ofReals(numbers);
}
template <class Other>
void take(const QString& text, Other&) {
    ADD_FAILURE() << text.toStdString() << ": not of a kind that is written so";
}

QString said(qint32 held) {
    return QString::number(held);
}
QString said(float held) {
    return shortestText(held);
}
QString said(const QString& held) {
    return held;
}
template <class Other>
QString said(const Other&) {
    return QStringLiteral("not of a kind that is said so");
}

}  // namespace

void setFields(Record& record, const RecordLayout& layout, const char* fields) {
    for (const QString& entry : QString::fromUtf8(fields).split(u';')) {
        const Field field = layout.field(entry.section(u'=', 0, 0).trimmed().toStdString());
        ASSERT_FALSE(field.isNull()) << entry.toStdString();
        FieldValue value = field.value(record);
        std::visit([&](auto& held) { take(entry.section(u'=', 1).trimmed(), held); }, value);
        EXPECT_TRUE(field.setValue(record, value)) << entry.toStdString();
    }
}

QString fieldsOf(const Record& record, const RecordLayout& layout, const char* names) {
    QStringList texts;
    for (const QString& name : QString::fromUtf8(names).split(u' ')) {
        const Field field = layout.field(name.toStdString());
        texts.append(field.isNull() ? name + QStringLiteral(" is no field")
                                    : std::visit([](const auto& held) { return said(held); }, field.value(record)));
    }
    return texts.join(QStringLiteral("; "));
}

}  // namespace tavrel
