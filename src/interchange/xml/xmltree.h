#pragma once

#include "base/failure.h"
#include "base/progress.h"

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavrel {

/// The nodes of an XmlTree: elements, and texts between elements, in one block. An element that holds nothing but text
/// holds it itself.
struct XmlNodes {
    static constexpr std::uint32_t none = 0xFFFFFFFF;

    struct Node {
        const char* name;  ///< null for a text
        std::uint32_t parent;
        std::uint32_t first;  ///< child
        std::uint32_t next;   ///< sibling
        std::uint32_t length;
        std::size_t offset;  ///< of its text in the texts
    };

    struct Attribute {
        const char* name;
        std::uint32_t element;
        std::uint32_t length;
        std::size_t offset;  ///< of its value in the texts
    };

    std::string_view textOf(const Node& node) const { return std::string_view(texts).substr(node.offset, node.length); }

    std::vector<Node> nodes;
    std::vector<Attribute> attributes;  ///< in the order of their elements
    std::string texts;
};

/// An element of an XmlTree, valid while the tree lives. The null element stands for one that is missing: it has no
/// children and an empty text. Names are compared as they stand in the file, a prefix included.
class XmlElement {
public:
    class Children;

    XmlElement() = default;

    bool isNull() const { return !tree_; }
    std::string_view name() const { return isNull() ? std::string_view() : node().name; }
    XmlElement parent() const { return isNull() ? XmlElement() : at(node().parent); }
    /// The children of a name, in order.
    Children children(const char* name) const;
    XmlElement first(const char* name) const;
    XmlElement last(const char* name) const;
    /// The first child of any name, and the next element beside this one.
    XmlElement firstElement() const { return isNull() ? XmlElement() : at(node().first).orNextElement(); }
    XmlElement nextElement() const { return isNull() ? XmlElement() : at(node().next).orNextElement(); }
    /// The value of an attribute, a view into the tree; empty when there is none or the tree keeps none.
    std::string_view attribute(std::string_view name) const;
    bool hasAttributes() const;

    /// The whole text content in UTF-8: the texts of the element and all its descendants joined with nothing between
    /// them. Blanks that merely lay out child elements are no text; entity references stand for nothing. A view into
    /// the tree where the text is in one piece, else into the buffer given.
    std::string_view text(std::string& buffer) const;
    /// The same text; bytes that are no UTF-8, in a file that declares no encoding, are taken for Latin-1.
    QString text() const;

private:
    friend class XmlTree;
    XmlElement(const XmlNodes* tree, std::uint32_t index) : tree_(tree), index_(index) {}

    const XmlNodes::Node& node() const { return tree_->nodes[index_]; }
    XmlElement at(std::uint32_t index) const {
        return index == XmlNodes::none ? XmlElement() : XmlElement(tree_, index);
    }
    /// The element itself or the next sibling of that name.
    XmlElement matching(const char* name) const;
    /// The element itself, or where it is a text the next sibling that is an element.
    XmlElement orNextElement() const;

    const XmlNodes* tree_ = nullptr;
    std::uint32_t index_ = 0;
};

class XmlElement::Children {
public:
    struct End {};

    class Iterator {
    public:
        Iterator(XmlElement element, const char* name) : element_(element), name_(name) {}
        XmlElement operator*() const { return element_; }
        Iterator& operator++();
        bool operator!=(End) const { return !element_.isNull(); }

    private:
        XmlElement element_;
        const char* name_;
    };

    Iterator begin() const { return {first_, name_}; }
    End end() const { return {}; }
    std::size_t count() const;

private:
    friend class XmlElement;
    Children(XmlElement first, const char* name) : first_(first), name_(name) {}

    XmlElement first_;
    const char* name_;
};

/// What of a file's markup a tree keeps beside its elements and texts.
struct XmlMarkup {
    bool attributes = false;
    /// Leaves out the prefixes of the root's own namespace, so that names do not depend on how the file spells it.
    bool plainNames = false;
    /// Reads a damaged file for all that it holds, beyond the parser's own repair: an end tag ends the element of its
    /// name, case aside, with what was left open in it, and nothing where none is open; text that its declared encoding
    /// does not tell is read in the one that it seems to have.
    bool mended = false;
    /// With that, the small names of elements that never stand in one of their own name: where one does, case aside,
    /// the end of the outer one is missing.
    std::span<const std::string_view> neverNested = {};
    /// And the small names of elements with those of the only ones that they stand in: where one begins elsewhere in
    /// there, the end of what is open is missing. A file that is else sound is only taken so where one of these stands
    /// in another of the same parent.
    std::span<const std::pair<std::string_view, std::string_view>> standsIn = {};
};

/// An XML file as a tree of elements and texts, with attributes where they are asked for. Malformed markup is repaired
/// as far as libxml2's parser recovers it or, on request, further, and texts are converted from the encoding that the
/// file declares. Nothing outside the bytes is ever read: entities, external references and inclusions stay unresolved,
/// and the network is out of reach. Fails when the bytes hold no element, or when they nest or grow beyond the parser's
/// limits (256 levels, in a sound file names of 50 kB) or name entities whose texts add up to far more than the file.
class XmlTree {
public:
    /// The progress counts bytes.
    static Expected<XmlTree> parse(QByteArrayView bytes, const Progress& progress = {}, XmlMarkup markup = {});

    /// Where the markup is damaged first, as "line:column", behind which elements or texts may be missing; empty for a
    /// sound file.
    const QString& damage() const { return damage_; }
    XmlElement root() const { return nodes_->nodes.empty() ? XmlElement() : XmlElement(nodes_.get(), 0); }

    /// Turns the names of all elements and attributes into lower case, for files that do not keep to their format's.
    void lowerNames();

private:
    struct Free {
        void operator()(void* names) const;
    };

    struct Parsing;

    XmlTree() : nodes_(std::make_unique<XmlNodes>()) {}

    std::unique_ptr<XmlNodes> nodes_;
    QString damage_;
    std::unique_ptr<void, Free> names_;  // the parser's dictionary, which holds the names of the nodes
};

}  // namespace tavrel
