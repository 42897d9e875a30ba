#include "support/records.h"

#include "base/numbers.h"

namespace tavrel {

namespace {

const QString nil = QStringLiteral("nil");

Date dateOf(const QString& words) {
    bool isNumber = false;
    const double seconds = words.toDouble(&isNumber);
    return isNumber ? Date(seconds) : Date::fromDateTime(QDateTime::fromString(words, Qt::ISODate));
}

FieldValue valueOf(FieldKind kind, const QString& words) {
    switch (kind) {
        case FieldKind::integer:
            return qint32(words.toInt());
        case FieldKind::real:
            return words.toFloat();
        case FieldKind::date:
            return words == nil ? Date() : dateOf(words);
        case FieldKind::series: {
            std::vector<double> numbers;
            for (const QString& number : words.split(u',')) {
                numbers.push_back(number.toDouble());
            }
            return Series::ofReals(numbers);
        }
        default:
            return words == nil ? QString() : words;
    }
}

QString said(const FieldValue& value) {
    if (const auto* number = std::get_if<qint32>(&value)) {
        return QString::number(*number);
    }
    if (const auto* number = std::get_if<float>(&value)) {
        return shortestText(*number);
    }
    const auto* text = std::get_if<QString>(&value);
    return text ? *text : QStringLiteral("not of a kind that is said so");
}

Field fieldOf(const RecordLayout& layout, const std::string& name) {
    const Field field = layout.field(std::string_view(name));
    EXPECT_FALSE(field.isNull()) << "no field " << name;
    return field;
}

}  // namespace

std::vector<std::pair<std::string, QString>> namedValues(const char* values) {
    std::vector<std::pair<std::string, QString>> pairs;
    for (const QString& pair : QString::fromUtf8(values).split(u'|')) {
        pairs.emplace_back(pair.section(u'=', 0, 0).trimmed().toStdString(), pair.section(u'=', 1));
    }
    return pairs;
}

void fill(Record& record, const RecordLayout& layout, const char* values) {
    for (const auto& [name, words] : namedValues(values)) {
        if (const Field field = fieldOf(layout, name); !field.isNull()) {
            EXPECT_TRUE(field.setValue(record, valueOf(field.kind(), words))) << name;
        }
    }
}

FieldValue distinctValue(FieldKind kind, int number) {
    const QString text = QStringLiteral("t%1").arg(number);
    switch (kind) {
        case FieldKind::integer:
            return qint32{number};
        case FieldKind::real:
            return static_cast<float>(number) + 0.5F;
        case FieldKind::text:
            return text;
        case FieldKind::date:
            return Date(number * 86400.0);
        case FieldKind::image:
            return Image{text.toLatin1(), 20, 10, {}};
        default:
            return Series::ofReals({double(number), number + 0.5});
    }
}

testing::AssertionResult holds(const Record& record, const RecordLayout& layout, const char* values) {
    auto outcome = testing::AssertionSuccess();
    for (const auto& [name, words] : namedValues(values)) {
        const Field field = fieldOf(layout, name);
        if (field.isNull()) {
            continue;
        }
        const FieldValue held = field.value(record);
        const auto* text = std::get_if<QString>(&held);
        if (held != valueOf(field.kind(), words) || (text && text->isNull() != (words == nil))) {
            outcome = testing::AssertionFailure() << outcome.message() << name << " is " << said(held).toStdString()
                                                  << ", not " << words.toStdString() << '\n';
        }
    }
    return outcome;
}

QString fieldsOf(const Record& record, const RecordLayout& layout, const char* names) {
    QStringList texts;
    for (const QString& name : QString::fromUtf8(names).split(u' ')) {
        const Field field = fieldOf(layout, name.toStdString());
        texts.append(field.isNull() ? QString() : said(field.value(record)));
    }
    return texts.join(QStringLiteral("; "));
}

}  // namespace tavrel
