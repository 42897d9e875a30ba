#include "book/recordfilter.h"

#include "base/numbers.h"
#include "book/book.h"
#include "records/nodate.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tavrel {

namespace {

using Operator = RecordFilter::Operator;
using Word = RecordFilter::Word;

QString nameOf(QStringView words) {
    QString name = folded(words);
    name.removeIf([](QChar each) { return !each.isLetterOrNumber(); });
    return name;
}

void addName(FilterField& field, const QString& words) {
    const QString name = nameOf(words);
    if (!name.isEmpty() && !field.names.contains(name)) {
        field.names.append(name);
    }
}

/// The fields that have the name; where none has, those with one that begins so.
std::vector<int> fieldsNamed(const std::vector<FilterField>& fields, const QString& name) {
    std::vector<int> exact;
    std::vector<int> beginning;
    for (std::size_t place = 0; place < fields.size(); ++place) {
        for (const QString& each : fields[place].names) {
            if (each == name) {
                exact.push_back(static_cast<int>(place));
                break;
            }
            if (each.startsWith(name) && (beginning.empty() || beginning.back() != static_cast<int>(place))) {
                beginning.push_back(static_cast<int>(place));
            }
        }
    }
    return name.isEmpty() ? std::vector<int>() : exact.empty() ? beginning : exact;
}

struct Sign {
    QStringView text;
    Operator operation;
};
/// The longer ones first.
constexpr std::array<Sign, 8> signs{{{u">=", Operator::greaterOrEqual},
                                     {u"<=", Operator::lessOrEqual},
                                     {u"≥", Operator::greaterOrEqual},
                                     {u"≤", Operator::lessOrEqual},
                                     {u":", Operator::contains},
                                     {u">", Operator::greater},
                                     {u"<", Operator::less},
                                     {u"=", Operator::equal}}};

bool beginsWith(QStringView text, const Sign& sign) {
    return text.startsWith(sign.text);
}

/// Whether blanks at the front are followed by a sign of a comparison.
bool comparesNext(QStringView text) {
    const QStringView next = text.trimmed();
    return std::any_of(signs.begin(), signs.end(), [next](const Sign& sign) {
        return sign.operation != Operator::contains && beginsWith(next, sign);
    });
}

/// A word without its quotation marks and the blanks around its sign, and where the sign stands; -1 for none.
struct Typed {
    QString text;
    QStringList parts = {QString()};  ///< the text apart at these blanks
    qsizetype place = -1;
    Sign sign = {};
};

std::vector<Typed> parted(const QString& typed) {
    std::vector<Typed> words;
    Typed word;
    bool isQuoted = false;
    const auto end = [&] {
        if (!word.text.trimmed().isEmpty()) {
            words.push_back(word);
        }
        word = {};
    };
    for (qsizetype place = 0; place < typed.size(); ++place) {
        const QChar each = typed[place];
        if (each == u'"' || each == u'“' || each == u'”' || each == u'«' || each == u'»') {
            isQuoted = !isQuoted;
        } else if (each.isSpace() && !isQuoted) {
            const bool isBehindSign = word.place > 0 && word.sign.operation != Operator::contains &&
                                      word.text.size() == word.place + word.sign.text.size();
            const bool isBeforeSign =
                word.place < 0 && !word.text.isEmpty() && comparesNext(QStringView(typed).sliced(place));
            if (!isBehindSign && !isBeforeSign) {
                end();
            } else {
                word.parts.append(QString());
            }
        } else {
            const auto sign = std::find_if(signs.begin(), signs.end(), [&](const Sign& candidate) {
                return beginsWith(QStringView(typed).sliced(place), candidate);
            });
            if (!isQuoted && word.place < 0 && sign != signs.end()) {
                word.place = word.text.size();
                word.sign = *sign;
                word.text += sign->text;
                word.parts.back() += sign->text;
                place += sign->text.size() - 1;
            } else {
                word.text += each;
                word.parts.back() += each;
            }
        }
    }
    end();
    return words;
}

void readDays(const QString& value, Word& word) {
    if (const auto day = QDate::fromString(value, QStringLiteral("yyyy-M-d")); day.isValid()) {
        word.firstDay = word.lastDay = day;
    } else if (const auto month = QDate::fromString(value, QStringLiteral("yyyy-M")); month.isValid()) {
        word.firstDay = month;
        word.lastDay = month.addMonths(1).addDays(-1);
    } else if (const auto year = QDate::fromString(value, QStringLiteral("yyyy")); year.isValid()) {
        word.firstDay = year;
        word.lastDay = year.addYears(1).addDays(-1);
    } else {
        const QLocale locale;
        QString format = locale.dateFormat(QLocale::ShortFormat);
        if (!format.contains(QStringLiteral("yyyy"))) {
            format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
        }
        word.firstDay = word.lastDay = locale.toDate(value, format);
    }
}

void readValue(const QString& value, Word& word) {
    word.text = folded(value);
    if (startsWithNumber(value)) {
        word.number = doubleValue(value);
    }
    readDays(value, word);
    for (const QString& format :
         {QStringLiteral("H:m"), QStringLiteral("H'h'm"), QStringLiteral("H'h'"), QStringLiteral("H")}) {
        if (const auto time = QTime::fromString(value, format); time.isValid() && !word.time) {
            word.time = time;
        }
    }
    const auto is = [&word](std::initializer_list<QString> words) {
        return std::find(words.begin(), words.end(), word.text) != words.end();
    };
    if (is({folded(text("Main", "Yes")), QStringLiteral("1")})) {
        word.isOn = true;
    } else if (is({folded(text("Main", "No")), QStringLiteral("0")})) {
        word.isOn = false;
    }
}

bool isComparable(const Word& word) {
    return word.number || word.time || word.isOn || word.firstDay.isValid();
}

template <class Value>
bool compare(Operator operation, const Value& value, const Value& first, const Value& last) {
    switch (operation) {
        case Operator::less:
            return value < first;
        case Operator::lessOrEqual:
            return value <= last;
        case Operator::greater:
            return value > last;
        case Operator::greaterOrEqual:
            return value >= first;
        default:
            return value >= first && value <= last;
    }
}

}  // namespace

