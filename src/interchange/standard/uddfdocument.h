#pragma once

#include "interchange/standard/gasmix.h"
#include "interchange/xml/xmltree.h"

#include <QString>

#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tavrel {

/// What an element refers to: the value of its attribute ref, or else its text.
std::string uddfReference(XmlElement element);
/// The id in what is written as a reference, without blanks around it or a "#" before it.
std::string uddfReference(std::string_view written);

/// The parts of a UDDF file that dives refer to by their ids: gases, sites, people, equipment, boats.
class UddfDocument {
public:
    explicit UddfDocument(XmlElement root);

    XmlElement root() const { return root_; }
    /// Whether this program wrote the file, from the numbers of a logbook.
    bool isOwn() const { return isOwn_; }
    /// The elements of an id, the first hundred in the file's order: files that count each kind from 1 use one for
    /// several.
    std::vector<XmlElement> withId(const std::string& id) const;
    /// The element of an id that has this name; null when there is none.
    XmlElement withId(const std::string& id, std::string_view name) const;
    /// Whether a reference or one of mixIds() names a gas.
    bool isMix(const std::string& id) const { return mixes_.count(id) > 0; }
    /// The gas of an id; air for one that the file does not define.
    GasMix mix(const std::string& id) const;
    /// The id of the gas that a tank among the equipment holds; empty when that does not say.
    std::string mixOfTank(const std::string& id) const;
    /// All gases; those without an id have one here that no reference can name.
    const std::vector<std::string>& mixIds() const { return mixIds_; }

    /// The owner's only piece of equipment of that name; null when there is none or more than one.
    XmlElement onlyPiece(const char* name) const;

private:
    void collect();

    XmlElement root_;
    bool isOwn_;
    std::unordered_map<std::string, std::vector<XmlElement>> byId_;
    std::unordered_map<std::string, GasMix> mixes_;
    std::vector<std::string> mixIds_;
};

}  // namespace tavrel
