#include "interchange/standard/uddfdocument.h"

#include "interchange/standard/filevalues.h"

#include <algorithm>

namespace tavrel {

namespace {

GasMix mixOf(XmlElement mix) {
    const QString name = wordsOf(mix.first("name"));
    const auto oxygen = numberOf(mix.first("o2"));
    const auto helium = numberOf(mix.first("he"));
    const auto nitrogen = numberOf(mix.first("n2"));
    if (oxygen && *oxygen > 0) {
        return gasMix(*oxygen, helium.value_or(0), name);
    }
    if (nitrogen && *nitrogen > 0) {
        const double whole = *nitrogen > 1 ? 100 : 1;
        return gasMix((whole - *nitrogen - helium.value_or(0)) / whole, helium.value_or(0) / whole, name);
    }
    return gasMixNamed(name);
}

}  // namespace

std::string uddfReference(XmlElement element) {
    std::string_view reference = element.attribute("ref");
    std::string buffer;
    if (reference.empty()) {
        reference = element.text(buffer);
    }
    return uddfReference(reference);
}

std::string uddfReference(std::string_view written) {
    const std::size_t first = written.find_first_not_of(" \t\r\n#");
    const std::size_t last = written.find_last_not_of(" \t\r\n");
    return first == std::string_view::npos ? std::string() : std::string(written.substr(first, last - first + 1));
}

UddfDocument::UddfDocument(XmlElement root)
    : root_(root), isOwn_(wordsOf(root.first("generator").first("name")).startsWith(QLatin1String("Tavrel"))) {
    collect();
    for (const XmlElement definitions : root.children("gasdefinitions")) {
        for (const XmlElement mix : definitions.children("mix")) {
            std::string id(mix.attribute("id"));
            if (id.empty()) {
                id = '#' + std::to_string(mixIds_.size());  // what references begin with is no part of an id
            }
            mixIds_.push_back(id);
            mixes_.emplace(id, mixOf(mix));
        }
    }
}

void UddfDocument::collect() {
    constexpr std::size_t mostOfAnId = 100;
    std::vector<XmlElement> open{root_.firstElement()};
    while (!open.empty()) {
        const XmlElement element = open.back();
        open.pop_back();
        if (element.isNull()) {
            continue;
        }
        open.push_back(element.nextElement());
        // The dives are walked by themselves; their ids stay theirs.
        if (element.name() == "profiledata") {
            continue;
        }
        open.push_back(element.firstElement());
        if (const std::string_view id = element.attribute("id"); !id.empty()) {
            std::vector<XmlElement>& its = byId_[std::string(id)];
            if (its.size() < mostOfAnId) {
                its.push_back(element);
            }
        }
    }
}

std::vector<XmlElement> UddfDocument::withId(const std::string& id) const {
    const auto its = byId_.find(id);
    return its == byId_.end() ? std::vector<XmlElement>() : its->second;
}

XmlElement UddfDocument::withId(const std::string& id, std::string_view name) const {
    const auto its = byId_.find(id);
    if (its == byId_.end()) {
        return {};
    }
    const auto& elements = its->second;
    const auto found =
        std::find_if(elements.begin(), elements.end(), [&](XmlElement element) { return element.name() == name; });
    return found == elements.end() ? XmlElement() : *found;
}

GasMix UddfDocument::mix(const std::string& id) const {
    const auto found = mixes_.find(id);
    return found == mixes_.end() ? GasMix() : found->second;
}

std::string UddfDocument::mixOfTank(const std::string& id) const {
    std::string mix = uddfReference(withId(id, "tank").first("link"));
    return isMix(mix) ? mix : std::string();
}

XmlElement UddfDocument::onlyPiece(const char* name) const {
    XmlElement only;
    for (const XmlElement diver : root_.children("diver")) {
        for (const XmlElement owner : diver.children("owner")) {
            for (const XmlElement piece : owner.first("equipment").children(name)) {
                if (!only.isNull()) {
                    return {};
                }
                only = piece;
            }
        }
    }
    return only;
}

}  // namespace tavrel
