#include "interchange/standard/uddfpieces.h"

#include "calculators/position.h"
#include "dives/divelimits.h"
#include "dives/divetanks.h"
#include "interchange/standard/filevalues.h"
#include "interchange/standard/uddfwords.h"
#include "interchange/standard/unread.h"

#include <QRegularExpression>

#include <cmath>

namespace tavrel {

namespace {

QString withoutRepeats(QStringList words) {
    words.removeAll(QString());
    words.removeDuplicates();
    return words.isEmpty() ? QStringLiteral("") : words.join(QStringLiteral(", "));
}

QString personName(XmlElement person) {
    const XmlElement personal = person.first("personal");
    const XmlElement holder = personal.isNull() ? person : personal;
    QStringList parts;
    for (const char* part : {"firstname", "middlename", "lastname"}) {
        if (const QString words = wordsOf(holder.first(part)); !words.isEmpty()) {
            parts.append(words);
        }
    }
    return parts.isEmpty() ? wordsOf(person.first("name")) : parts.join(u' ');
}

/// Degrees, also with minutes, seconds and the letter of one of the two sides, which are those of positive and of
/// negative degrees.
std::optional<double> angleOf(XmlElement element, const char* positive, const char* negatives) {
    static const QRegularExpression plain(QStringLiteral(R"(^([NSEWO])?[\d\s.,°'′"″+-]*([NSEWO])?$)"),
                                          QRegularExpression::CaseInsensitiveOption);
    if (const auto degrees = onlyNumberOf(element)) {
        return degrees;
    }
    QString words = wordsOf(element).toUpper();
    const auto match = plain.match(words);
    const QString side = match.captured(1) + match.captured(2);
    if (!match.hasMatch() || side.size() > 1 ||
        !QString(QLatin1String(positive) + QLatin1String(negatives)).contains(side)) {
        return std::nullopt;
    }
    // A position of this angle and another, whose side does not matter.
    const auto position = positionOf((side.isEmpty() ? words + QLatin1String(positive) : words) + QStringLiteral(" 1"));
    if (!position) {
        return std::nullopt;
    }
    return *positive == 'N' ? position->latitude : position->longitude;
}

}  // namespace

QString notesOf(XmlElement notes) {
    QStringList paragraphs;
    if (!saysMore(notes, {"para", "text"})) {
        for (XmlElement it = notes.firstElement(); !it.isNull(); it = it.nextElement()) {
            if (it.name() == "para" || it.name() == "text") {
                paragraphs.append(it.text());
            }
        }
        return paragraphs.join(u'\n');
    }
    if (notes.first("para").isNull() && notes.first("text").isNull()) {
        return wordsOf(notes);
    }
    for (const TextPiece& piece : textPieces(notes, {"para", "text"})) {
        paragraphs.append(piece.isOfChild ? piece.text : piece.text.trimmed());
    }
    paragraphs.removeAll(QString());
    return paragraphs.join(u'\n');
}

