#pragma once

#include "base/texts.h"
#include "dives/divespan.h"

#include <QString>
#include <QVariantMap>

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace tavrel {

class Preferences;

/// What the statistics count: kinds of dive, breathing systems, gases, and seven bands of depth.
enum class StatCount {
    bio,
    carriere,
    derivante,
    epaves,
    explo,
    formation,
    nocturne,
    photo,
    recuperation,
    glace,
    speleo,
    tek,
    travail,
    video,
    autre,
    co,
    scr,
    ccr,
    air,
    nitrox,
    trimix,
    heliox,
    prof_1,
    prof_2,
    prof_3,
    prof_4,
    prof_5,
    prof_6,
    prof_7,
};
inline constexpr std::size_t statCountCount = 29;

enum class StatGroup { kinds, systems, gases, depths };

/// One count with its names: the key of its previous total, the middle of its fields' names ("statBioField",
/// "statP_BioField", "statSumBioField"), and its label.
struct StatCountName {
    StatCount count;
    const char* key;
    const char* field;
    StatGroup group;
    Title label;
};
std::span<const StatCountName, statCountCount> statCountNames();
/// The field of a count ("statBioField") and that of its share ("statP_BioField").
QString statField(const StatCountName& name);
QString statShareField(const StatCountName& name);

/// What the statistics measure beside the counts.
enum class StatMeasure { totalDives, deepest, longest, totalDepth, totalTime, coldest, warmest };
inline constexpr std::size_t statMeasureCount = 7;

/// A measure that has a previous total: its key, its field in the window of previous totals, its label.
struct StatMeasureName {
    StatMeasure measure;
    const char* key;
    const char* sumField;
    Title label;
};
std::span<const StatMeasureName, statMeasureCount> statMeasureNames();

/// The dives logged before this logbook, by count and measure; 0 where nothing was declared. The numbers are whatever
/// was stored: nothing is checked.
struct PreviousTotals {
    /// The setting that holds them.
    static QString preferencesKey() { return QStringLiteral("statistics values"); }
    static PreviousTotals read(const Preferences& preferences);
    static PreviousTotals of(const QVariantMap& values);
    /// One integer under each key.
    QVariantMap values() const;

    std::array<qint32, statCountCount> counts{};
    std::array<qint32, statMeasureCount> measures{};

    qint32 of(StatCount count) const { return counts[static_cast<std::size_t>(count)]; }
    qint32 of(StatMeasure measure) const { return measures[static_cast<std::size_t>(measure)]; }
};

/// A value of the statistics as its window shows it: the field, the text, the formula with the numbers put in.
struct StatText {
    QString field;
    Title label;
    QString text;
    QString explanation;
};

/// The statistics of a list of dives.
class Statistics {
public:
    /// Without previous totals (null) every figure is of these dives alone, and the coldest water starts at 10000.
    Statistics(DiveSpan dives, const PreviousTotals* previous);

    qint64 total() const { return total_; }
    qint64 count(StatCount count) const { return counts_[static_cast<std::size_t>(count)]; }
    /// Percent of all dives, in single precision.
    float share(StatCount count) const;
    qint64 deepest() const { return deepest_; }        ///< metres
    qint64 longest() const { return longest_; }        ///< minutes
    qint64 totalDepth() const { return totalDepth_; }  ///< metres
    qint64 totalTime() const { return totalTime_; }    ///< minutes
    qint64 averageDepth() const { return totalDepth_ / divisor(); }
    qint64 averageTime() const { return totalTime_ / divisor(); }
    qint64 coldest() const { return coldest_; }
    qint64 warmest() const { return warmest_; }
    /// Of these dives alone, previous ones have none.
    qint64 meanTemperature() const;

    /// What setDataForStatGraphes hands to the graphs for a count: the same share, but of a number of dives that may be
    /// 0, which leaves it infinite or not a number.
    float graphShare(StatCount count) const;

    QString shareText(StatCount count) const;
    /// How the share comes about.
    QString shareExplanation(StatCount count) const;
    /// The fields of the statistics window beside the counts, with their texts.
    std::vector<StatText> measureTexts() const;
    /// Every field of the statistics window with its text, counts and shares included.
    std::vector<StatText> texts() const;

private:
    qint64 divisor() const { return total_ == 0 ? 1 : total_; }
    void take(const Plongee& dive);
    void add(StatCount count) { ++counts_[static_cast<std::size_t>(count)]; }

    std::array<qint64, statCountCount> counts_{};
    qint64 total_ = 0;
    qint64 deepest_ = 0, longest_ = 0, totalDepth_ = 0, totalTime_ = 0;
    qint64 coldest_ = 10000, warmest_ = 0;
    qint64 temperatureSum_ = 0, temperatureCount_ = 0;
};

}  // namespace tavrel
