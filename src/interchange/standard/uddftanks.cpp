#include "interchange/standard/uddftanks.h"

#include "dives/divecodes.h"
#include "dives/divetanks.h"
#include "interchange/standard/filevalues.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <set>

namespace tavrel {

namespace {

/// Where a tank of the file goes.
enum class Role { unknown, first, second, stage, bailout };

struct Tank {
    std::string mix;                 ///< the id of its gas; empty when unknown
    std::vector<std::string> names;  ///< ids that pressures of waypoints may refer to
    QString title;                   ///< of the linked piece of equipment
    Role role = Role::unknown;
    qint32 volume = 0;    ///< litres
    qint32 start = 0;     ///< bar
    qint32 end = 0;       ///< bar
    qint32 material = 0;  ///< as Plongee::alliageBloc
};

qint32 materialOf(XmlElement piece) {
    const QString material = wordsOf(piece.first("tankmaterial"));
    return material == QLatin1String("carbon")  ? TankMaterial::carbon
           : material == QLatin1String("steel") ? TankMaterial::steel
                                                : TankMaterial::aluminium;
}

/// What the name of a tank says of its use.
Role roleOf(const QString& title) {
    static const QRegularExpression numbered(QStringLiteral(R"(^\s*(?:tank|cylinder|bottle)\s*([12])\s*$)"),
                                             QRegularExpression::CaseInsensitiveOption);
    const auto names = [&](const char* word) { return title.contains(QLatin1String(word), Qt::CaseInsensitive); };
    if (names("bail")) {
        return Role::bailout;
    }
    if (names("pony") || names("stage") || names("deco")) {
        return Role::stage;
    }
    const auto match = numbered.match(title);
    return !match.hasMatch() ? Role::unknown : match.captured(1) == QLatin1String("1") ? Role::first : Role::second;
}

/// The number that the name of a tank ends with; 0 for none.
std::size_t numberOfTitle(const QString& title) {
    static const QRegularExpression number(QStringLiteral(R"((\d)\s*$)"));
    return number.match(title).captured(1).toUInt();
}

bool isAside(const Tank& tank) {
    return tank.role == Role::stage || tank.role == Role::bailout;
}

/// The pressures that waypoints give under one of the names; null for none.
const std::vector<TimedValue>* pressuresOf(const UddfProfile& profile, const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        if (const auto own = profile.pressures.find(name); own != profile.pressures.end()) {
            return &own->second;
        }
    }
    return nullptr;
}

class TankReader {
public:
    TankReader(const UddfDocument& document, const UddfProfile& profile, FoundDive& found)
        : document_(document), profile_(profile), found_(found) {}

    std::vector<Tank> read(const std::vector<XmlElement>& parts) {
        for (const XmlElement part : parts) {
            for (const XmlElement data : part.children("tankdata")) {
                add(data);
            }
        }
        return std::move(tanks_);
    }

private:
    void add(XmlElement data) {
        // Newer files wrap each tank of the data once more.
        bool wrapped = false;
        for (const XmlElement used : data.children("tankused")) {
            addTank(used);
            wrapped = true;
        }
        if (!wrapped) {
            addTank(data);
        }
    }

    void addTank(XmlElement data) {
        Tank tank;
        if (const auto id = data.attribute("id"); !id.empty()) {
            tank.names.emplace_back(id);
        }
        std::optional<double> volume;
        for (XmlElement it = data.firstElement(); !it.isNull(); it = it.nextElement()) {
            const std::string_view name = it.name();
            if (name == "link" || name == "mix" || name == "switchmix") {
                follow(uddfReference(it), tank, volume);
            } else if (name == "tankvolume") {
                volume = litres(numberOf(it)) ? litres(numberOf(it)) : volume;
            } else if (name == "tankpressurebegin") {
                tank.start = rounded(bars(numberOf(it)).value_or(0));
            } else if (name == "tankpressureend") {
                tank.end = rounded(bars(numberOf(it)).value_or(0));
            } else {
                found_.lose(QStringLiteral("tankdata/") +
                            QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
            }
        }
        tank.volume = rounded(volume.value_or(0));
        tank.role = roleOf(tank.title);
        takeSampled(tank);
        tanks_.push_back(std::move(tank));
    }

    void follow(const std::string& id, Tank& tank, std::optional<double>& volume) {
        if (document_.isMix(id) && tank.mix.empty()) {
            tank.mix = id;
            tank.names.push_back(id);
        }
        if (const XmlElement piece = document_.withId(id, "tank"); !piece.isNull()) {
            tank.names.push_back(id);
            tank.title = wordsOf(piece.first("name"));
            tank.material = materialOf(piece);
            if (!volume) {
                volume = litres(numberOf(piece.first("tankvolume")));
            }
            if (tank.mix.empty()) {
                if (const std::string mix = uddfReference(piece.first("link")); document_.isMix(mix)) {
                    tank.mix = mix;
                }
            }
        }
    }

    /// What the tank's own data lack, the first and the last of its pressures tell.
    void takeSampled(Tank& tank) const {
        const std::vector<TimedValue>* values = pressuresOf(profile_, tank.names);
        if (values && !values->empty()) {
            tank.start = tank.start == 0 ? rounded(values->front().value) : tank.start;
            tank.end = tank.end == 0 ? rounded(values->back().value) : tank.end;
        }
    }

    const UddfDocument& document_;
    const UddfProfile& profile_;
    FoundDive& found_;
    std::vector<Tank> tanks_;
};

class Assignment {
public:
    Assignment(const UddfDocument& document, const UddfProfile& profile, const std::string& namedMix, FoundDive& found)
        : document_(document), profile_(profile), namedMix_(namedMix), found_(found) {}

