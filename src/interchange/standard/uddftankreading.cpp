#include "interchange/standard/uddftankreading.h"

#include "dives/divecodes.h"
#include "interchange/standard/filevalues.h"
#include "interchange/standard/unread.h"

#include <QRegularExpression>

#include <set>

namespace tavrel {

namespace {

qint32 materialOf(XmlElement piece) {
    const QString material = wordsOf(piece.first("tankmaterial"));
    return material == QLatin1String("carbon")  ? TankMaterial::carbon
           : material == QLatin1String("steel") ? TankMaterial::steel
                                                : TankMaterial::aluminium;
}

/// What the name of a tank says of its use.
TankRole roleOf(const QString& title) {
    static const QRegularExpression numbered(QStringLiteral(R"(^\s*(?:tank|cylinder|bottle)\s*([12])\s*$)"),
                                             QRegularExpression::CaseInsensitiveOption);
    const auto names = [&](const char* word) { return title.contains(QLatin1String(word), Qt::CaseInsensitive); };
    if (names("bail")) {
        return TankRole::bailout;
    }
    if (names("pony") || names("stage") || names("deco")) {
        return TankRole::stage;
    }
    const auto match = numbered.match(title);
    return !match.hasMatch()                         ? TankRole::unknown
           : match.captured(1) == QLatin1String("1") ? TankRole::first
                                                     : TankRole::second;
}

class TankReader {
public:
    TankReader(const UddfDocument& document, const UddfProfile& profile, FoundDive& found)
        : document_(document), profile_(profile), found_(found) {}

    std::vector<UddfTank> read(const std::vector<XmlElement>& parts, const std::vector<std::string>& pieces) {
        for (const XmlElement part : parts) {
            for (const XmlElement data : part.children("tankdata")) {
                add(data);
            }
        }
        addPieces(pieces);
        for (UddfTank& tank : tanks_) {
            tank.role = roleOf(tank.title);
            if (tank.role == TankRole::unknown && !tank.title.isEmpty()) {
                found_.lose(QStringLiteral("tank/name"), tank.title);
            }
            takeSampled(tank);
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
        if (wrapped) {
            loseUnread(found_, data, QStringLiteral("tankdata/"), {"tankused"});
        } else {
            addTank(data);
        }
    }

    /// Tanks that the dive only counts among its equipment: its only one is that of its only data, or where it has no
    /// data each is one more.
    void addPieces(const std::vector<std::string>& pieces) {
        std::set<std::string> known;
        for (const UddfTank& tank : tanks_) {
            known.insert(tank.names.begin(), tank.names.end());
        }
        const bool isOfOnly = tanks_.size() == 1 && !tanks_.front().piece && pieces.size() == 1;
        const bool hasData = !tanks_.empty();
        for (const std::string& id : pieces) {
            if (!known.insert(id).second) {
                continue;
            }
            if (isOfOnly) {
                follow(id, tanks_.front());
            } else if (!hasData) {
                follow(id, tanks_.emplace_back());
            } else {
                found_.lose(QStringLiteral("equipmentused/tank"), wordsOf(document_.withId(id, "tank").first("name")));
            }
        }
    }

    void addTank(XmlElement data) {
        UddfTank tank;
        if (const auto id = data.attribute("id"); !id.empty()) {
            tank.names.emplace_back(id);
        }
        const XmlElement volume = data.first("tankvolume");
        tank.volume = rounded(litres(numberOf(volume)).value_or(0));
        if (tank.volume == 0) {
            loseValue(found_, volume, QStringLiteral("tankdata/tankvolume"));
        }
        tank.start = pressure(data, "tankpressurebegin");
        tank.end = pressure(data, "tankpressureend");
        for (XmlElement it = data.firstElement(); !it.isNull(); it = it.nextElement()) {
            if (it.name() == "link" || it.name() == "mix" || it.name() == "switchmix") {
                follow(uddfReference(it), tank);
            }
        }
        loseUnread(found_, data, QStringLiteral("tankdata/"),
                   {"link", "mix", "switchmix", "tankvolume", "tankpressurebegin", "tankpressureend"});
        tanks_.push_back(std::move(tank));
    }

    qint32 pressure(XmlElement data, const char* name) const {
        const auto bar = bars(numberOf(data.first(name)));
        if (!bar) {
            loseValue(found_, data.first(name), QStringLiteral("tankdata/") + QLatin1String(name));
        }
        return rounded(bar.value_or(0));
    }

    void follow(const std::string& id, UddfTank& tank) {
        if (document_.isMix(id) && tank.mix.empty()) {
            tank.mix = id;
            tank.names.push_back(id);
        }
        if (const XmlElement piece = document_.withId(id, "tank"); !piece.isNull()) {
            tank.names.push_back(id);
            tank.piece = true;
            tank.title = wordsOf(piece.first("name"));
            tank.material = materialOf(piece);
            tank.full = rounded(bars(numberOf(piece.first("ratedpressure"))).value_or(0));
            if (tank.volume == 0) {
                tank.volume = rounded(litres(numberOf(piece.first("tankvolume"))).value_or(0));
            }
            if (tank.mix.empty()) {
                tank.mix = document_.mixOfTank(id);
            }
            loseUnread(found_, piece, QStringLiteral("tank/"),
                       {"name", "tankmaterial", "tankvolume", "ratedpressure", "link"});
        }
    }

    /// What the tank's own data lack, the first and the last of its pressures tell.
    void takeSampled(UddfTank& tank) const {
        const std::vector<TimedValue>* values = pressuresOf(profile_, tank.names);
        if (values && !values->empty()) {
            tank.start = tank.start == 0 ? rounded(values->front().value) : tank.start;
            tank.end = tank.end == 0 ? rounded(values->back().value) : tank.end;
        }
    }

    const UddfDocument& document_;
    const UddfProfile& profile_;
    FoundDive& found_;
    std::vector<UddfTank> tanks_;
};

}  // namespace

const std::vector<TimedValue>* pressuresOf(const UddfProfile& profile, const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        if (const auto own = profile.pressures.find(name); own != profile.pressures.end()) {
            return &own->second;
        }
    }
    return nullptr;
}

std::vector<UddfTank> readUddfTanks(const UddfDocument& document, const std::vector<XmlElement>& parts,
                                    const std::vector<std::string>& pieces, const UddfProfile& profile,
                                    FoundDive& found) {
    return TankReader(document, profile, found).read(parts, pieces);
}

}  // namespace tavrel
