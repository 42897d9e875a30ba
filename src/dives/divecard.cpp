#include "dives/divecard.h"

#include "base/numbers.h"
#include "base/texts.h"
#include "desktop/commonsettings.h"
#include "desktop/preferences.h"
#include "dives/cardcolours.h"
#include "dives/divecodes.h"
#include "dives/divewords.h"
#include "dives/wrapping.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace tavrel {

namespace {

const QString newLine = QStringLiteral("\r");
const QString newSection = QStringLiteral("\r\r");

constexpr std::array<Title, 7> suitWords{{{"Carnet", "Wet suit"},
                                          {"Carnet", "Dry suit"},
                                          {"Carnet", "\r   - Shorty"},
                                          {"Carnet", "No suit"},
                                          {"Carnet", "Semi-dry suit"},
                                          {"Carnet", "\r   - T-shirt"},
                                          {"Carnet", "Tropical suit"}}};
constexpr std::array<Title, 3> materialWords{{{"Carnet", "Aluminum"}, {"Carnet", "Carbon"}, {"Carnet", "Steel"}}};

// Labels by code.
constexpr std::array<Title, 4> methodLabels{
    {{"Carnet", "Computer"}, {"Carnet", "Air tables"}, {"Carnet", "Nitrox tables"}, {"Carnet", " Run Time"}}};
constexpr std::array<Title, 5> apparatusLabels{{{"Carnet", "Open circuit"},
                                                {"Carnet", "SCR rebreather"},
                                                {"Carnet", "CCR rebreather"},
                                                {"Carnet", "Oxygen"},
                                                {"Carnet", "Scaphander"}}};

struct Level {
    qint32 Plongee::*oxygen;
    qint32 Plongee::*helium;
    float Plongee::*depth;
    qint32 Plongee::*time;
};
constexpr std::array<Level, 6> levels{{
    {&Plongee::decoO2_Level_1, &Plongee::decoHe_Level_1, &Plongee::decoDepth_Level_1, &Plongee::decoTime_Level_1},
    {&Plongee::decoO2_Level_2, &Plongee::decoHe_Level_2, &Plongee::decoDepth_Level_2, &Plongee::decoTime_Level_2},
    {&Plongee::decoO2_Level_3, &Plongee::decoHe_Level_3, &Plongee::decoDepth_Level_3, &Plongee::decoTime_Level_3},
    {&Plongee::decoO2_Level_4, &Plongee::decoHe_Level_4, &Plongee::decoDepth_Level_4, &Plongee::decoTime_Level_4},
    {&Plongee::decoO2_Level_5, &Plongee::decoHe_Level_5, &Plongee::decoDepth_Level_5, &Plongee::decoTime_Level_5},
    {&Plongee::decoO2_Level_6, &Plongee::decoHe_Level_6, &Plongee::decoDepth_Level_6, &Plongee::decoTime_Level_6},
}};

struct Pony {
    qint32 Plongee::*volume;
    qint32 Plongee::*start;
    qint32 Plongee::*end;
};
constexpr std::array<Pony, 3> ponies{{
    {&Plongee::volPony1, &Plongee::pressDepartPony1, &Plongee::pressFinPony1},
    {&Plongee::volPony2, &Plongee::pressDepartPony2, &Plongee::pressFinPony2},
    {&Plongee::volPony3, &Plongee::pressDepartPony3, &Plongee::pressFinPony3},
}};

struct Bailout {
    Pony bottle;
    qint32 Plongee::*oxygen;
    qint32 Plongee::*helium;
};
constexpr std::array<Bailout, 2> bailouts{{
    {{&Plongee::volBailout1, &Plongee::pressDepartBailout1, &Plongee::pressFinBailout1},
     &Plongee::O2Bailout1,
     &Plongee::HeBailout1},
    {{&Plongee::volBailout2, &Plongee::pressDepartBailout2, &Plongee::pressFinBailout2},
     &Plongee::O2Bailout2,
     &Plongee::HeBailout2},
}};

struct Tank {
    qint32 Plongee::*material;
    qint32 Plongee::*volume;
    qint32 Plongee::*pressure;
    qint32 Plongee::*start;
    qint32 Plongee::*end;
    qint32 Plongee::*gas;
    qint32 Plongee::*oxygen;
    qint32 Plongee::*helium;
};
constexpr Tank mainTank{&Plongee::alliageBloc, &Plongee::volumeBloc, &Plongee::pressionBloc, &Plongee::pressionDepart,
                        &Plongee::pressionFin, &Plongee::gaz,        &Plongee::o2Mix,        &Plongee::heMix};
constexpr Tank secondTank{&Plongee::alliageBloc_2,    &Plongee::volumeBloc_2,  &Plongee::pressionBloc_2,
                          &Plongee::pressionDepart_2, &Plongee::pressionFin_2, &Plongee::gaz_2,
                          &Plongee::o2Mix_2,          &Plongee::heMix_2};

constexpr std::array<QString Plongee::*, 12> equipmentItems{&Plongee::equip_1,  &Plongee::equip_2,  &Plongee::equip_3,
                                                            &Plongee::equip_4,  &Plongee::equip_5,  &Plongee::equip_6,
                                                            &Plongee::equip_7,  &Plongee::equip_8,  &Plongee::equip_9,
                                                            &Plongee::equip_10, &Plongee::equip_11, &Plongee::equip_12};

/// A difficulty is 0 to 5. What a damaged file holds instead does not fill the memory with stars.
constexpr qint32 mostStars = 1000;

QString number(qint32 value) {
    return QString::number(value);
}

QString clockTime(const QDateTime& moment) {
    return moment.toString(QStringLiteral("HH:mm"));
}

bool inUse(const Plongee& dive, const Pony& bottle) {
    return dive.*bottle.volume != 0 || dive.*bottle.start != 0;
}

QString pressures(const Plongee& dive, const Pony& bottle) {
    return QStringLiteral("(") + number(dive.*bottle.start) + u'-' + number(dive.*bottle.end) + QStringLiteral(" bar)");
}

QString mix(QLatin1StringView name, qint32 oxygen) {
    return name + u' ' + number(oxygen);
}
QString mix(QLatin1StringView name, qint32 oxygen, qint32 helium) {
    return name + u' ' + number(oxygen) + u'/' + number(helium);
}

/// The gas breathed at a stop, named by its mixture.
QString levelGas(qint32 oxygen, qint32 helium) {
    if (helium == 0) {
        return oxygen < leastNitrox ? QStringLiteral("(Air)") : u'(' + mix(QLatin1StringView("Nitrox"), oxygen) + u')';
    }
    return u'(' + mix(QLatin1StringView(oxygen > 21 ? "Triox" : "Trimix"), oxygen, helium) + u')';
}

}  // namespace