    /// The ids of the gases of the six stops that the dive names itself.
    std::array<std::string, 6> levelMixes;
    std::string bottomMix() const { return bottom_; }
    /// What the waypoints call the first tank.
    const std::vector<std::string>& firstNames() const { return firstNames_; }
    /// Whether the name is that of a tank beside the first.
    bool isOfOther(const std::string& name) const {
        return allNames_.count(name) > 0 &&
               std::find(firstNames_.begin(), firstNames_.end(), name) == firstNames_.end();
    }

    void assign(std::vector<Tank> tanks) {
        for (const Tank& tank : tanks) {
            allNames_.insert(tank.names.begin(), tank.names.end());
        }
        bottom_ = bottomOf(tanks);
        for (Tank& tank : tanks) {
            // A tank whose gas nobody names holds the gas of the dive, if it is the only one.
            if (tank.mix.empty() && tanks.size() == 1) {
                tank.mix = bottom_;
            }
        }
        const bool closed = Apparatus::isClosed(found_.dive.rebreather);
        if (closed) {
            assignClosed(tanks);
        } else {
            assignOpen(tanks);
        }
    }

private:
    std::string bottomOf(const std::vector<Tank>& tanks) const {
        const Role main = Apparatus::isClosed(found_.dive.rebreather) ? Role::second : Role::first;
        for (const Tank& tank : tanks) {
            if (tank.role == main && !tank.mix.empty()) {
                return tank.mix;
            }
        }
        if (std::string mix = profile_.mixAt(profile_.deepestMoment()); document_.isMix(mix)) {
            return mix;
        }
        if (!Apparatus::isClosed(found_.dive.rebreather)) {
            for (const Tank& tank : tanks) {
                if (!tank.mix.empty() && !isAside(tank)) {
                    return tank.mix;
                }
            }
        }
        for (const UddfProfile::Switch& it : profile_.switches) {
            if (document_.isMix(it.mix)) {
                return it.mix;
            }
        }
        if (document_.isMix(namedMix_)) {
            return namedMix_;
        }
        return document_.mixIds().size() == 1 ? document_.mixIds().front() : std::string();
    }

    void fill(const MainTankFields& place, const Tank& tank) {
        Plongee& dive = found_.dive;
        dive.*place.material = tank.material;
        dive.*place.volume = tank.volume;
        dive.*place.start = tank.start;
        dive.*place.end = tank.end;
    }
    void fill(const BottleFields& place, const Tank& tank) {
        Plongee& dive = found_.dive;
        dive.*place.volume = tank.volume;
        dive.*place.start = tank.start;
        dive.*place.end = tank.end;
    }
    void breathe(const MainTankFields& place, const GasMix& mix) {
        Plongee& dive = found_.dive;
        dive.*place.gas = mix.kind;
        dive.*place.oxygen = mix.oxygen;
        dive.*place.helium = mix.helium;
    }

    void giveFirst(const Tank& tank) {
        fill(mainTankFields[0], tank);
        firstNames_ = tank.names;
    }

    /// The place for one more tank: the one of its number, or the first that is free; none left is the count.
    template <std::size_t N>
    static std::size_t placeFor(const Tank& tank, std::array<bool, N>& given) {
        const std::size_t number = numberOfTitle(tank.title);
        std::size_t place = 0;
        if (number >= 1 && number <= N && !given[number - 1]) {
            place = number - 1;
        } else {
            place = static_cast<std::size_t>(std::find(given.begin(), given.end(), false) - given.begin());
        }
        if (place < N) {
            given[place] = true;
        }
        return place;
    }

    bool giveStage(const Tank& tank) {
        const std::size_t place = placeFor(tank, stagesGiven_);
        if (place < stageFields.size()) {
            fill(stageFields[place], tank);
        }
        return place < stageFields.size();
    }

