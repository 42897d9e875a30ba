#pragma once

#include "dives/plongee.h"

#include <QDateTime>
#include <QStringList>

#include <map>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tavrel {

/// Why a dive that was found in a file may not be what it seems.
enum class Doubt { noDate, tooDeep, inFuture, noSamples, groupSkipped };

/// The word of a doubt for programs, the same in every language.
QString doubtName(Doubt doubt);

/// Something that stands in a file and has no place in a dive: its name as the file's format calls it, and its words,
/// if it holds any, which the notes may take.
struct LostItem {
    QString name;
    QString text;
};

/// A dive as it was found in a file, not yet in a logbook.
struct FoundDive {
    Plongee dive;
    std::vector<Doubt> doubts;
    std::vector<LostItem> lost;  ///< one of each name
    bool duplicate = false;      ///< the logbook holds it already, or the file names it twice

    bool has(Doubt doubt) const;
    /// What is to be said of it to the user: that it is there already, and its doubts.
    QStringList remarks() const;
    /// Each text is held once under its name, on a line of its own.
    void lose(const QString& name, const QString& text = {});

private:
    std::vector<std::uint32_t> byName_;  // places of what is lost, by its names
    /// The texts of what is lost at a place, where it has several.
    std::unordered_map<std::size_t, std::unordered_set<QString>> said_;
};

/// Several times what a diver of a lifetime has; a file of empty elements would fill the memory with dives.
inline constexpr std::size_t mostDives = 500'000;

/// All dives of a file in its order.
struct FoundDives {
    std::vector<FoundDive> dives;
    QStringList lostWithFile;  ///< what belongs to no dive
    QString damage;            ///< where the file is damaged, line:column; dives behind it may be missing
    bool tooMany = false;      ///< more than anyone dives, and so not read
    bool asStored = false;     ///< the numbers are those of a logbook, in its units; else metres and degrees Celsius

    /// How many dives lose each item.
    std::map<QString, int> lostCounts() const;
};

/// The dive that a list of dives holds as a record.
inline const Plongee& asDive(const RecordPointer& record) {
    return static_cast<const Plongee&>(*record);
}

/// Gives the long texts that several dives hold one memory.
class SharedTexts {
public:
    void share(FoundDive& found);

private:
    void share(QString& text);

    std::unordered_set<QString> texts_;
};

/// A dive of which nothing is known: the values that stand for "not given" in a cleared form, and no profile.
Plongee unknownDive();

/// When the dive began, as the clock on the boat showed it: the day of `date` with the time of `heure`. Invalid without
/// a date; midnight without a time.
QDateTime startOf(const Plongee& dive);
/// Sets both. Without a time the dive starts at midnight.
void setStart(Plongee& dive, const QDate& day, const QTime& time);

/// Depths beyond this were dived by nobody, metres.
inline constexpr double implausibleDepth = 350;

/// Notes what is doubtful about the dives: beside what their reading found, no date, an implausible depth, a start
/// after `now` (in local time), no samples.
void doubt(FoundDives& found, const QDateTime& now);

/// Marks the dives that are in the list already: the same start within two minutes, the depth within a metre or 5 %,
/// the time within two minutes or 10 %; and those that the file names twice, with the same start, depth, time and
/// profile, and without a time of day or a profile the same number, place and notes. Dives without a date are never the
/// same.
void markDuplicates(FoundDives& found, const RecordList& held);

/// The gas that a dive was made on, percent: that of the first tank, with a closed rebreather the diluent.
struct BreathedGas {
    qint32 oxygen;
    qint32 helium;
};
BreathedGas breathedGas(const Plongee& dive);

/// Adds the words of what is lost to the notes, a paragraph each.
void keepLostTexts(FoundDive& found);

}  // namespace tavrel