/// The words met so far, by the address of their key, which is that of one place in the program.
class DiveCard::Words {
public:
    const QString& of(const Title& title, const QString& breaks) {
        auto [place, isNew] = words_.try_emplace(title.key);
        if (isNew && !title.isEmpty()) {
            place->second = title.text(breaks + missingText());
        }
        return place->second;
    }

private:
    std::unordered_map<const char*, QString> words_;
};

class DiveCard::Writer {
public:
    Writer(StyledText& card, const Plongee& dive, Words& words, bool usUnits)
        : card_(card), dive_(dive), words_(words), usUnits_(usUnits) {}

    void write() {
        heading({"Carnet", "Dive number"}, {});
        value(number(dive_.noPlongee));
        writeGeneral();
        writeConditions();
        writeParameters();
        writeDecompression();
        writeGas();
        writeEquipment();
        heading({"Carnet", "Notes"});
        value(newLine + dive_.notes);
    }

private:
    QString word(const Title& title, const QString& breaks = {}) { return words_.of(title, breaks); }
    template <std::size_t size>
    QString word(const std::array<Title, size>& words, qint32 code) {
        return code >= 0 && static_cast<std::size_t>(code) < size ? word(words[static_cast<std::size_t>(code)])
                                                                  : QString();
    }

    void heading(const Title& title, const QString& breaks = newSection) {
        card_.append(words_.of(title, breaks), cardcolours::heading);
    }
    void label(const Title& title, const QString& breaks = newLine) {
        card_.append(words_.of(title, breaks), cardcolours::label);
    }
    template <std::size_t size>
    void label(const std::array<Title, size>& titles, qint32 code) {
        if (code >= 0 && static_cast<std::size_t>(code) < size) {
            label(titles[static_cast<std::size_t>(code)]);
        }
    }
    void value(const QString& text) { card_.append(text, cardcolours::value); }
    void row(const Title& title, const QString& text) {
        label(title);
        value(text);
    }

