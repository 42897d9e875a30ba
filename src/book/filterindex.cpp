#include "book/filterindex.h"

#include "base/decimalsign.h"
#include "records/nodate.h"

#include <algorithm>
#include <cstring>
#include <numeric>
#include <utility>

namespace tavrel {

namespace {

// Folding leaves no control characters, so that no text runs into the next.
constexpr char betweenFields = '\x1f';
constexpr char betweenWords = '\x1e';

constexpr std::size_t recordsPerQuestion = 1024;

bool isNought(const FilterField& field, const Record& record) {
    const qint32* integer = field.field.get<qint32>(record);
    const float* real = field.field.get<float>(record);
    return (integer && (*integer == 0 || *integer == field.notGiven)) || (real && *real == 0);
}

/// What a field is found by beside the words of its cell; empty for switches, for numbers that are 0 or stand for none,
/// and for no date.
QString plainWords(const FilterField& field, const Record& record, const TableStyle& style) {
    if (const qint32* tag = field.field.get<qint32>(record); tag && !field.choices.empty()) {
        const auto choice = std::find_if(field.choices.begin(), field.choices.end(),
                                         [tag](const Choice& each) { return each.tag == *tag; });
        return choice == field.choices.end() ? QString::number(*tag) : choice->title.text();
    }
    if (const Date* date = field.field.get<Date>(record)) {
        if (field.isTime) {
            return date->isNull() || *date == noDate() ? QString() : date->toDateTime().time().toString(u"HH:mm");
        }
        return isNoDate(*date) ? QString()
                               : plainText(record, field.field, style) + QLatin1Char(betweenWords) +
                                     date->toDateTime().date().toString(Qt::ISODate);
    }
    return field.isSwitch || isNought(field, record) ? QString() : plainText(record, field.field, style);
}

void append(std::string& words, const QString& text) {
    for (const QStringView each : QStringView(text).split(QChar(QLatin1Char(betweenWords)))) {
        const QByteArray bytes = folded(each).toUtf8();
        words.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        words += betweenWords;
    }
    // Numbers are found as the file has them and as the window shows them.
    if (const QString shown = text.contains(u'.') ? withDecimalSign(text) : text; shown != text) {
        append(words, shown);
    }
}

}  // namespace

FilterIndex::FilterIndex(RecordList records, Fields fields, const TableStyle& style, const Cancelled& cancelled)
    : records_(std::move(records)), fields_(std::move(fields)) {
    starts_.reserve(records_.size() + 1);
    for (std::size_t place = 0; place < records_.size(); ++place) {
        if (cancelled && place % recordsPerQuestion == 0 && cancelled()) {
            break;
        }
        starts_.push_back(words_.size());
        add(*records_[place], style);
    }
    starts_.resize(records_.size() + 1, words_.size());
}

void FilterIndex::add(const Record& record, const TableStyle& style) {
    for (const FilterField& field : *fields_) {
        const QString plain = plainWords(field, record, style);
        append(words_, plain);
        if (field.column && field.column->cell) {
            Cell cell;
            cell.text = plainText(record, field.field, style);
            field.column->cell(record, style, cell);
            if (cell.inWords() != plain) {
                append(words_, cell.inWords());
            }
        }
        words_ += betweenFields;
    }
}

std::string_view FilterIndex::wordsOf(std::size_t record) const {
    return std::string_view(words_).substr(starts_[record], starts_[record + 1] - starts_[record]);
}

std::string_view FilterIndex::wordsOf(std::size_t record, int field) const {
    std::string_view rest = wordsOf(record);
    for (int place = 0; place < field; ++place) {
        rest.remove_prefix(std::min(rest.size(), rest.find(betweenFields) + 1));
    }
    return rest.substr(0, rest.find(betweenFields));
}

bool FilterIndex::matches(std::size_t record, const RecordFilter::Word& word, std::string_view text) const {
    if (word.fields.empty()) {
        return wordsOf(record).find(text) != std::string_view::npos;
    }
    return std::any_of(word.fields.begin(), word.fields.end(), [&](int place) {
        const FilterField& field = (*fields_)[static_cast<std::size_t>(place)];
        if (word.operation == RecordFilter::Operator::contains && !(field.isSwitch && word.isOn)) {
            return wordsOf(record, place).find(text) != std::string_view::npos;
        }
        return holds(word, field, *records_[record]);
    });
}

std::vector<int> FilterIndex::recordsWith(std::string_view text, const Cancelled& cancelled) const {
    std::vector<int> found;
    const char* const end = words_.data() + words_.size();
    const char* place = words_.data();
    std::size_t record = 0;
    while (!(cancelled && found.size() % recordsPerQuestion == 0 && cancelled())) {
        place =
            static_cast<const char*>(memmem(place, static_cast<std::size_t>(end - place), text.data(), text.size()));
        if (!place) {
            break;
        }
        const auto offset = static_cast<std::size_t>(place - words_.data());
        const auto next =
            std::upper_bound(starts_.begin() + static_cast<std::ptrdiff_t>(record), starts_.end(), offset);
        record = static_cast<std::size_t>(next - starts_.begin()) - 1;
        found.push_back(static_cast<int>(record));
        place = words_.data() + starts_[record + 1];
    }
    return found;
}

std::vector<int> FilterIndex::matches(const RecordFilter& filter, const Cancelled& cancelled) const {
    // The word that a plain search finds soonest leaves few records for the others.
    std::vector<std::pair<const RecordFilter::Word*, std::string>> words;
    for (const RecordFilter::Word& word : filter.words()) {
        words.emplace_back(&word, word.text.toStdString());
    }
    const auto first = std::max_element(words.begin(), words.end(), [](const auto& left, const auto& right) {
        const auto weight = [](const auto& each) { return each.first->fields.empty() ? each.second.size() : 0; };
        return weight(left) < weight(right);
    });
    std::vector<int> found;
    if (first != words.end() && first->first->fields.empty()) {
        found = recordsWith(first->second, cancelled);
        words.erase(first);
    } else {
        found.resize(records_.size());
        std::iota(found.begin(), found.end(), 0);
    }
    for (const auto& word : words) {
        std::size_t asked = 0;
        bool isCancelled = false;
        std::erase_if(found, [&](int record) {
            isCancelled = isCancelled || (cancelled && asked++ % recordsPerQuestion == 0 && cancelled());
            return isCancelled || !matches(static_cast<std::size_t>(record), *word.first, word.second);
        });
    }
    return found;
}

}  // namespace tavrel
