#pragma once

#include "interchange/standard/founddive.h"
#include "interchange/standard/uddfdocument.h"
#include "interchange/standard/uddftanks.h"

#include <QStringList>

#include <set>
#include <string>
#include <vector>

namespace tavrel {

/// The texts of notes: paragraphs in newer files, texts in older ones, or the element's own.
QString notesOf(XmlElement notes);

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
    void take(XmlElement target, const std::string& id);
    void takeKnown(XmlElement target, std::string_view name, const QString& title);
    void takeBuddy(XmlElement buddy);
    void takeSite(XmlElement site, const std::string& id);
    void takeGeography(XmlElement geography);
    void takeComputer(XmlElement computer, const std::string& id);
    void takeBoat(XmlElement trip);
    void loseRest(XmlElement piece, const char* prefix, std::initializer_list<std::string_view> read);

    const UddfDocument& document_;
    FoundDive& found_;
    UddfEquipment equipment_;
    std::vector<std::string> open_;  // ids that are still to be followed
    std::set<std::string> configurations_;
    std::string site_;
    std::string computer_;
    QStringList buddies_;
    QStringList pieces_;
};

}  // namespace tavrel