    QString length(const QString& number) const {
        return number + (usUnits_ ? QStringLiteral(" ft") : QStringLiteral(" m"));
    }
    QString degrees(qint32 temperature) {
        if (temperature == temperatureNotGiven) {
            return QStringLiteral("-");
        }
        return fillFormat(word(usUnits_ ? Title("Carnet", "Farenheit") : Title("Carnet", "Celsius")),
                          {formatArgument(temperature)});
    }

    void writeGeneral() {
        heading({"Carnet", "General"});
        row({"Carnet", "Date"}, dive_.date.toDateTime().toString(QStringLiteral("dd/MM/yyyy")));
        row({"Carnet", "Location"}, dive_.lieu);
        row({"Carnet", "Site"}, dive_.site);
        row({"Carnet", "Pays"}, dive_.pays);
        writePosition();
        row({"Carnet", "Tide coefficient"}, number(dive_.coeff) + u' ' + tide());
        row({"Carnet", "Wrecks"}, dive_.epaves);
        row({"Carnet", "Buddies"}, dive_.partenaires);
        row({"Carnet", "Structure"}, dive_.structure);
        row({"Carnet", "Boat"}, dive_.bateau);
    }

    void writePosition() {
        const auto datum = dive_.gpsSystem == Datum::ed50    ? QLatin1StringView("ED50")
                           : dive_.gpsSystem == Datum::wgs84 ? QLatin1StringView("WGS84")
                                                             : QLatin1StringView("...");
        card_.append(QStringLiteral("\rG.P.S. (") + datum + QStringLiteral(") : "), cardcolours::label);
        // A position that was never entered shows what the form proposes for one.
        value(dive_.gps.isEmpty() ? word({"Carnet", "GPS template"}) : dive_.gps);
    }

    QString tide() const {
        switch (dive_.pmBm) {
            case Tide::high:
                return QStringLiteral("(Pleine mer)");
            case Tide::low:
                return QStringLiteral("(Basse mer)");
            default:
                return QStringLiteral("(...)");
        }
    }

    void writeConditions() {
        heading({"Carnet", "Conditions"});
        row({"Carnet", "Weather"}, word(words::weather, dive_.meteo));
        writeWind();
        row({"Carnet", "Current"}, word(words::current, dive_.courant));
        row({"Carnet", "Visibility"}, word(words::visibility, dive_.visibilite));
        row({"Carnet", "Water temperature"}, degrees(dive_.tempEau));
        row({"Carnet", "Air temperature"}, degrees(dive_.tempAir));
        row({"Carnet", "Dive type"}, word(words::diveKind, dive_.typePlongee));
        if (dive_.nocturne == 1) {
            card_.append(words_.of({"Carnet", "Night"}, newLine), cardcolours::value);
        }
        row({"Carnet", "Difficulty level"},
            word({"Main", "Cotation 1"}).repeated(std::clamp(dive_.difficulte, -1, mostStars) + 1));
    }

