#include "interchange/standard/uddfparts.h"

#include "base/numbers.h"
#include "calculators/gps.h"
#include "calculators/position.h"
#include "dives/divecodes.h"
#include "dives/divetanks.h"
#include "interchange/standard/gasmix.h"
#include "interchange/standard/uddfwords.h"

#include <algorithm>

namespace tavrel {

namespace {

std::optional<std::pair<double, double>> wgs84Of(const Plongee& dive) {
    const auto position = positionOf(dive.gps);
    if (!position) {
        return std::nullopt;
    }
    if (dive.gpsSystem != Datum::ed50) {
        return std::pair(position->latitude, position->longitude);
    }
    const auto converted = convertSexagesimal({position->longitude, 0, 0}, {position->latitude, 0, 0}, 0).wgs84;
    return std::pair(converted.latitude, converted.longitude);
}

/// The names of buddies, where taking them apart can be undone; else the whole text as one.
QStringList namesOf(const QString& text) {
    const QStringList names = text.split(QStringLiteral(", "));
    const bool plain = std::all_of(names.begin(), names.end(),
                                   [](const QString& name) { return !name.isEmpty() && name == name.simplified(); });
    return text.isEmpty() ? QStringList() : plain ? names : QStringList(text);
}

void writePersonal(XmlWriter& xml, const QString& name) {
    const qsizetype blank = name.indexOf(u' ');
    xml.begin("personal");
    xml.element("firstname", blank < 0 ? name : name.left(blank));
    xml.element("lastname", blank < 0 ? QString() : name.mid(blank + 1));
    xml.end();
}

template <class Write>
void piece(XmlWriter& xml, std::string_view element, const std::string& id, const QString& name, Write write) {
    xml.begin(element, "id", id);
    xml.element("name", name);
    write();
    xml.end();
}

}  // namespace

std::string uddfNumber(double value) {
    return shortestText(value).toStdString();
}

std::string uddfNumber(float value) {
    return shortestText(value).toStdString();
}

UddfLinks UddfParts::linksOf(const Plongee& dive) {
    UddfLinks links;
    Site site{dive.site,
              dive.lieu,
              dive.pays,
              dive.epaves,
              wgs84Of(dive),
              difficultyValue(dive.difficulte),
              environmentWord(dive.typePlongee)};
    if (!site.isEmpty()) {
        links.before.push_back(sites_.idOf(site));
    }
    if (!dive.structure.isEmpty()) {
        links.before.push_back(clubs_.idOf(dive.structure));
    }
    for (const QString& name : namesOf(dive.partenaires)) {
        links.before.push_back(buddies_.idOf(name));
    }
    if (!dive.bateau.isEmpty()) {
        links.boat = boats_.idOf(dive.bateau);
    }
    const Computer computer{dive.fabricant, dive.ordinateur, dive.serie};
    if (!computer.maker.isEmpty() || !computer.model.isEmpty() || !computer.serial.isEmpty()) {
        links.equipment.push_back(computers_.idOf(computer));
    }
    if (const QString apparatus = apparatusName(dive.rebreather); !apparatus.isEmpty()) {
        links.equipment.push_back(rebreathers_.idOf(apparatus));
    }
    if (!suitName(dive.combinaison).isEmpty()) {
        links.equipment.push_back(suits_.idOf(dive.combinaison));
    }
    for (const auto field : equipmentFields) {
        if (!(dive.*field).isEmpty()) {
            links.equipment.push_back(pieces_.idOf(dive.*field));
        }
    }
    linkTanks(dive, links);
    return links;
}

void UddfParts::linkTanks(const Plongee& dive, UddfLinks& links) {
    const auto mixOf = [&](const char* use, qint32 oxygen, qint32 helium, qint32 kind) {
        return mixes_.idOf({use, oxygen, helium, kind});
    };
    const auto add = [&](const std::string& name, std::string mix, qint32 material, qint32 volume, qint32 start,
                         qint32 end) {
        links.tanks.push_back({tanks_.idOf({name, material, volume}), std::move(mix), volume, start, end});
    };
    const bool closed = Apparatus::isClosed(dive.rebreather);
    for (std::size_t tank = 0; tank < mainTankFields.size(); ++tank) {
        const MainTankFields& its = mainTankFields[tank];
        const bool isUsed = dive.*its.volume != 0 || dive.*its.start != 0 || dive.*its.end != 0 ||
                            dive.*its.material != 0 || dive.*its.gas != 0 || dive.*its.helium != 0 ||
                            (dive.*its.oxygen != 21 && dive.*its.oxygen != 0);
        if (tank > 0 && !isUsed && !closed) {
            continue;
        }
        const std::string mix =
            mixOf(tank == 0 ? "bottom" : "second", dive.*its.oxygen, dive.*its.helium, dive.*its.gas);
        add("Tank " + std::to_string(tank + 1), mix, dive.*its.material, dive.*its.volume, dive.*its.start,
            dive.*its.end);
        if ((tank == 1) == closed) {
            links.breathed = mix;
        }
    }
    for (std::size_t stage = 0; stage < stageFields.size(); ++stage) {
        const BottleFields& its = stageFields[stage];
        if (dive.*its.volume != 0 || dive.*its.start != 0 || dive.*its.end != 0) {
            add("Stage " + std::to_string(stage + 1), {}, 0, dive.*its.volume, dive.*its.start, dive.*its.end);
        }
    }
    for (std::size_t bottle = 0; bottle < bailoutFields.size(); ++bottle) {
        const BottleFields& its = bailoutFields[bottle];
        const qint32 oxygen = dive.*bailoutGasFields[bottle].first;
        const qint32 helium = dive.*bailoutGasFields[bottle].second;
        if (dive.*its.volume != 0 || dive.*its.start != 0 || dive.*its.end != 0 || oxygen != 0) {
            add("Bail-out " + std::to_string(bottle + 1),
                oxygen > 0 ? mixOf("bail-out", oxygen, helium, gasMix(oxygen / 100.0, helium / 100.0).kind) : "", 0,
                dive.*its.volume, dive.*its.start, dive.*its.end);
        }
    }
    for (std::size_t level = 0; level < stopFields.size(); ++level) {
        const qint32 oxygen = dive.*stopFields[level].gas.first;
        const qint32 helium = dive.*stopFields[level].gas.second;
        if (oxygen > 0) {
            const std::string use = "stop " + std::to_string(level + 1);
            links.stops[level] = mixOf(use.c_str(), oxygen, helium, gasMix(oxygen / 100.0, helium / 100.0).kind);
        }
    }
}

void UddfParts::write(XmlWriter& xml, const QString& owner) const {
    writeDiver(xml, owner);
    writeSites(xml);
    writeBoats(xml);
    writeMixes(xml);
}

void UddfParts::writeDiver(XmlWriter& xml, const QString& owner) const {
    xml.begin("diver");
    xml.begin("owner", "id", "owner");
    writePersonal(xml, owner);
    xml.begin("equipment");
    computers_.each([&](const std::string& id, const Computer& computer) {
        piece(xml, "divecomputer", id, computer.model, [&] {
            if (!computer.maker.isEmpty()) {
                xml.begin("manufacturer");
                xml.element("name", computer.maker);
                xml.end();
            }
            xml.element("model", computer.model);
            xml.element("serialnumber", computer.serial);
        });
    });
    rebreathers_.each([&](const std::string& id, const QString& name) { piece(xml, "rebreather", id, name, [] {}); });
    suits_.each([&](const std::string& id, qint32 suit) {
        piece(xml, "suit", id, suitName(suit), [&] { xml.element("suittype", suitKind(suit)); });
    });
    tanks_.each([&](const std::string& id, const TankPiece& tank) {
        piece(xml, "tank", id, QString::fromStdString(tank.name), [&] {
            static constexpr std::array<std::string_view, 3> materials{"aluminium", "carbon", "steel"};
            const auto material = static_cast<std::size_t>(tank.material);
            if (material < materials.size()) {
                xml.element("tankmaterial", materials[material]);
            }
            xml.element("tankvolume", uddfNumber(tank.volume / 1000.0));
        });
    });
    pieces_.each([&](const std::string& id, const QString& name) { piece(xml, "variouspieces", id, name, [] {}); });
    xml.end();
    xml.end();
    buddies_.each([&](const std::string& id, const QString& name) {
        xml.begin("buddy", "id", id);
        writePersonal(xml, name);
        xml.end();
    });
    xml.end();
}

void UddfParts::writeSites(XmlWriter& xml) const {
    if (clubs_.isEmpty() && sites_.isEmpty()) {
        return;
    }
    xml.begin("divesite");
    clubs_.each([&](const std::string& id, const QString& name) { piece(xml, "divebase", id, name, [] {}); });
    sites_.each([&](const std::string& id, const Site& site) {
        piece(xml, "site", id, site.name, [&] { writeSite(xml, site); });
    });
    xml.end();
}

void UddfParts::writeSite(XmlWriter& xml, const Site& site) {
    if (!site.environment.isEmpty()) {
        xml.element("environment", site.environment);
    }
    if (!site.location.isEmpty() || !site.country.isEmpty() || site.position) {
        xml.begin("geography");
        xml.element("location", site.location);
        if (!site.country.isEmpty()) {
            xml.begin("address");
            xml.element("country", site.country);
            xml.end();
        }
        if (site.position) {
            xml.decimal("latitude", site.position->first, 7);
            xml.decimal("longitude", site.position->second, 7);
        }
        xml.end();
    }
    if (site.difficulty > 0 || !site.wreck.isEmpty()) {
        xml.begin("sitedata");
        if (site.difficulty > 0) {
            xml.integer("difficulty", site.difficulty);
        }
        if (!site.wreck.isEmpty()) {
            xml.begin("wreck");
            xml.element("name", site.wreck);
            xml.end();
        }
        xml.end();
    }
}

/// A boat is the vessel of a trip, which an operator must run.
void UddfParts::writeBoats(XmlWriter& xml) const {
    if (boats_.isEmpty()) {
        return;
    }
    xml.begin("divetrip");
    boats_.each([&](const std::string& id, const QString& name) {
        piece(xml, "trip", id, name, [&] {
            xml.begin("trippart");
            xml.element("name", name);
            xml.begin("operator");
            xml.element("name", std::string_view());
            xml.end();
            piece(xml, "vessel", "vessel-" + id, name, [] {});
            xml.end();
        });
    });
    xml.end();
}

void UddfParts::writeMixes(XmlWriter& xml) const {
    if (mixes_.isEmpty()) {
        return;
    }
    xml.begin("gasdefinitions");
    mixes_.each([&](const std::string& id, const Mix& mix) {
        piece(xml, "mix", id, gasName({mix.oxygen, mix.helium, mix.kind}), [&] {
            xml.decimal("o2", mix.oxygen / 100.0, 2);
            xml.decimal("n2", (100 - mix.oxygen - mix.helium) / 100.0, 2);
            xml.decimal("he", mix.helium / 100.0, 2);
        });
    });
    xml.end();
}

}  // namespace tavrel