std::vector<FilterField> filterFieldsOf(const BookBase& book) {
    std::vector<FilterField> fields;
    const std::vector<Group>& groups = book.form().state().table().groups();
    for (const Item& item : book.layout().items) {
        const Field field = item.field();
        const bool isKnown =
            std::any_of(fields.begin(), fields.end(), [&](const FilterField& each) { return each.field == field; });
        if (isKnown || field.kind() == FieldKind::series || field.kind() == FieldKind::image) {
            continue;
        }
        FilterField found{field, item.key(), {}, {}};
        addName(found, QString::fromLatin1(item.key()));
        for (const PlacedControl& placed : book.form().state().table().controls()) {
            if (placed.field == item.key()) {
                found.title = text(placed.control.label, {});
                addName(found, found.title);
                if (found.title.isEmpty()) {  // a field that fills its group goes by the group's words
                    addName(found, text(groups[static_cast<std::size_t>(placed.group)].title, {}));
                }
                found.notGiven = placed.control.notGiven;
                found.choices =
                    placed.control.kind == ControlKind::rating ? std::span<const Choice>() : placed.control.choices;
                found.isSwitch = placed.control.kind == ControlKind::onOff;
                found.isTime = placed.control.kind == ControlKind::time;
                break;
            }
        }
        for (const Column& column : book.description().columns) {
            if (column.field == item.key()) {
                found.column = &column;
                found.title = column.title.text();
                addName(found, found.title);
            }
        }
        fields.push_back(std::move(found));
    }
    return fields;
}

RecordFilter::RecordFilter(const QString& typed, const std::vector<FilterField>& fields) {
    // What asks for no field is looked for as it stands, in words.
    const auto lookFor = [this](const Typed& each) {
        for (const QString& part : each.parts) {
            if (!part.isEmpty()) {
                Word word;
                word.text = folded(part);
                words_.push_back(std::move(word));
            }
        }
    };
    for (const Typed& each : parted(typed)) {
        Word word;
        if (each.place > 0) {
            word.fields = fieldsNamed(fields, nameOf(QStringView(each.text).first(each.place)));
        }
        if (word.fields.empty()) {
            lookFor(each);
            continue;
        }
        const QString value = each.text.sliced(each.place + each.sign.text.size()).trimmed();
        if (value.isEmpty()) {
            continue;
        }
        readValue(value, word);
        word.operation = each.sign.operation;
        const auto isChoice = [&](int place) { return !fields[static_cast<std::size_t>(place)].choices.empty(); };
        if (word.operation != Operator::contains && !std::all_of(word.fields.begin(), word.fields.end(), isChoice)) {
            std::erase_if(word.fields, isChoice);
        }
        if (word.operation == Operator::equal && !isComparable(word)) {
            word.operation = Operator::contains;
        }
        if (word.operation != Operator::contains && !isComparable(word)) {
            lookFor(each);
            continue;
        }
        words_.push_back(std::move(word));
    }
}

QStringList RecordFilter::marksIn(int field) const {
    QStringList marks;
    for (const Word& word : words_) {
        const bool asksHere =
            word.fields.empty() || std::find(word.fields.begin(), word.fields.end(), field) != word.fields.end();
        if (asksHere && word.operation == Operator::contains) {
            marks.append(word.text);
        }
    }
    return marks;
}

bool holds(const RecordFilter::Word& word, const FilterField& field, const Record& record) {
    if (field.isSwitch && word.isOn) {
        const qint32* tag = field.field.get<qint32>(record);
        return tag && (*tag != 0) == *word.isOn;
    }
    switch (field.field.kind()) {
        case FieldKind::date: {
            const Date& date = *field.field.get<Date>(record);
            const QDateTime moment = date.toDateTime();
            if (field.isTime) {
                return word.time && moment.isValid() && date != noDate() &&
                       compare(word.operation, moment.time(), *word.time, *word.time);
            }
            return word.firstDay.isValid() && !isNoDate(date) &&
                   compare(word.operation, moment.date(), word.firstDay, word.lastDay);
        }
        case FieldKind::integer: {
            const qint32 value = *field.field.get<qint32>(record);
            return word.number && value != field.notGiven &&
                   compare<double>(word.operation, value, *word.number, *word.number);
        }
        case FieldKind::real: {
            const auto value = static_cast<double>(*field.field.get<float>(record));
            // What is typed means the number that the field would hold for it.
            const auto asked = word.number ? static_cast<double>(static_cast<float>(*word.number)) : 0;
            return word.number && compare(word.operation, value, asked, asked);
        }
        case FieldKind::text: {
            const QString& value = *field.field.get<QString>(record);
            return word.number && startsWithNumber(value) &&
                   compare(word.operation, doubleValue(value), *word.number, *word.number);
        }
        default:
            return false;
    }
}

}  // namespace tavrel
