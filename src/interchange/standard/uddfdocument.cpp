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
    for (XmlElement part = root.firstElement(); !part.isNull(); part = part.nextElement()) {
        // The dives are walked by themselves; their ids stay theirs.
        if (part.name() != "profiledata") {
            collect(part);
        }
    }
    for (const XmlElement definitions : root.children("gasdefinitions")) {
        for (const XmlElement mix : definitions.children("mix")) {
            const std::string id(mix.attribute("id"));
            mixIds_.push_back(id);
            mixes_.emplace(id, mixOf(mix));
        }
    }
}

void UddfDocument::collect(XmlElement parent) {
    std::vector<XmlElement> open{parent};
    while (!open.empty()) {
        const XmlElement element = open.back();
        open.pop_back();
        if (const std::string_view id = element.attribute("id"); !id.empty()) {
            byId_.emplace(std::string(id), element);
        }
        for (XmlElement child = element.firstElement(); !child.isNull(); child = child.nextElement()) {
            open.push_back(child);
        }
    }
}

std::vector<XmlElement> UddfDocument::withId(const std::string& id) const {
    std::vector<XmlElement> found;
    const auto [first, last] = byId_.equal_range(id);
    std::transform(first, last, std::back_inserter(found), [](const auto& entry) { return entry.second; });
    return found;
}

XmlElement UddfDocument::withId(const std::string& id, std::string_view name) const {
    const auto [first, last] = byId_.equal_range(id);
    const auto found = std::find_if(first, last, [&](const auto& entry) { return entry.second.name() == name; });
    return found == last ? XmlElement() : found->second;
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