    bool giveBailout(const Tank& tank) {
        const std::size_t place = placeFor(tank, bailoutsGiven_);
        if (place == bailoutFields.size()) {
            return false;
        }
        fill(bailoutFields[place], tank);
        if (!tank.mix.empty()) {
            const GasMix mix = document_.mix(tank.mix);
            found_.dive.*bailoutGasFields[place].first = mix.oxygen;
            found_.dive.*bailoutGasFields[place].second = mix.helium;
        }
        return true;
    }

    /// Whether the gas is one of the ascent: breathed only after the greatest depth, or a stop's.
    bool isOfAscent(const std::string& mix) const {
        if (mix.empty() || mix == bottom_) {
            return false;
        }
        bool used = false;
        for (const UddfProfile::Switch& it : profile_.switches) {
            if (it.mix == mix) {
                used = true;
                if (it.seconds <= profile_.deepestMoment()) {
                    return false;
                }
            }
        }
        return used || document_.mix(mix).oxygen > document_.mix(bottom_).oxygen + 8;
    }

    void assignOpen(const std::vector<Tank>& tanks) {
        auto first =
            std::find_if(tanks.begin(), tanks.end(), [](const Tank& tank) { return tank.role == Role::first; });
        if (first == tanks.end()) {
            first = std::find_if(tanks.begin(), tanks.end(),
                                 [&](const Tank& tank) { return !isAside(tank) && tank.mix == bottom_; });
        }
        const Tank* chosen = first != tanks.end() ? &*first : nullptr;
        if (!chosen && !tanks.empty() && !isAside(tanks.front())) {
            chosen = &tanks.front();
        }
        if (chosen) {
            giveFirst(*chosen);
        }
        if (!bottom_.empty()) {
            breathe(mainTankFields[0], document_.mix(bottom_));
        }
        bool second = false;
        for (const Tank& tank : tanks) {
            if (&tank == chosen) {
                continue;
            }
            const bool stage = tank.role == Role::stage || (tank.role == Role::unknown && isOfAscent(tank.mix));
            bool held = false;
            if (tank.role == Role::bailout) {
                held = giveBailout(tank);
            } else if (!stage && !second) {
                fill(mainTankFields[1], tank);
                if (!tank.mix.empty()) {
                    breathe(mainTankFields[1], document_.mix(tank.mix));
                }
                held = second = true;
            }
            if (!held && !(tank.role != Role::bailout && giveStage(tank))) {
                found_.lose(QStringLiteral("tankdata"));
            }
        }
    }

    void assignClosed(const std::vector<Tank>& tanks) {
        const auto isOxygen = [&](const Tank& tank) {
            return !tank.mix.empty() && document_.mix(tank.mix).oxygen >= 95;
        };
        const auto oxygen = std::find_if(tanks.begin(), tanks.end(), [&](const Tank& tank) {
            return tank.role == Role::first || (tank.role == Role::unknown && isOxygen(tank));
        });
        auto diluent =
            std::find_if(tanks.begin(), tanks.end(), [](const Tank& tank) { return tank.role == Role::second; });
        if (diluent == tanks.end()) {
            diluent = std::find_if(tanks.begin(), tanks.end(), [&](const Tank& tank) {
                return tank.role == Role::unknown && tank.mix == bottom_ && !isOxygen(tank);
            });
        }
        if (diluent == tanks.end()) {
            diluent = std::find_if(tanks.begin(), tanks.end(),
                                   [&](const Tank& tank) { return tank.role == Role::unknown && !isOxygen(tank); });
        }
        breathe(mainTankFields[0], GasMix{100, 0, Gas::nitrox});
        if (oxygen != tanks.end()) {
            giveFirst(*oxygen);
        }
        if (!bottom_.empty() && document_.mix(bottom_).oxygen < 95) {
            breathe(mainTankFields[1], document_.mix(bottom_));
        } else if (diluent != tanks.end() && !diluent->mix.empty()) {
            breathe(mainTankFields[1], document_.mix(diluent->mix));
        }
        if (diluent != tanks.end()) {
            fill(mainTankFields[1], *diluent);
        }
        for (auto tank = tanks.begin(); tank != tanks.end(); ++tank) {
            if (tank != oxygen && tank != diluent &&
                !((tank->role != Role::stage && giveBailout(*tank)) || giveStage(*tank))) {
                found_.lose(QStringLiteral("tankdata"));
            }
        }
    }

