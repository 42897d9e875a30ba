#include "interchange/standard/founddive.h"

#include "base/texts.h"
#include "dives/divecodes.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <unordered_map>

namespace tavrel {

namespace {

constexpr qint64 sameStart = 120;  // seconds
constexpr int earliestYear = 1900;

bool alike(double one, double other, double absolute, double relative) {
    return std::abs(one - other) <= std::max(absolute, relative * std::max(std::abs(one), std::abs(other)));
}

/// Starts, depths and times of dives by their start, found again within two minutes.
class KnownDives {
public:
    bool holds(const Plongee& dive) const {
        const QDateTime start = startOf(dive);
        if (!start.isValid()) {
            return false;
        }
        const qint64 second = start.toSecsSinceEpoch();
        for (qint64 slot = second / sameStart - 1; slot <= second / sameStart + 1; ++slot) {
            const auto [first, last] = slots_.equal_range(slot);
            const bool found = std::any_of(first, last, [&](const auto& entry) {
                const Known& known = entry.second;
                return std::abs(known.second - second) <= sameStart &&
                       alike(static_cast<double>(dive.profondeur), known.depth, 1.0, 0.05) &&
                       alike(dive.temps, known.minutes, 2.0, 0.1);
            });
            if (found) {
                return true;
            }
        }
        return false;
    }

    void add(const Plongee& dive) {
        if (const QDateTime start = startOf(dive); start.isValid()) {
            const qint64 second = start.toSecsSinceEpoch();
            slots_.emplace(second / sameStart, Known{second, static_cast<double>(dive.profondeur), dive.temps});
        }
    }

private:
    struct Known {
        qint64 second;
        double depth;
        qint32 minutes;
    };
    std::unordered_multimap<qint64, Known> slots_;
};

/// Whether two dives of a file are one: two computers of one diver tell the same dive differently, and are two.
bool isSame(const Plongee& one, const Plongee& other) {
    const bool isAlike = one.profondeur == other.profondeur && one.temps == other.temps &&
                         one.profilProfondeur == other.profilProfondeur;
    // Two dives of a day may well be as deep and as long where no clock or profile tells them apart.
    const bool tellsLittle = startOf(one).time() == QTime(0, 0) || !one.hasProfile();
    const auto words = [](const Plongee& dive) { return std::tie(dive.noPlongee, dive.lieu, dive.site, dive.notes); };
    return isAlike && (!tellsLittle || words(one) == words(other));
}

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
    const auto known = std::find_if(lost.begin(), lost.end(), [&](const LostItem& item) { return item.name == name; });
    if (known == lost.end()) {
        lost.push_back({name, text});
    } else if (!text.isEmpty() && !known->text.contains(text)) {
        known->text += (known->text.isEmpty() ? QString() : QStringLiteral("\n")) + text;
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
    std::unordered_multimap<qint64, const Plongee*> before;
    for (FoundDive& it : found.dives) {
        const QDateTime start = startOf(it.dive);
        it.duplicate = known.holds(it.dive);
        if (!start.isValid()) {
            continue;
        }
        const auto [first, last] = before.equal_range(start.toSecsSinceEpoch());
        it.duplicate =
            it.duplicate || std::any_of(first, last, [&](const auto& entry) { return isSame(*entry.second, it.dive); });
        before.emplace(start.toSecsSinceEpoch(), &it.dive);
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
