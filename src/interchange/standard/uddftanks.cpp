#include "interchange/standard/uddftanks.h"

#include "dives/divecodes.h"
#include "dives/divetanks.h"
#include "interchange/standard/filevalues.h"
#include "interchange/standard/uddftankreading.h"
#include "interchange/standard/unread.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>

namespace tavrel {

namespace {

/// The number that the name of a tank ends with; 0 for none.
std::size_t numberOfTitle(const QString& title) {
    static const QRegularExpression number(QStringLiteral(R"((\d)\s*$)"));
    return number.match(title).captured(1).toUInt();
}

bool isAside(const UddfTank& tank) {
    return tank.role == TankRole::stage || tank.role == TankRole::bailout;
}

class Assignment {
public:
    Assignment(const UddfDocument& document, const UddfProfile& profile, const std::string& namedMix, FoundDive& found)
        : document_(document), profile_(profile), namedMix_(namedMix), found_(found) {}

    std::string bottomMix() const { return bottom_; }
    /// The dive names the gas of a stop itself.
    void setStopGas(std::size_t level, const std::string& mix) {
        levelMixes_[level] = mix;
        found_.dive.*stopFields[level].gas.first = document_.mix(mix).oxygen;
        found_.dive.*stopFields[level].gas.second = document_.mix(mix).helium;
    }
    /// The stop that holds a gas, or else the first free one, which takes it; none left is nothing.
    std::optional<std::size_t> stopOf(const std::string& mix) {
        const auto its = std::find(levelMixes_.begin(), levelMixes_.end(), mix);
        if (its != levelMixes_.end()) {
            return static_cast<std::size_t>(its - levelMixes_.begin());
        }
        for (std::size_t level = 0; level < levelMixes_.size(); ++level) {
            if (levelMixes_[level].empty() && found_.dive.*stopFields[level].gas.first == 0) {
                setStopGas(level, mix);
                return level;
            }
        }
        return std::nullopt;
    }
    /// Gives the stops those gases of stage bottles that no switch named.
    void giveStageGases() {
        for (const std::string& mix : stageMixes_) {
            if (!stopOf(mix)) {
                found_.lose(QStringLiteral("tankdata/mix"), gasName(document_.mix(mix)));
            }
        }
    }
    /// What the waypoints call the first tank.
    const std::vector<std::string>& firstNames() const { return firstNames_; }
    /// Whether the name is that of a tank beside the first.
    bool isOfOther(const std::string& name) const {
        return allNames_.count(name) > 0 &&
               std::find(firstNames_.begin(), firstNames_.end(), name) == firstNames_.end();
    }