    const UddfDocument& document_;
    const UddfProfile& profile_;
    const std::string& namedMix_;
    FoundDive& found_;
    std::string bottom_;
    std::vector<std::string> firstNames_;
    std::set<std::string> allNames_;
    std::array<bool, stageFields.size()> stagesGiven_{};
    std::array<bool, bailoutFields.size()> bailoutsGiven_{};
};

/// The stops that a plan names, in its order.
void giveStops(const UddfDocument& document, const std::vector<XmlElement>& parts, Assignment& assignment,
               FoundDive& found) {
    std::size_t level = 0;
    XmlElement plan;
    for (const XmlElement part : parts) {
        plan = plan.isNull() ? part.first("plannedprofile") : plan;
    }
    for (const XmlElement waypoint : plan.children("waypoint")) {
        const XmlElement stop = waypoint.first("decostop");
        if (stop.isNull()) {
            continue;
        }
        if (level == stopFields.size()) {
            found.lose(QStringLiteral("plannedprofile/decostop"));
            break;
        }
        found.dive.*stopFields[level].depth = static_cast<float>(numberOf(stop.attribute("decodepth")).value_or(0));
        found.dive.*stopFields[level].minutes = rounded(numberOf(stop.attribute("duration")).value_or(0) / 60);
        found.dive.*stopFields[level].made = stop.attribute("kind") == "mandatory" ? 1 : 0;
        if (const XmlElement gas = waypoint.first("switchmix"); !gas.isNull()) {
            assignment.levelMixes[level] = uddfReference(gas);
            const GasMix mix = document.mix(assignment.levelMixes[level]);
            found.dive.*stopFields[level].gas.first = mix.oxygen;
            found.dive.*stopFields[level].gas.second = mix.helium;
        }
        ++level;
    }
}

/// Marks each switch at its sample: 1 to the bottom gas, from 2 on to those of the stops, which take what the dive does
/// not name itself.
void markSwitches(const UddfDocument& document, const UddfProfile& profile, const Resampled& samples,
                  Assignment& assignment, FoundDive& found) {
    std::vector<qint32> flags(samples.depths.size(), 0);
    for (const UddfProfile::Switch& it : profile.switches) {
        if (!document.isMix(it.mix)) {
            continue;
        }
        const std::size_t sample = samples.sampleAt(it.seconds);
        if (it.mix == assignment.bottomMix()) {
            // The gas that the dive begins with is no switch.
            flags[sample] = sample == 0 ? 0 : 1;
            continue;
        }
        auto& levels = assignment.levelMixes;
        auto level = std::find(levels.begin(), levels.end(), it.mix);
        if (level == levels.end()) {
            const auto isFree = [&](const std::string& mix) {
                const auto place = static_cast<std::size_t>(&mix - levels.data());
                return mix.empty() && found.dive.*stopFields[place].gas.first == 0;
            };
            level = std::find_if(levels.begin(), levels.end(), isFree);
            if (level == levels.end()) {
                found.lose(QStringLiteral("waypoint/switchmix"));
                continue;
            }
            *level = it.mix;
            const auto place = static_cast<std::size_t>(level - levels.begin());
            found.dive.*stopFields[place].gas.first = document.mix(it.mix).oxygen;
            found.dive.*stopFields[place].gas.second = document.mix(it.mix).helium;
        }
        flags[sample] = static_cast<qint32>(level - levels.begin()) + 2;
    }
    found.dive.GAZ_Flag = Series::ofIntegers(flags);
}

/// The pressures of the first tank, or where none refer to it of the tank with the most.
void givePressures(const UddfProfile& profile, const Assignment& assignment, const std::optional<Resampled>& samples,
                   FoundDive& found) {
    const std::vector<std::string>& firstNames = assignment.firstNames();
    const std::vector<TimedValue>* chosen = pressuresOf(profile, firstNames);
    const bool isOfFirst =
        chosen || (profile.pressures.size() == 1 && !assignment.isOfOther(profile.pressures.begin()->first));
    for (const auto& [name, values] : profile.pressures) {
        const bool better = !chosen || (firstNames.empty() && values.size() > chosen->size());
        chosen = better ? &values : chosen;
    }
    if (!chosen || chosen->empty()) {
        return;
    }
    if (profile.pressures.size() > 1) {
        found.lose(QStringLiteral("waypoint/tankpressure"));
    }
    // A tank that the dive does not describe still has its pressures.
    if (isOfFirst && found.dive.pressionDepart == 0 && found.dive.pressionFin == 0) {
        found.dive.pressionDepart = rounded(chosen->front().value);
        found.dive.pressionFin = rounded(chosen->back().value);
    }
    if (samples && chosen->size() >= 2) {
        found.dive.PRESS_Data = Series::ofReals(valuesAt(*chosen, samples->seconds, samples->depths.size()));
    }
}

}  // namespace

void giveUddfTanks(const UddfDocument& document, const std::vector<XmlElement>& parts, const UddfProfile& profile,
                   const std::string& namedMix, const std::optional<Resampled>& samples, FoundDive& found) {
    Assignment assignment(document, profile, namedMix, found);
    assignment.assign(TankReader(document, profile, found).read(parts));
    giveStops(document, parts, assignment, found);
    if (samples) {
        markSwitches(document, profile, *samples, assignment, found);
    }
    givePressures(profile, assignment, samples, found);
}

}  // namespace tavrel
