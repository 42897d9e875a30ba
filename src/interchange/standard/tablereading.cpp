#include "interchange/standard/tablereading.h"

#include "base/numbers.h"
#include "base/texts.h"
#include "calculators/conversions.h"
#include "dives/divewords.h"
#include "interchange/standard/csvtext.h"
#include "interchange/standard/filetime.h"
#include "interchange/standard/filevalues.h"
#include "interchange/xml/xmlencoding.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <span>

namespace tavrel {

namespace {

constexpr std::size_t mostColumns = 1000;
constexpr qsizetype longestExample = 60;

/// The field of a heading; null when it is none.
const Item* itemOf(const QString& heading, const TableColumns& chosen) {
    const QString plain = heading.trimmed();
    if (const auto own = chosen.find(plain); own != chosen.end()) {
        return csvItem(own->second);
    }
    const std::string key = plain.toStdString();
    const auto older = std::find_if(listColumns.begin(), listColumns.end(),
                                    [&](const ListColumnName& column) { return column.heading == key; });
    return csvItem(older == listColumns.end() ? plain : QString::fromLatin1(older->field));
}

/// The cells of a text, row by row.
class Rows {
public:
    Rows(QStringView text, QChar separator) : text_(text), separator_(separator) {}

    /// The next row; none at the end.
    std::optional<QStringList> next() {
        if (at_ >= text_.size()) {
            return std::nullopt;
        }
        QStringList row;
        QString cell;
        bool quoted = false;
        for (; at_ < text_.size(); ++at_) {
            const QChar sign = text_[at_];
            if (quoted) {
                const bool doubled = sign == u'"' && at_ + 1 < text_.size() && text_[at_ + 1] == u'"';
                if (doubled || sign != u'"') {
                    cell += sign;
                    at_ += doubled ? 1 : 0;
                } else {
                    quoted = false;
                }
            } else if (sign == u'"' && cell.isEmpty()) {
                quoted = true;
            } else if (sign == separator_) {
                row.append(std::exchange(cell, {}));
            } else if (sign == u'\n' || sign == u'\r') {
                // One end of line, however it is written.
                at_ += sign == u'\r' && at_ + 1 < text_.size() && text_[at_ + 1] == u'\n' ? 2 : 1;
                row.append(cell);
                return row;
            } else {
                cell += sign;
            }
        }
        row.append(cell);
        return row;
    }

    qsizetype position() const { return at_; }

private:
    QStringView text_;
    QChar separator_;
    qsizetype at_ = 0;
};

/// The words of a field that the older text exports write instead of its codes.
std::span<const Title> wordsOf(std::string_view key) {
    return key == "meteo"        ? std::span<const Title>(words::weather)
           : key == "courant"    ? std::span<const Title>(words::current)
           : key == "visibilite" ? std::span<const Title>(words::visibility)
                                 : std::span<const Title>();
}

/// The number that a cell begins with, in the logbook's unit, where the cell names another of a length or a
/// temperature.
std::optional<double> fromNamedUnit(const QString& cell, std::string_view key, bool usUnits) {
    static const QRegularExpression unit(
        QStringLiteral(R"([\d.,]\s*(?:(ft|feet|foot|pieds?)|(m|m[eè]tres?|meters?)|°?\s*(?:(F)|(C)))\.?\s*$)"),
        QRegularExpression::CaseInsensitiveOption);
    constexpr double hundredths = 100;
    const auto match = unit.match(cell);
    const auto names = [&](int group) { return !match.captured(group).isEmpty(); };
    const auto length = [](double converted) { return std::round(converted * hundredths) / hundredths; };
    const double number = doubleValue(cell);
    // The m of a time is a minute.
    if (!match.hasMatch() || key == "temps") {
        return std::nullopt;
    }
    if (names(usUnits ? 2 : 1)) {
        return length(usUnits ? inUnit("feet", "metres", number) : inUnit("metres", "feet", number));
    }
    if (names(usUnits ? 4 : 3)) {
        return usUnits ? inUnit("fahrenheit", "celsius", number) : inUnit("celsius", "fahrenheit", number);
    }
    return std::nullopt;
}

/// Takes a cell into a dive; false where it is no value of the field.
struct TakeCell {
    std::string_view key;
    const QString& cell;
    bool usUnits;