    void assign(std::vector<UddfTank> tanks) {
        for (const UddfTank& tank : tanks) {
            allNames_.insert(tank.names.begin(), tank.names.end());
        }
        bottom_ = bottomOf(tanks);
        for (UddfTank& tank : tanks) {
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
    std::string bottomOf(const std::vector<UddfTank>& tanks) const {
        const TankRole main = Apparatus::isClosed(found_.dive.rebreather) ? TankRole::second : TankRole::first;
        for (const UddfTank& tank : tanks) {
            if (tank.role == main && !tank.mix.empty()) {
                return tank.mix;
            }
        }
        if (std::string mix = profile_.mixAt(profile_.deepestMoment()); document_.isMix(mix)) {
            return mix;
        }
        if (!Apparatus::isClosed(found_.dive.rebreather)) {
            for (const UddfTank& tank : tanks) {
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

    void fill(const MainTankFields& place, const UddfTank& tank) {
        Plongee& dive = found_.dive;
        dive.*place.material = tank.material;
        dive.*place.volume = tank.volume;
        dive.*place.pressure = tank.full > 0 ? tank.full : dive.*place.pressure;
        dive.*place.start = tank.start;
        dive.*place.end = tank.end;
    }
    void fill(const BottleFields& place, const UddfTank& tank) {
        Plongee& dive = found_.dive;
        if (tank.full > 0) {
            found_.lose(QStringLiteral("tank/ratedpressure"));
        }
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

    void giveFirst(const UddfTank& tank) {
        fill(mainTankFields[0], tank);
        firstNames_ = tank.names;
    }

    /// The place for one more tank: the one of its number, or the first that is free; none left is the count.
    template <std::size_t N>
    static std::size_t placeFor(const UddfTank& tank, std::array<bool, N>& given) {
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

    bool giveStage(const UddfTank& tank) {
        if (!tank.mix.empty() && tank.mix != bottom_) {
            stageMixes_.push_back(tank.mix);
        }
        const std::size_t place = placeFor(tank, stagesGiven_);
        if (place < stageFields.size()) {
            fill(stageFields[place], tank);
        }
        return place < stageFields.size();
    }

    bool giveBailout(const UddfTank& tank) {
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
        const double deepest = profile_.deepestMoment();
        for (const UddfProfile::Switch& it : profile_.switches) {
            if (it.mix == mix) {
                used = true;
                if (it.seconds <= deepest) {
                    return false;
                }
            }
        }
        return used || document_.mix(mix).oxygen > document_.mix(bottom_).oxygen + 8;
    }

    void assignOpen(const std::vector<UddfTank>& tanks) {
        auto first =
            std::find_if(tanks.begin(), tanks.end(), [](const UddfTank& tank) { return tank.role == TankRole::first; });
        if (first == tanks.end()) {
            first = std::find_if(tanks.begin(), tanks.end(),
                                 [&](const UddfTank& tank) { return !isAside(tank) && tank.mix == bottom_; });
        }
        const UddfTank* chosen = first != tanks.end() ? &*first : nullptr;
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
        for (const UddfTank& tank : tanks) {
            if (&tank == chosen) {
                continue;
            }
            const bool stage = tank.role == TankRole::stage || (tank.role == TankRole::unknown && isOfAscent(tank.mix));
            bool held = false;
            if (tank.role == TankRole::bailout) {
                held = giveBailout(tank);
            } else if (!stage && !second) {
                fill(mainTankFields[1], tank);
                if (!tank.mix.empty()) {
                    breathe(mainTankFields[1], document_.mix(tank.mix));
                }
                held = second = true;
            }
            if (!held && !(tank.role != TankRole::bailout && giveStage(tank))) {
                found_.lose(QStringLiteral("tankdata"));
            }
        }
    }

    void assignClosed(const std::vector<UddfTank>& tanks) {
        const auto isOxygen = [&](const UddfTank& tank) {
            return !tank.mix.empty() && document_.mix(tank.mix).oxygen >= 95;
        };
        const auto oxygen = std::find_if(tanks.begin(), tanks.end(), [&](const UddfTank& tank) {
            return tank.role == TankRole::first || (tank.role == TankRole::unknown && isOxygen(tank));
        });
        auto diluent = std::find_if(tanks.begin(), tanks.end(),
                                    [](const UddfTank& tank) { return tank.role == TankRole::second; });
        if (diluent == tanks.end()) {
            diluent = std::find_if(tanks.begin(), tanks.end(), [&](const UddfTank& tank) {
                return tank.role == TankRole::unknown && tank.mix == bottom_ && !isOxygen(tank);
            });
        }
        if (diluent == tanks.end()) {
            diluent = std::find_if(tanks.begin(), tanks.end(), [&](const UddfTank& tank) {
                return tank.role == TankRole::unknown && !isOxygen(tank);
            });
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
                !((tank->role != TankRole::stage && giveBailout(*tank)) || giveStage(*tank))) {
                found_.lose(QStringLiteral("tankdata"));
            }
        }
    }

    const UddfDocument& document_;
    const UddfProfile& profile_;
    const std::string& namedMix_;
    FoundDive& found_;
    std::string bottom_;
    std::array<std::string, stopFields.size()> levelMixes_;  // their ids
    std::vector<std::string> stageMixes_;
    std::vector<std::string> firstNames_;
    std::set<std::string> allNames_;
    std::array<bool, stageFields.size()> stagesGiven_{};
    std::array<bool, bailoutFields.size()> bailoutsGiven_{};
};

/// The gases of the tanks that switches name, by all that they are called.
std::map<std::string, std::string> gasesOf(const UddfDocument& document, const std::vector<UddfTank>& tanks,
                                           const UddfProfile& profile) {
    std::map<std::string, std::string> gases;
    for (const bool byMix : {false, true}) {
        for (const UddfTank& tank : tanks) {
            for (const std::string& name : tank.names) {
                if ((name == tank.mix) == byMix) {
                    gases.emplace(name, tank.mix);
                }
            }
        }
    }
    for (const UddfProfile::Switch& it : profile.switches) {
        if (!it.tank.empty()) {
            gases.emplace(it.tank, document.mixOfTank(it.tank));
        }
    }
    return gases;
}

/// The stops that a plan names, in its order.
void giveStops(const std::vector<XmlElement>& parts, Assignment& assignment, FoundDive& found) {
    std::size_t level = 0;
    XmlElement plan;
    for (const XmlElement part : parts) {
        plan = plan.isNull() ? part.first("plannedprofile") : plan;
    }
    for (const XmlElement waypoint : plan.children("waypoint")) {
        const XmlElement stop = waypoint.first("decostop");
        loseUnread(found, waypoint, QStringLiteral("plannedprofile/"), {"decostop", "switchmix"});
        if (stop.isNull()) {
            continue;
        }
        if (level == stopFields.size()) {
            found.lose(QStringLiteral("plannedprofile/decostop"));
            break;
        }
        constexpr double longest = 86'400;  // seconds
        const auto valueOf = [&](const char* name, double greatest) {
            const std::string words(stop.attribute(name));
            const double value = numberOf(words).value_or(0);
            if (std::abs(value) <= greatest) {
                return value;
            }
            found.lose(QStringLiteral("decostop/") + QLatin1String(name), QString::fromStdString(words));
            return 0.0;
        };
        found.dive.*stopFields[level].depth = static_cast<float>(valueOf("decodepth", deepestThinkable));
        found.dive.*stopFields[level].minutes = rounded(valueOf("duration", longest) / 60);
        found.dive.*stopFields[level].made = stop.attribute("kind") == "mandatory" ? 1 : 0;
        if (const XmlElement gas = waypoint.first("switchmix"); !gas.isNull()) {
            assignment.setStopGas(level, uddfReference(gas));
        }
        ++level;
    }
}

/// Marks each switch at its sample: 1 to the bottom gas, from 2 on to those of the stops, which take what the dive does
/// not name itself. A gas that is breathed already is no switch, except in this program's own files.
void markSwitches(const UddfDocument& document, const UddfProfile& profile, const Resampled& samples,
                  Assignment& assignment, FoundDive& found) {
    std::vector<qint32> flags(samples.depths.size(), 0);
    std::string breathed;
    for (const UddfProfile::Switch& it : profile.switches) {
        if (it.mix == breathed && !document.isOwn()) {
            continue;
        }
        breathed = it.mix;
        if (!document.isMix(it.mix)) {
            found.lose(QStringLiteral("waypoint/switchmix"));
            continue;
        }
        const std::size_t sample = samples.sampleAt(it.seconds);
        if (it.mix == assignment.bottomMix()) {
            // The gas that the dive begins with is no switch.
            flags[sample] = sample == 0 ? 0 : 1;
        } else if (const auto stop = assignment.stopOf(it.mix)) {
            flags[sample] = static_cast<qint32>(*stop) + 2;
        } else {
            found.lose(QStringLiteral("waypoint/switchmix"));
        }
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

void giveUddfTanks(const UddfDocument& document, const std::vector<XmlElement>& parts, UddfProfile& profile,
                   const UddfEquipment& equipment, const std::optional<Resampled>& samples, FoundDive& found) {
    const std::vector<UddfTank> tanks = readUddfTanks(document, parts, equipment.tanks, profile, found);
    if (!profile.findGases(gasesOf(document, tanks, profile))) {
        found.lose(QStringLiteral("waypoint/switchtank"));
    }
    Assignment assignment(document, profile, equipment.mix, found);
    assignment.assign(tanks);
    giveStops(parts, assignment, found);
    if (samples) {
        markSwitches(document, profile, *samples, assignment, found);
    }
    assignment.giveStageGases();
    givePressures(profile, assignment, samples, found);
}

}  // namespace tavrel
