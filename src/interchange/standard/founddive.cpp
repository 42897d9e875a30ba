#include "interchange/standard/founddive.h"

#include "base/texts.h"
#include "dives/divecodes.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <tuple>

namespace tavrel {

namespace {

constexpr qint64 sameStart = 120;  // seconds
constexpr int earliestYear = 1900;

bool alike(double one, double other, double absolute, double relative) {
    return std::abs(one - other) <= std::max(absolute, relative * std::max(std::abs(one), std::abs(other)));
}

constexpr double alikeMetres = 1, alikeShare = 0.05;

/// Starts, depths and times of dives by their start and depth, found again within two minutes.
class KnownDives {
public:
    bool holds(const Plongee& dive) const {
        const QDateTime start = startOf(dive);
        if (!start.isValid()) {
            return false;
        }
        const qint64 second = start.toSecsSinceEpoch();
        const double depth = depthOf(dive);
        for (qint64 slot = second / sameStart - 1; slot <= second / sameStart + 1; ++slot) {
            // A little more than what is alike, so that no rounding matters.
            const double least = depth - std::max(alikeMetres, 2 * alikeShare * std::abs(depth));
            for (auto it = known_.lower_bound({slot, least, std::numeric_limits<qint32>::min(), 0}); it != known_.end();
                 ++it) {
                const auto& [itsSlot, itsDepth, itsMinutes, itsSecond] = *it;
                const bool isAlike = alike(depth, itsDepth, alikeMetres, alikeShare);
                if (itsSlot != slot || (itsDepth > depth && !isAlike)) {
                    break;
                }
                if (isAlike && std::abs(itsSecond - second) <= sameStart && alike(dive.temps, itsMinutes, 2.0, 0.1)) {
                    return true;
                }
            }
        }
        return false;
    }

    void add(const Plongee& dive) {
        if (const QDateTime start = startOf(dive); start.isValid()) {
            const qint64 second = start.toSecsSinceEpoch();
            known_.insert({second / sameStart, depthOf(dive), dive.temps, second});
        }
    }

private:
    static double depthOf(const Plongee& dive) {
        return std::isfinite(dive.profondeur) ? static_cast<double>(dive.profondeur)
                                              : std::numeric_limits<double>::max();
    }

    std::set<std::tuple<qint64, double, qint32, qint64>> known_;  // slot, depth, minutes, second
};

/// A dive of a file with its start, where it stands for all that are the same: two computers of one diver tell the same
/// dive differently, and are two.
struct ToldDive {
    const Plongee* dive;
    QDateTime start;

    /// Two dives of a day may well be as deep and as long where no clock or profile tells them apart.
    bool tellsLittle() const { return start.time() == QTime(0, 0) || !dive->hasProfile(); }
    auto words() const { return std::tie(dive->noPlongee, dive->lieu, dive->site, dive->notes); }