    bool operator()(qint32& value) const {
        if (startsWithNumber(cell)) {
            value = rounded(fromNamedUnit(cell, key, usUnits).value_or(doubleValue(cell)));
            return true;
        }
        const auto itsWords = wordsOf(key);
        const auto word = std::find_if(itsWords.begin(), itsWords.end(), [&](const Title& title) {
            return cell == (title.isEmpty() ? QStringLiteral("N/A") : text(title));
        });
        if (word == itsWords.end()) {
            return false;
        }
        value = static_cast<qint32>(word - itsWords.begin());
        return true;
    }
    bool operator()(float& value) const {
        const auto converted = fromNamedUnit(cell, key, usUnits);
        const float number = converted ? static_cast<float>(*converted) : floatValue(cell);
        const bool isValue = startsWithNumber(cell) && std::isfinite(number);
        value = isValue ? number : value;
        return isValue;
    }
    bool operator()(QString& value) const {
        value = cell;
        return true;
    }
    bool operator()(Date&) const { return true; }
    bool operator()(Series& value) const {
        std::vector<double> numbers;
        bool whole = true;
        for (const QString& number : cell.split(u' ', Qt::SkipEmptyParts)) {
            const double read = doubleValue(number);
            whole = whole && startsWithNumber(number) && std::isfinite(read);
            numbers.push_back(std::isfinite(read) ? read : 0);
        }
        value = Series::ofReals(numbers);
        return whole;
    }
    bool operator()(Image&) const { return true; }
};

/// Reads the lines below the headings.
class TableReader {
public:
    TableReader(Table& table, const std::vector<const Item*>& items, bool usUnits)
        : table_(table), items_(items), usUnits_(usUnits) {}

    FoundDive read(const QStringList& row) {
        FoundDive found;
        found.dive = unknownDive();
        std::optional<FileTime> start;
        QTime time;
        for (std::size_t column = 0; column < items_.size() && static_cast<qsizetype>(column) < row.size(); ++column) {
            const QString& cell = row[static_cast<qsizetype>(column)];
            if (cell.isEmpty()) {
                continue;
            }
            const Item* item = items_[column];
            bool isTaken = item != nullptr;
            if (item && item->key() == "date") {
                const auto moment = fileTime(cell);
                isTaken = moment.has_value();
                start = moment ? moment : start;
            } else if (item && item->key() == "heure") {
                const auto moment = fileTime(cell);
                time = moment ? moment->time : fileClock(cell);
                isTaken = time.isValid();
            } else if (item) {
                isTaken = item->field().visit(found.dive, TakeCell{item->key(), cell, usUnits_});
            }
            if (!isTaken) {
                found.lose(table_.columns[column].heading, cell);
            }
        }
        if (start) {
            setStart(found.dive, start->day, time.isValid() ? time : start->time);
            noteOrder(*start);
        }
        ++read_;
        makeFlagsWhole(found.dive);
        found.dive.profilArraysDefaultContent();
        return found;
    }

    void noteExamples(const QStringList& row) const {
        for (std::size_t column = 0; column < items_.size(); ++column) {
            QString& example = table_.columns[column].example;
            if (example.isEmpty()) {
                example = row.value(static_cast<qsizetype>(column)).simplified().left(longestExample);
            }
        }
    }

    /// Where some day of the table can only stand behind its month, so do those that could be either.
    void settleOrder() {
        if (!monthFirst_ || dayFirst_) {
            return;
        }
        for (const auto& [number, start] : ambiguous_) {
            const QDate written = start.day.addDays(start.endsDay ? -1 : 0);
            const QDate swapped(written.year(), written.day(), written.month());
            Plongee& dive = table_.found.dives[number].dive;
            setStart(dive, swapped.addDays(start.endsDay ? 1 : 0), dive.heure.toDateTime().time());
        }
    }

private:
    void noteOrder(const FileTime& start) {
        dayFirst_ = dayFirst_ || start.order == FileTime::Order::dayFirst;
        monthFirst_ = monthFirst_ || start.order == FileTime::Order::monthFirst;
        if (start.order == FileTime::Order::either) {
            ambiguous_.emplace_back(read_, start);
        }
    }

