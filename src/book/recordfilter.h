#pragma once

#include "base/foldedtext.h"
#include "book/column.h"
#include "forms/control.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <span>
#include <vector>

namespace tavrel {

class BookBase;

/// A field of a book's records as a filter asks for it.
struct FilterField {
    Field field;
    std::string_view key;
    QStringList names;  ///< folded, letters and digits alone: its key, its words in the form and in the table
    QString title;      ///< the words that the user knows it by; empty for a field that is nowhere to be seen
    std::span<const Choice> choices = {};
    const Column* column = nullptr;
    std::optional<int> notGiven = {};  ///< the whole number that stands for none
    bool isSwitch = false;
    bool isTime = false;  ///< a Date of which the time of day alone counts
};

/// The fields of a book that a filter looks into: those with texts, numbers and dates.
std::vector<FilterField> filterFieldsOf(const BookBase& book);

/// What was typed into a filter, taken apart. Words stand for all of them; blanks part them, quotation marks hold them
/// together. A word that begins with a field's name, as its key or as the user sees it, blanks left out and cut short
/// at will, asks for that field alone: field:text, and for numbers, days and times field>30, >=, <, <= and =. A day may
/// be a year, a month or a day: date>=2023-05. Blanks may stand around the signs of a comparison. A number that stands
/// for none compares with nothing, and where a name is that of a number and of a choice, the number is compared.
/// Anything else is a text to be found in any field. A field whose value is still to be typed asks for nothing.
class RecordFilter {
public:
    enum class Operator { contains, less, lessOrEqual, equal, greaterOrEqual, greater };

    struct Word {
        QString text;                  ///< folded
        std::vector<int> fields = {};  ///< places in the list of fields; none: any field
        Operator operation = Operator::contains;
        std::optional<double> number = {};
        std::optional<QTime> time = {};
        std::optional<bool> isOn = {};  ///< of a switch: yes or no
        QDate firstDay = {}, lastDay = {};
    };

    RecordFilter() = default;
    RecordFilter(const QString& typed, const std::vector<FilterField>& fields);

    bool isEmpty() const { return words_.empty(); }
    const std::vector<Word>& words() const { return words_; }
    /// The words to be marked in the texts of a field, by its place in the list of fields.
    QStringList marksIn(int field) const;

private:
    std::vector<Word> words_;
};

/// Whether a comparison of numbers, days or times holds for a record in one of the word's fields.
bool holds(const RecordFilter::Word& word, const FilterField& field, const Record& record);

}  // namespace tavrel
