#pragma once

#include "interchange/standard/founddive.h"
#include "interchange/standard/uddfdocument.h"
#include "interchange/standard/uddftanks.h"

#include <QStringList>

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tavrel {

/// The texts of notes: paragraphs in newer files, texts in older ones, with what stands between them, or the element's
/// own.
QString notesOf(XmlElement notes);
/// The number of an element that holds nothing else, a decimal comma allowed.
std::optional<double> onlyNumberOf(XmlElement element);

/// What the pieces of a file that a dive links tell of it: site, people, boat, computer, equipment. Names in the dive
/// what they hold beyond that.
class UddfPieces {
public:
    UddfPieces(const UddfDocument& document, FoundDive& found) : document_(document), found_(found) {}

    void follow(const std::string& id);
    /// Puts together what several pieces tell, once all links are followed.
    void finish();
    const UddfEquipment& equipment() const { return equipment_; }

private:
    void take(XmlElement target);
    void takeKnown(XmlElement target, std::string_view name, const QString& title);
    void takeSuit(XmlElement suit, const QString& title);
    void takeBuddy(XmlElement buddy);
    void takeSite(XmlElement site);
    void takeGeography(XmlElement geography);
    void takePosition(XmlElement north, XmlElement east);
    void takeComputer(XmlElement computer);
    void takeBoat(XmlElement trip);
    void loseRest(XmlElement piece, const char* prefix, std::initializer_list<std::string_view> read);

    const UddfDocument& document_;
    FoundDive& found_;
    UddfEquipment equipment_;
    std::vector<std::string> open_;  // ids that are still to be followed
    std::set<std::string> followed_;
    XmlElement site_;
    XmlElement computer_;
    bool hasSuit_ = false;
    QStringList buddies_;
    QStringList pieces_;
};

}  // namespace tavrel
