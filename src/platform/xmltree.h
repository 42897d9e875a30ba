#pragma once

#include "platform/failure.h"
#include "platform/progress.h"

#include <QByteArrayView>
#include <QString>

#include <memory>
#include <string>
#include <string_view>

struct _xmlDoc;
struct _xmlNode;

namespace tavrel {

/// An element of an XmlTree, valid while the tree lives. The null element stands for one that is missing: it has no
/// children and an empty text. Names are compared as they stand in the file, a prefix included.
class XmlElement {
public:
    class Children;

    XmlElement() = default;

    bool isNull() const { return !node_; }
    std::string_view name() const;
    XmlElement parent() const;
    /// The children of a name, in order.
    Children children(const char* name) const;
    XmlElement first(const char* name) const;
    XmlElement last(const char* name) const;

    /// The whole text content in UTF-8: the texts of the element and all its descendants joined with nothing between
    /// them. Blanks that merely lay out child elements are no text; entity references stand for nothing. A view into
    /// the tree where the text is in one piece, else into the buffer given.
    std::string_view text(std::string& buffer) const;
    /// The same text; bytes that are no UTF-8, in a file that declares no encoding, are taken for Latin-1.
    QString text() const;

private:
    friend class XmlTree;
    explicit XmlElement(const _xmlNode* node) : node_(node) {}
    static const _xmlNode* matching(const _xmlNode* node, const char* name);

    const _xmlNode* node_ = nullptr;
};

class XmlElement::Children {
public:
    class Iterator {
    public:
        Iterator(const _xmlNode* node, const char* name) : node_(node), name_(name) {}
        XmlElement operator*() const { return XmlElement(node_); }
        Iterator& operator++();
        bool operator!=(const Iterator& other) const { return node_ != other.node_; }

    private:
        const _xmlNode* node_;
        const char* name_;
    };

    Iterator begin() const { return {first_, name_}; }
    Iterator end() const { return {nullptr, name_}; }
    std::size_t count() const;

private:
    friend class XmlElement;
    Children(const _xmlNode* first, const char* name) : first_(first), name_(name) {}

    const _xmlNode* first_;
    const char* name_;
};

/// An XML file as a tree. Malformed markup is repaired as far as the parser recovers it, and texts are converted from
/// the encoding that the file declares. Nothing outside the bytes is ever read: entities, external references and
/// inclusions stay unresolved, and the network is out of reach. Fails when the bytes hold no element, or when they nest
/// or grow beyond the parser's limits (256 levels, texts of 10 MB, entities that multiply each other).
class XmlTree {
public:
    /// The progress counts bytes.
    static Expected<XmlTree> parse(QByteArrayView bytes, const Progress& progress = {});

    XmlElement root() const;

private:
    struct Free {
        void operator()(_xmlDoc* document) const;
    };
    using Document = std::unique_ptr<_xmlDoc, Free>;

    explicit XmlTree(Document document) : document_(std::move(document)) {}

    Document document_;
};

}  // namespace tavrel
