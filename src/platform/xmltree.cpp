#include "platform/xmltree.h"

#include "platform/texts.h"

#include <QStringDecoder>
#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <cstring>
#include <limits>

namespace tavrel {

namespace {

const char* characters(const xmlChar* text) {
    return reinterpret_cast<const char*>(text);
}

bool isElement(const xmlNode* node) {
    return node->type == XML_ELEMENT_NODE;
}

bool isText(const xmlNode* node) {
    return node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE;
}

bool isBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

std::string_view content(const xmlNode* text) {
    return text->content ? std::string_view(characters(text->content)) : std::string_view();
}

void appendText(const xmlNode* element, std::string& text) {
    bool holdsElements = false;
    for (const xmlNode* child = element->children; child && !holdsElements; child = child->next) {
        holdsElements = isElement(child);
    }
    for (const xmlNode* child = element->children; child; child = child->next) {
        if (isElement(child)) {
            appendText(child, text);
        } else if (isText(child)) {
            const std::string_view piece = content(child);
            if (!holdsElements || child->type == XML_CDATA_SECTION_NODE || !isBlank(piece)) {
                text += piece;
            }
        }
    }
}

/// What the parser's callbacks need while it runs.
struct Reading {
    const Progress& progress;
    std::size_t size;
    std::size_t elements = 0;
    bool cancelled = false;
    bool limit = false;
    QString firstError = {};
};

constexpr std::size_t elementsPerProgress = 16384;

Reading& reading(void* context) {
    return *static_cast<Reading*>(static_cast<xmlParserCtxtPtr>(context)->_private);
}

void startElement(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int namespaces,
                  const xmlChar** namespacePairs, int attributes, int defaulted, const xmlChar** attributeValues) {
    Reading& state = reading(context);
    auto* parser = static_cast<xmlParserCtxtPtr>(context);
    if (++state.elements % elementsPerProgress == 0 && state.progress) {
        const auto done = static_cast<std::size_t>(std::max(0L, xmlByteConsumed(parser)));
        if (!state.progress(std::min(done, state.size), state.size)) {
            state.cancelled = true;
            xmlStopParser(parser);
            return;
        }
    }
    xmlSAX2StartElementNs(context, name, prefix, uri, namespaces, namespacePairs, attributes, defaulted,
                          attributeValues);
}

void noteError(void* context, xmlErrorPtr error) {
    Reading& state = reading(context);
    state.limit = state.limit || error->code == XML_ERR_ENTITY_LOOP || error->code == XML_ERR_NO_MEMORY;
    if (state.firstError.isEmpty() && error->message) {
        state.firstError = QString::fromUtf8(error->message).trimmed();
        if (error->line > 0) {
            state.firstError += QStringLiteral(", %1:%2").arg(error->line).arg(error->int2);
        }
    }
}

struct FreeParser {
    void operator()(xmlParserCtxt* parser) const { xmlFreeParserCtxt(parser); }
};

}  // namespace

std::string_view XmlElement::name() const {
    return node_ ? std::string_view(characters(node_->name)) : std::string_view();
}

XmlElement XmlElement::parent() const {
    const bool hasParent = node_ && node_->parent && isElement(node_->parent);
    return XmlElement(hasParent ? node_->parent : nullptr);
}

const _xmlNode* XmlElement::matching(const _xmlNode* node, const char* name) {
    while (node &&
           !(isElement(node) && std::strcmp(characters(node->name), name) == 0 && !(node->ns && node->ns->prefix))) {
        node = node->next;
    }
    return node;
}

XmlElement::Children XmlElement::children(const char* name) const {
    return {node_ ? matching(node_->children, name) : nullptr, name};
}

XmlElement XmlElement::first(const char* name) const {
    return XmlElement(node_ ? matching(node_->children, name) : nullptr);
}

XmlElement XmlElement::last(const char* name) const {
    XmlElement found;
    for (const XmlElement child : children(name)) {
        found = child;
    }
    return found;
}

XmlElement::Children::Iterator& XmlElement::Children::Iterator::operator++() {
    node_ = matching(node_->next, name_);
    return *this;
}

std::size_t XmlElement::Children::count() const {
    std::size_t number = 0;
    for (const XmlElement child : *this) {
        number += child.isNull() ? 0 : 1;
    }
    return number;
}

std::string_view XmlElement::text(std::string& buffer) const {
    if (!node_ || !node_->children) {
        return {};
    }
    if (!node_->children->next && isText(node_->children)) {
        return content(node_->children);
    }
    buffer.clear();
    appendText(node_, buffer);
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

void XmlTree::Free::operator()(_xmlDoc* document) const {
    xmlFreeDoc(document);
}

Expected<XmlTree> XmlTree::parse(QByteArrayView bytes, const Progress& progress) {
    if (bytes.size() > std::numeric_limits<int>::max()) {
        return failure(text("Main", "XML file too large"));
    }
    const std::unique_ptr<xmlParserCtxt, FreeParser> parser(xmlNewParserCtxt());
    if (!parser) {
        return failure(text("Main", "XML file too large"));
    }
    Reading state{progress, static_cast<std::size_t>(bytes.size())};
    parser->_private = &state;
    parser->sax->startElementNs = startElement;
    parser->sax->serror = noteError;
    // Without XML_PARSE_NOENT, XML_PARSE_DTDLOAD and XML_PARSE_HUGE: nothing is resolved and the limits hold.
    constexpr int options =
        XML_PARSE_RECOVER | XML_PARSE_NONET | XML_PARSE_COMPACT | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
    XmlTree tree(Document(
        xmlCtxtReadMemory(parser.get(), bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr, options)));
    if (state.cancelled) {
        return failure(text("Main", "Cancelled"));
    }
    // A parser that recovers from errors disables its callbacks only when it gives up.
    if (state.limit || parser->disableSAX != 0) {
        return failure(text("Main", "XML file beyond limits"), state.firstError);
    }
    if (tree.root().isNull()) {
        return failure(text("Main", "XML file without elements"), state.firstError);
    }
    return tree;
}

XmlElement XmlTree::root() const {
    return XmlElement(document_ ? xmlDocGetRootElement(document_.get()) : nullptr);
}

}  // namespace tavrel