std::optional<double> onlyNumberOf(XmlElement element) {
    bool isNumber = false;
    const double number = wordsOf(element).replace(u',', u'.').toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

void UddfPieces::follow(const std::string& id) {
    open_.assign(1, id);
    std::size_t next = 0;
    while (next < open_.size()) {  // what is taken opens more
        const std::string its = open_[next++];
        if (its.empty() || !followed_.insert(its).second) {
            continue;
        }
        if (document_.isMix(its) && equipment_.mix.empty()) {
            equipment_.mix = its;
        }
        const std::vector<XmlElement> targets = document_.withId(its);
        for (const XmlElement target : targets) {
            take(target);
            // An id that several kinds share does not say that a tank is meant.
            if (target.name() == "tank" && targets.size() == 1) {
                equipment_.tanks.push_back(its);
            }
        }
    }
}

void UddfPieces::take(XmlElement target) {
    const std::string_view name = target.name();
    if (name == "site") {
        takeSite(target);
    } else if (name == "buddy") {
        takeBuddy(target);
    } else if (name == "divecomputer") {
        takeComputer(target);
    } else if (name == "trip") {
        takeBoat(target);
    } else if (name == "equipmentconfiguration") {
        for (const XmlElement link : target.children("link")) {
            open_.push_back(uddfReference(link));
        }
        loseRest(target, "equipmentconfiguration/", {"link"});
    } else if (name == "suit") {
        takeSuit(target, wordsOf(target.first("name")));
    } else if (name != "mix" && name != "tank" && name != "owner" && name != "dive") {
        takeKnown(target, name, wordsOf(target.first("name")));
    }
}

void UddfPieces::takeKnown(XmlElement target, std::string_view name, const QString& title) {
    Plongee& dive = found_.dive;
    const std::string prefix = std::string(name) + '/';
    // Where the name becomes a choice, or another has its place, what it says is lost.
    bool isNameRead = true;
    if (name == "divebase" || name == "vessel") {
        QString& place = name == "vessel" ? dive.bateau : dive.structure;
        place = place.isEmpty() ? title : place;
        isNameRead = place == title;
    } else if (name == "rebreather") {
        isNameRead = apparatusOf(title).has_value();
        dive.rebreather = apparatusOf(title).value_or(
            dive.rebreather == Apparatus::openCircuit ? qint32(Apparatus::electronicClosed) : dive.rebreather);
    } else {
        pieces_.append(title.isEmpty() ? wordsOf(target.first("model")) : title);
        loseRest(target, prefix.c_str(), {"name", std::string_view(title.isEmpty() ? "model" : "name")});
        return;
    }
    loseRest(target, prefix.c_str(), {std::string_view(isNameRead ? "name" : "")});
}

void UddfPieces::takeSuit(XmlElement suit, const QString& title) {
    const XmlElement kind = suit.first("suittype");
    const bool isFree = !hasSuit_;
    const auto worn = isFree ? suitOf(title, wordsOf(kind)) : std::nullopt;
    hasSuit_ = hasSuit_ || worn;
    found_.dive.combinaison = worn.value_or(found_.dive.combinaison);
    if (!worn) {
        loseValue(found_, kind, QStringLiteral("suit/suittype"));
    }
    // Where the name becomes a choice, what else it says is lost.
    loseRest(suit, "suit/", {"suittype", std::string_view(isFree && suitOf(title, {}) ? "name" : "")});
}

void UddfPieces::takeBuddy(XmlElement buddy) {
    const QString name = personName(buddy);
    if (name.isEmpty() && buddy.firstElement().isNull()) {
        buddies_.append(wordsOf(buddy).simplified());
        return;
    }
    buddies_.append(name);
    loseRest(buddy, "buddy/", {"personal", "firstname", "middlename", "lastname", "name"});
    loseRest(buddy.first("personal"), "buddy/", {"firstname", "middlename", "lastname"});
}

void UddfPieces::takeBoat(XmlElement trip) {
    const XmlElement part = trip.first("trippart");
    const XmlElement vessel = part.first("vessel");
    const QString name = wordsOf(vessel.first("name"));
    QString& boat = found_.dive.bateau;
    boat = boat.isEmpty() ? name : boat;
    loseRest(trip, "trip/", {"trippart"});
    loseRest(part, "trip/", {"vessel"});
    loseRest(vessel, "vessel/", {std::string_view(boat == name ? "name" : "")});
}

void UddfPieces::takeSite(XmlElement site) {
    Plongee& dive = found_.dive;
    if (!dive.site.isEmpty() || !dive.lieu.isEmpty()) {
        if (const QString words = spokenWords(site); words != spokenWords(site_)) {
            found_.lose(QStringLiteral("site"), words);
        }
        return;
    }
    site_ = site;
    dive.site = wordsOf(site.first("name"));
    takeGeography(site.first("geography"));
    const XmlElement data = site.first("sitedata");
    QStringList wrecks;
    for (const XmlElement wreck : data.children("wreck")) {
        wrecks.append(wordsOf(wreck.first("name")));
        loseRest(wreck, "wreck/", {"name"});
    }
    dive.epaves = withoutRepeats(wrecks);
    dive.difficulte = difficultyOf(numberOf(data.first("difficulty")).value_or(0));
    if (dive.difficulte == 0) {
        loseValue(found_, data.first("difficulty"), QStringLiteral("sitedata/difficulty"));
    }
    loseRest(data, "sitedata/", {"wreck", "difficulty"});
    const XmlElement environment = site.first("environment");
    const auto kind = environmentKind(wordsOf(environment));
    if (dive.typePlongee == DiveKind::other) {
        dive.typePlongee = kind.value_or(qint32(DiveKind::other));
    }
    if (kind != dive.typePlongee && wordsOf(environment) != QLatin1String("unknown")) {
        loseValue(found_, environment, QStringLiteral("site/environment"));
    }
    if (const QString notes = notesOf(site.first("notes")); !notes.trimmed().isEmpty()) {
        found_.lose(QStringLiteral("site/notes"), notes);
    }
    loseRest(site, "site/", {"name", "geography", "sitedata", "environment", "notes"});
}

void UddfPieces::takeGeography(XmlElement geography) {
    Plongee& dive = found_.dive;
    dive.lieu = wordsOf(geography.first("location"));
    const XmlElement address = geography.first("address");
    dive.pays = wordsOf(address.first("country"));
    if (dive.pays.isEmpty()) {
        dive.pays = wordsOf(geography.first("country"));
    }
    takePosition(geography.first("latitude"), geography.first("longitude"));
    const XmlElement height = geography.first("altitude");
    const auto metres = numberOf(height);
    if (metres && dive.altitude == 0 && *metres > 0 && *metres <= highestAltitude) {
        dive.altitude = rounded(*metres);
    } else if (!metres || rounded(*metres) != dive.altitude) {
        loseValue(found_, height, QStringLiteral("geography/altitude"));
    }
    loseRest(geography, "geography/", {"location", "address", "country", "latitude", "longitude", "altitude"});
    loseRest(address, "address/", {"country"});
}

void UddfPieces::takePosition(XmlElement north, XmlElement east) {
    const auto latitude = angleOf(north, "N", "S");
    const auto longitude = angleOf(east, "E", "WO");
    if (latitude && longitude && std::abs(*latitude) <= 90 && std::abs(*longitude) <= 180) {
        if (*latitude != 0 || *longitude != 0) {
            found_.dive.gps = positionText({*latitude, *longitude});
        }
        return;
    }
    for (const XmlElement angle : {north, east}) {
        if (const QString words = wordsOf(angle).simplified(); !words.isEmpty()) {
            found_.lose(QStringLiteral("geography/") + nameOf(angle), words);
        }
    }
}

void UddfPieces::takeComputer(XmlElement computer) {
    Plongee& dive = found_.dive;
    const QString model = wordsOf(computer.first("model"));
    const QString name = wordsOf(computer.first("name"));
    if (!dive.ordinateur.isEmpty()) {
        if (spokenWords(computer) != spokenWords(computer_)) {
            found_.lose(QStringLiteral("divecomputer"), model.isEmpty() ? name : model);
        }
        return;
    }
    computer_ = computer;
    const XmlElement maker = computer.first("manufacturer");
    dive.fabricant = wordsOf(maker.firstElement().isNull() ? maker : maker.first("name"));
    dive.ordinateur = model.isEmpty() ? name : model;
    dive.serie = wordsOf(computer.first("serialnumber"));
    const bool isNameHeld = (dive.fabricant + u' ' + dive.ordinateur).contains(name, Qt::CaseInsensitive);
    loseRest(computer, "divecomputer/",
             {"manufacturer", "model", "serialnumber", std::string_view(isNameHeld ? "name" : "model")});
    if (!maker.firstElement().isNull()) {
        loseRest(maker, "manufacturer/", {"name"});
    }
}

void UddfPieces::finish() {
    Plongee& dive = found_.dive;
    dive.partenaires = withoutRepeats(buddies_);
    if (dive.ordinateur.isEmpty()) {
        // A dive that names no computer was logged by the only one of the owner.
        if (const XmlElement only = document_.onlyPiece("divecomputer"); !only.isNull()) {
            takeComputer(only);
        }
    }
    pieces_.removeAll(QString());
    for (qsizetype piece = 0; piece < pieces_.size(); ++piece) {
        if (static_cast<std::size_t>(piece) < equipmentFields.size()) {
            dive.*equipmentFields[static_cast<std::size_t>(piece)] = pieces_[piece];
        } else {
            found_.lose(QStringLiteral("equipmentused"), pieces_[piece]);
        }
    }
}

/// This program's own files hold nothing that it does not read, but for what the format demands.
void UddfPieces::loseRest(XmlElement piece, const char* prefix, std::initializer_list<std::string_view> read) {
    if (!document_.isOwn()) {
        loseUnread(found_, piece, QLatin1String(prefix), read);
    }
}

}  // namespace tavrel