    bool operator==(const ToldDive& other) const {
        return start.toSecsSinceEpoch() == other.start.toSecsSinceEpoch() &&
               dive->profondeur == other.dive->profondeur && dive->temps == other.dive->temps &&
               dive->profilProfondeur == other.dive->profilProfondeur && (!tellsLittle() || words() == other.words());
    }
};

struct ToldDiveHash {
    std::size_t operator()(const ToldDive& told) const {
        const Plongee& dive = *told.dive;
        const Series& profile = dive.profilProfondeur;
        std::size_t hash = qHashMulti(0, told.start.toSecsSinceEpoch(), dive.profondeur, dive.temps, profile.size());
        constexpr std::size_t looks = 64;
        const std::size_t step = profile.size() / looks + 1;
        for (std::size_t sample = 0; sample < profile.size(); sample += step) {
            hash = qHashMulti(hash, profile.real(sample));
        }
        return told.tellsLittle()
                   ? std::apply([hash](const auto&... word) { return qHashMulti(hash, word...); }, told.words())
                   : hash;
    }
};

struct DoubtWords {
    const char* name;
    Title text;
};

const DoubtWords& wordsOf(Doubt doubt) {
    static const std::map<Doubt, DoubtWords> words{
        {Doubt::noDate, {"no date", {"Interchange", "Doubt no date"}}},
        {Doubt::tooDeep, {"depth over 350 m", {"Interchange", "Doubt too deep"}}},
        {Doubt::inFuture, {"time in the future", {"Interchange", "Doubt in future"}}},
        {Doubt::noSamples, {"no samples", {"Interchange", "Doubt no samples"}}},
        {Doubt::groupSkipped, {"group skipped", {"Interchange", "Doubt group skipped"}}},
    };
    return words.at(doubt);
}

}  // namespace

QString doubtName(Doubt doubt) {
    return QString::fromLatin1(wordsOf(doubt).name);
}

bool FoundDive::has(Doubt doubt) const {
    return std::find(doubts.begin(), doubts.end(), doubt) != doubts.end();
}

QStringList FoundDive::remarks() const {
    QStringList remarks;
    if (duplicate) {
        remarks.append(text("Interchange", "Already there"));
    }
    for (const Doubt each : doubts) {
        remarks.append(text(wordsOf(each).text));
    }
    return remarks;
}

void FoundDive::lose(const QString& name, const QString& text) {
    const auto known =
        std::lower_bound(byName_.begin(), byName_.end(), name,
                         [&](std::uint32_t place, const QString& its) { return lost[place].name < its; });
    if (known == byName_.end() || lost[*known].name != name) {
        byName_.insert(known, static_cast<std::uint32_t>(lost.size()));
        lost.push_back({name, text});
        return;
    }
    LostItem& item = lost[*known];
    if (text.isEmpty() || item.text == text) {
        return;
    }
    if (item.text.isEmpty()) {
        item.text = text;
        return;
    }
    std::unordered_set<QString>& said = said_[*known];
    if (said.empty()) {
        said.insert(item.text);
    }
    if (said.insert(text).second) {
        item.text += u'\n';
        item.text += text;
    }
}

void SharedTexts::share(QString& text) {
    constexpr qsizetype shortest = 100;
    if (text.size() >= shortest) {
        text = *texts_.insert(text).first;
    }
}

void SharedTexts::share(FoundDive& found) {
    for (const Item& item : Plongee::layout().items) {
        item.field().visit(found.dive, [this]<class Value>(Value& value) {
            if constexpr (std::is_same_v<Value, QString>) {
                share(value);
            }
        });
    }
    for (LostItem& item : found.lost) {
        share(item.text);
    }
}

std::map<QString, int> FoundDives::lostCounts() const {
    std::map<QString, int> counts;
    for (const FoundDive& it : dives) {
        for (const LostItem& item : it.lost) {
            ++counts[item.name];
        }
    }
    return counts;
}

Plongee unknownDive() {
    Plongee dive;
    for (QString* words :
         {&dive.lieu,     &dive.site,      &dive.pays,    &dive.countryCode, &dive.gps,       &dive.partenaires,
          &dive.epaves,   &dive.structure, &dive.bateau,  &dive.runtime,     &dive.fabricant, &dive.ordinateur,
          &dive.serie,    &dive.equip_1,   &dive.equip_2, &dive.equip_3,     &dive.equip_4,   &dive.equip_5,
          &dive.equip_6,  &dive.equip_7,   &dive.equip_8, &dive.equip_9,     &dive.equip_10,  &dive.equip_11,
          &dive.equip_12, &dive.notes}) {
        *words = QStringLiteral("");
    }
    for (QString* words : {&dive.decoSoftName, &dive.decoAlgoType, &dive.decoConservatism}) {
        *words = QStringLiteral("-");
    }
    dive.surface = QStringLiteral("--:--");
    dive.gpsSystem = Datum::wgs84;
    dive.tempEau = dive.tempAir = temperatureNotGiven;
    dive.meteo = Weather::notGiven;
    dive.courant = Current::notGiven;
    dive.visibilite = Visibility::notGiven;
    dive.typePlongee = DiveKind::other;
    dive.configuration = Configuration::tek;
    dive.o2Mix = dive.o2Mix_2 = 21;
    dive.reset();
    return dive;
}

QDateTime startOf(const Plongee& dive) {
    const QDate day = dive.date.toDateTime().date();
    const QTime time = dive.heure.toDateTime().time();
    return day.isValid() && day.year() >= earliestYear ? QDateTime(day, time.isValid() ? time : QTime(0, 0), Qt::UTC)
                                                       : QDateTime();
}

void setStart(Plongee& dive, const QDate& day, const QTime& time) {
    const QTime clock = time.isValid() ? time : QTime(0, 0);
    dive.date = Date::ofLocalTime(day, clock);
    // A time that a clock change skips is kept as the time of another day.
    const bool skipped = !QDateTime(day, clock).isValid();
    dive.heure = skipped ? Date::ofLocalTime(QDate(2001, 1, 1), clock) : dive.date;
}

void doubt(FoundDives& found, const QDateTime& now) {
    const QDateTime latest(now.date(), now.time(), Qt::UTC);
    for (FoundDive& it : found.dives) {
        const auto note = [&it](bool holds, Doubt doubt) {
            if (holds && !it.has(doubt)) {
                it.doubts.push_back(doubt);
            }
        };
        const QDateTime start = startOf(it.dive);
        double deepest = static_cast<double>(it.dive.profondeur);
        for (std::size_t sample = 0; sample < it.dive.profilProfondeur.size(); ++sample) {
            deepest = std::max(deepest, it.dive.profilProfondeur.real(sample));
        }
        note(!start.isValid(), Doubt::noDate);
        note(!(deepest <= implausibleDepth), Doubt::tooDeep);
        note(start.isValid() && start > latest, Doubt::inFuture);
        note(!it.dive.hasProfile(), Doubt::noSamples);
    }
}

void markDuplicates(FoundDives& found, const RecordList& held) {
    KnownDives known;
    for (const RecordPointer& record : held) {
        known.add(asDive(record));
    }
    std::unordered_set<ToldDive, ToldDiveHash> before;
    for (FoundDive& it : found.dives) {
        const QDateTime start = startOf(it.dive);
        it.duplicate = known.holds(it.dive);
        if (start.isValid() && !before.insert({&it.dive, start}).second) {
            it.duplicate = true;
        }
    }
}

BreathedGas breathedGas(const Plongee& dive) {
    return Apparatus::isClosed(dive.rebreather) ? BreathedGas{dive.o2Mix_2, dive.heMix_2}
                                                : BreathedGas{dive.o2Mix, dive.heMix};
}

void keepLostTexts(FoundDive& found) {
    for (const LostItem& item : found.lost) {
        if (!item.text.isEmpty()) {
            found.dive.notes += (found.dive.notes.isEmpty() ? QString() : QStringLiteral("\n")) + item.name +
                                QStringLiteral(": ") + item.text;
        }
    }
}

}  // namespace tavrel
