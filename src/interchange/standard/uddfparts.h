#pragma once

#include "dives/plongee.h"
#include "interchange/xml/xmlwriter.h"

#include <QString>

#include <array>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace tavrel {

/// What a dive of a UDDF file refers to, by the ids of its parts.
struct UddfLinks {
    /// A tank as a dive uses it: litres and bar.
    struct Tank {
        std::string piece;
        std::string mix;  ///< may be empty
        qint32 volume, start, end;
    };

    std::vector<std::string> before;  ///< site, club, buddies
    std::vector<std::string> equipment;
    std::string boat;
    std::vector<Tank> tanks;
    std::array<std::string, 6> stops;
    std::string breathed;  ///< the gas that the dive begins with
};

/// The parts of a UDDF file that its dives refer to: people, equipment, sites, boats, gases. What several dives share
/// stands there once.
class UddfParts {
public:
    /// Adds what a dive refers to.
    UddfLinks linksOf(const Plongee& dive);
    /// Writes the parts in the schema's order, the owner by that name, which may be empty.
    void write(XmlWriter& xml, const QString& owner) const;

private:
    /// Ids for equal things, given out in the order in which they are first met.
    template <class Key>
    class Shared {
    public:
        explicit Shared(std::string prefix) : prefix_(std::move(prefix)) {}

        std::string idOf(const Key& key) {
            const auto [entry, isNew] = numbers_.try_emplace(key, keys_.size());
            if (isNew) {
                keys_.push_back(key);
            }
            return prefix_ + std::to_string(entry->second + 1);
        }
        /// With their ids, as they were met.
        template <class Visit>
        void each(Visit visit) const {
            for (std::size_t index = 0; index < keys_.size(); ++index) {
                visit(prefix_ + std::to_string(index + 1), keys_[index]);
            }
        }
        bool isEmpty() const { return keys_.empty(); }

    private:
        std::string prefix_;
        std::map<Key, std::size_t> numbers_;
        std::vector<Key> keys_;
    };

    struct Site {
        QString name, location, country, wreck;
        std::optional<std::pair<double, double>> position;  ///< latitude and longitude
        int difficulty = 0;
        QString environment;

        auto key() const { return std::tie(name, location, country, wreck, position, difficulty, environment); }
        bool operator<(const Site& other) const { return key() < other.key(); }
        bool isEmpty() const {
            return name.isEmpty() && location.isEmpty() && country.isEmpty() && wreck.isEmpty() && !position &&
                   difficulty == 0 && environment.isEmpty();
        }
    };

    /// One id for each use of a gas, so that a reader can tell a stop's gas from the same one in a tank.
    struct Mix {
        std::string use;
        qint32 oxygen, helium, kind;
        auto key() const { return std::tie(use, oxygen, helium, kind); }
        bool operator<(const Mix& other) const { return key() < other.key(); }
    };

    struct TankPiece {
        std::string name;
        qint32 material, volume;
        auto key() const { return std::tie(name, material, volume); }
        bool operator<(const TankPiece& other) const { return key() < other.key(); }
    };

    struct Computer {
        QString maker, model, serial;
        auto key() const { return std::tie(maker, model, serial); }
        bool operator<(const Computer& other) const { return key() < other.key(); }
    };

    void linkTanks(const Plongee& dive, UddfLinks& links);
    void writeDiver(XmlWriter& xml, const QString& owner) const;
    void writeSites(XmlWriter& xml) const;
    static void writeSite(XmlWriter& xml, const Site& site);
    void writeBoats(XmlWriter& xml) const;
    void writeMixes(XmlWriter& xml) const;

    Shared<Site> sites_{"site"};
    Shared<QString> clubs_{"club"};
    Shared<QString> buddies_{"buddy"};
    Shared<QString> boats_{"boat"};
    Shared<Computer> computers_{"computer"};
    Shared<QString> rebreathers_{"rebreather"};
    Shared<qint32> suits_{"suit"};
    Shared<QString> pieces_{"piece"};
    Shared<TankPiece> tanks_{"tank"};
    Shared<Mix> mixes_{"mix"};
};

/// Numbers as the shortest text that restores them.
std::string uddfNumber(double value);
std::string uddfNumber(float value);

}  // namespace tavrel