    void writeWind() {
        label({"Carnet", "Wind"});
        const QString sector = word(words::windSector, dive_.ventSecteur);
        if (sector.isEmpty() && dive_.ventForce == 0) {
            value(QStringLiteral("NA"));
            return;
        }
        row({"Carnet", "Wind sector"}, sector);
        row({"Carnet", "Wind force"}, dive_.ventForce == 0 ? word({"Carnet", "No wind"}) : number(dive_.ventForce));
    }

    void writeParameters() {
        heading({"Carnet", "Parameters"});
        row({"Carnet", "Depth"}, length(shortestText(dive_.profondeur)));
        row({"Carnet", "Time"}, number(dive_.temps) + QStringLiteral(" min."));
        row({"Carnet", "Surface"}, dive_.surface);
        const QDateTime start = dive_.heure.toDateTime();
        row({"Carnet", "Start time"}, clockTime(start));
        row({"Carnet", "End time"}, clockTime(start.addSecs(qint64(60) * dive_.temps)));
        row({"Carnet", "Altitude"}, length(number(dive_.altitude)));
    }

    void writeDecompression() {
        heading({"Carnet", "Decompression"});
        label(methodLabels, dive_.deco);
        value(dive_.ordinateur);
        row({"Carnet", "Deco soft name"}, dive_.decoSoftName);
        row({"Carnet", "Deco algorythm type"}, dive_.decoAlgoType);
        row({"Carnet", "Deco conservatism"}, dive_.decoConservatism);
        row({"Carnet", "Detail runtime"}, newSection + dive_.runtime);
        row({"Carnet", "TTS"}, number(dive_.deco_TTS) + QStringLiteral(" min."));
        for (const Level& level : levels) {
            if (dive_.*level.time > 0) {
                std::string depth;
                appendFixed(depth, static_cast<double>(dive_.*level.depth), 1);
                value(QStringLiteral("\n   - ") + length(QString::fromStdString(depth)) + QStringLiteral(" : ") +
                      number(dive_.*level.time) + QStringLiteral(" min. - ") +
                      levelGas(dive_.*level.oxygen, dive_.*level.helium));
            }
        }
    }

    void writeGas() {
        heading({"Carnet", "Gas"});
        label(apparatusLabels, dive_.rebreather);
        writeTank({"Carnet", "Tank_1"}, mainTank);
        row({"Carnet", "Flow"}, shortestText(dive_.flow) + QStringLiteral(" L/min."));
        if (dive_.volumeBloc_2 != 0) {
            writeTank(Apparatus::isClosed(dive_.rebreather) ? Title("Carnet", "Diluent") : Title("Carnet", "Tank_2"),
                      secondTank);
        }
        writePonies();
        writeBailouts();
    }

    void writeTank(const Title& title, const Tank& tank) {
        const qint32 volume = dive_.*tank.volume;
        const qint32 start = dive_.*tank.start;
        const qint32 drop = wrappedDifference(start, dive_.*tank.end);
        const QString litres = QStringLiteral(" litres");
        row(title, word(materialWords, dive_.*tank.material) + u' ' + number(volume));
        label({"Carnet", "At"});
        value(number(dive_.*tank.pressure));
        label({"Carnet", "Tank pressure"});
        row({"Carnet", "Start pressure"}, number(start) + QStringLiteral(" bar."));
        row({"Carnet", "End pressure"}, number(dive_.*tank.end) + QStringLiteral(" bar."));
        row({"Carnet", "Used pressure"}, number(drop) + QStringLiteral(" bar."));
        row({"Carnet", "Available gas"}, number(wrappedProduct(start, volume)) + litres);
        row({"Carnet", "Breathed gas"}, number(wrappedProduct(drop, volume)) + litres);
        row({"Carnet", "Used gas"}, gasName(dive_.*tank.gas, dive_.*tank.oxygen, dive_.*tank.helium));
    }