    /// Flags are whole numbers in a dive.
    static void makeFlagsWhole(Plongee& dive) {
        for (const ProfileSeriesKind& kind : profileSeriesKinds) {
            const auto series = kind.series;
            if (kind.real || (dive.*series).size() <= 1) {
                continue;
            }
            std::vector<qint32> flags;
            for (std::size_t sample = 0; sample < (dive.*series).size(); ++sample) {
                flags.push_back((dive.*series).integer(sample));
            }
            dive.*series = Series::ofIntegers(flags);
        }
    }

    Table& table_;
    const std::vector<const Item*>& items_;
    bool usUnits_;
    std::size_t read_ = 0;
    bool dayFirst_ = false;
    bool monthFirst_ = false;
    std::vector<std::pair<std::size_t, FileTime>> ambiguous_;  ///< by the dive's number
};

QString decoded(QByteArrayView bytes) {
    const auto converted = textInUtf8(bytes);
    return QString::fromUtf8(converted ? QByteArrayView(*converted) : bytes);
}

QStringView firstLine(const QString& text) {
    const auto end = std::find_if(text.begin(), text.end(), [](QChar sign) { return sign == u'\n' || sign == u'\r'; });
    return QStringView(text).left(end - text.begin());
}

QChar separatorOf(QStringView first) {
    return first.contains(u'\t') ? u'\t' : first.count(u';') > first.count(u',') ? u';' : u',';
}

}  // namespace

bool holdsDay(const std::vector<TableColumn>& columns) {
    return std::any_of(columns.begin(), columns.end(),
                       [](const TableColumn& column) { return column.field == QLatin1String("date"); });
}

std::optional<Table> readTable(QByteArrayView bytes, const TableColumns& chosen, const Progress& progress,
                               bool usUnits) {
    constexpr std::size_t rowsPerProgress = 64;
    constexpr std::size_t rowsOfExamples = 20;
    const QString whole = decoded(bytes);
    const QStringView first = firstLine(whole);
    if (first.contains(QChar(0))) {
        return std::nullopt;
    }
    Rows rows(whole, separatorOf(first));
    const QStringList headings = rows.next().value_or(QStringList());
    if (headings.size() < 2 || static_cast<std::size_t>(headings.size()) > mostColumns) {
        return std::nullopt;
    }
    Table table;
    std::vector<const Item*> items;
    for (const QString& heading : headings) {
        const Item* item = items.emplace_back(itemOf(heading, chosen));
        const QString field = item ? QString::fromLatin1(item->key()) : QString();
        table.columns.push_back({heading.trimmed(), field, {}});
    }
    const bool hasDay = holdsDay(table.columns);
    TableReader reader(table, items, usUnits);
    bool isEven = true;
    for (std::size_t number = 0; const auto row = rows.next(); ++number) {
        if (row->size() <= 1 && row->value(0).isEmpty()) {
            continue;
        }
        if (number < rowsOfExamples) {
            reader.noteExamples(*row);
            isEven = isEven && row->size() == headings.size();
        } else if (!hasDay) {
            break;
        }
        if (table.found.dives.size() >= mostDives) {
            table.found.tooMany = true;
            break;
        }
        if (hasDay) {
            table.found.dives.push_back(reader.read(*row));
        }
        if (number % rowsPerProgress == 0 && progress &&
            !progress(static_cast<std::size_t>(rows.position()), static_cast<std::size_t>(whole.size()))) {
            break;
        }
    }
    reader.settleOrder();
    table.found.asStored = true;
    const bool saysSomething = std::any_of(table.columns.begin(), table.columns.end(),
                                           [](const TableColumn& column) { return !column.example.isEmpty(); });
    return hasDay || (isEven && saysSomething) ? std::optional(std::move(table)) : std::nullopt;
}

}  // namespace tavrel
