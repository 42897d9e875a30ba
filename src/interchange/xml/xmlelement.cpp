#include "interchange/xml/xmltree.h"

#include <QStringDecoder>

#include <algorithm>
#include <cstring>

namespace tavrel {

namespace {

constexpr std::uint32_t none = XmlNodes::none;

}  // namespace

XmlElement XmlElement::matching(const char* name) const {
    XmlElement element = *this;
    while (!element.isNull() && !(element.node().name && std::strcmp(element.node().name, name) == 0)) {
        element = at(element.node().next);
    }
    return element;
}

XmlElement XmlElement::orNextElement() const {
    XmlElement element = *this;
    while (!element.isNull() && !element.node().name) {
        element = at(element.node().next);
    }
    return element;
}

namespace {

/// The attributes of an element and of those behind it.
auto attributesFrom(const XmlNodes& tree, std::uint32_t element) {
    return std::lower_bound(
        tree.attributes.begin(), tree.attributes.end(), element,
        [](const XmlNodes::Attribute& attribute, std::uint32_t index) { return attribute.element < index; });
}

}  // namespace

std::string_view XmlElement::attribute(std::string_view name) const {
    if (!isNull()) {
        const auto end = tree_->attributes.end();
        for (auto it = attributesFrom(*tree_, index_); it != end && it->element == index_; ++it) {
            if (name == it->name) {
                return std::string_view(tree_->texts).substr(it->offset, it->length);
            }
        }
    }
    return {};
}

bool XmlElement::hasAttributes() const {
    if (isNull()) {
        return false;
    }
    const auto first = attributesFrom(*tree_, index_);
    return first != tree_->attributes.end() && first->element == index_;
}

XmlElement::Children XmlElement::children(const char* name) const {
    return {first(name), name};
}

XmlElement XmlElement::first(const char* name) const {
    return isNull() ? XmlElement() : at(node().first).matching(name);
}

XmlElement XmlElement::last(const char* name) const {
    XmlElement found;
    for (const XmlElement child : children(name)) {
        found = child;
    }
    return found;
}

XmlElement::Children::Iterator& XmlElement::Children::Iterator::operator++() {
    element_ = element_.at(element_.node().next).matching(name_);
    return *this;
}

std::size_t XmlElement::Children::count() const {
    std::size_t number = 0;
    for ([[maybe_unused]] const XmlElement child : *this) {
        ++number;
    }
    return number;
}

std::string_view XmlElement::text(std::string& buffer) const {
    if (isNull()) {
        return {};
    }
    if (node().first == none) {
        return tree_->textOf(node());
    }
    // The descendants in document order, without recursion.
    buffer.clear();
    std::uint32_t index = node().first;
    while (index != index_) {
        const XmlNodes::Node& here = tree_->nodes[index];
        if (here.first != none) {
            index = here.first;
            continue;
        }
        buffer += tree_->textOf(here);
        while (index != index_ && tree_->nodes[index].next == none) {
            index = tree_->nodes[index].parent;
        }
        index = index == index_ ? index_ : tree_->nodes[index].next;
    }
    return buffer;
}

QString XmlElement::text() const {
    std::string buffer;
    const std::string_view whole = text(buffer);
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QByteArrayView bytes(whole.data(), static_cast<qsizetype>(whole.size()));
    const QString decoded = decoder(bytes);
    // A file that declares no encoding and is not UTF-8 leaves its bytes as they are.
    return decoder.hasError() ? QString::fromLatin1(bytes) : decoded;
}

}  // namespace tavrel