    QString gasName(qint32 gas, qint32 oxygen, qint32 helium) {
        switch (gas) {
            case Gas::air:
                return word({"Carnet", "Air"});
            case Gas::nitrox:
                return mix(QLatin1StringView("Nitrox"), oxygen);
            case Gas::trimix:
                return mix(QLatin1StringView("Trimix"), oxygen, helium);
            case Gas::heliox:
                return mix(QLatin1StringView("Heliox"), oxygen);
            case Gas::triox:
                return mix(QLatin1StringView("Triox"), oxygen, helium);
            case Gas::heliair:
                return mix(QLatin1StringView("Heliair"), oxygen, helium);
            default:
                return {};
        }
    }

    void writePonies() {
        if (std::none_of(ponies.begin(), ponies.end(), [&](const Pony& pony) { return inUse(dive_, pony); })) {
            return;
        }
        label({"Carnet", "Ponies"});
        for (std::size_t pony = 0; pony < ponies.size(); ++pony) {
            if (!inUse(dive_, ponies[pony])) {
                continue;
            }
            // Only the first says how much oxygen it holds.
            const QString oxygen = pony == 0 ? number(dive_.decoO2_Level_1) + u' ' : QString();
            value(QStringLiteral("\r   - Deco ") + number(static_cast<qint32>(pony) + 1) + QStringLiteral(" : ") +
                  oxygen + QStringLiteral("% O₂ ") + pressures(dive_, ponies[pony]));
        }
    }

    void writeBailouts() {
        if (std::none_of(bailouts.begin(), bailouts.end(),
                         [&](const Bailout& bailout) { return inUse(dive_, bailout.bottle); })) {
            return;
        }
        label({"Carnet", "\r\rBail-out"}, newSection);
        for (std::size_t place = 0; place < bailouts.size(); ++place) {
            const Bailout& bailout = bailouts[place];
            if (inUse(dive_, bailout.bottle)) {
                value(QStringLiteral("\r   - Bail-out ") + number(static_cast<qint32>(place) + 1) +
                      QStringLiteral(" : ") + number(dive_.*bailout.oxygen) + QStringLiteral(" % O₂ - ") +
                      number(dive_.*bailout.helium) + QStringLiteral(" % He ") + pressures(dive_, bailout.bottle));
            }
        }
    }

    void writeEquipment() {
        heading({"Carnet", "Equipment"});
        row({"Carnet", "Configuration"}, dive_.configuration == Configuration::tek     ? word({"Carnet", "Tek"})
                                         : dive_.configuration == Configuration::noTek ? word({"Carnet", "No Tek"})
                                                                                       : QString());
        // Some suits bring their own line and dash, as items of the list that follows.
        if (const QString suit = word(suitWords, dive_.combinaison); !suit.isEmpty()) {
            value(suit.startsWith(newLine) ? suit : QStringLiteral("\r   - ") + suit);
        }
        for (const auto item : equipmentItems) {
            if (!(dive_.*item).isEmpty()) {
                value(QStringLiteral("\r   - ") + dive_.*item);
            }
        }
        row({"Carnet", "Weight"}, shortestText(dive_.lestage) + QStringLiteral(" kg"));
    }

    StyledText& card_;
    const Plongee& dive_;
    Words& words_;
    bool usUnits_;
};

DiveCard::DiveCard(const Preferences& preferences)
    : words_(std::make_unique<Words>()), usUnits_(preferences.get(settings::usUnits)) {}

DiveCard::~DiveCard() = default;

void DiveCard::append(StyledText& card, const Plongee& dive) const {
    Writer(card, dive, *words_, usUnits_).write();
}

StyledText diveCard(DiveSpan dives, const Preferences& preferences) {
    const DiveCard card(preferences);
    StyledText all;
    for (std::size_t dive = 0; dive < dives.size(); ++dive) {
        if (dive > 0) {
            all.append(QStringLiteral("\r\r--------------------\r\r"), cardcolours::label);
        }
        card.append(all, *dives[dive]);
    }
    return all;
}

}  // namespace tavrel
