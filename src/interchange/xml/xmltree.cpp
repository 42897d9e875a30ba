#include "interchange/xml/xmltree.h"

#include "base/texts.h"

#include <QStringDecoder>
#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <algorithm>
#include <cstring>
#include <limits>

namespace tavrel {

namespace {

using Node = XmlNodes::Node;
constexpr std::uint32_t none = XmlNodes::none;

bool isBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

/// Builds the nodes from the parser's events.
class Builder {
public:
    explicit Builder(XmlNodes& tree) : tree_(tree) {}

    void begin(const char* name) {
        if (!open_.empty()) {
            endRun(true);
        }
        const std::uint32_t index = append({name, none, none, none, 0, tree_.texts.size()});
        open_.push_back({index, none});
    }

    void text(std::string_view piece) {
        if (open_.empty()) {
            return;
        }
        if (!inRun_) {
            runStart_ = tree_.texts.size();
            inRun_ = true;
        }
        tree_.texts += piece;
    }

    void end() {
        if (!open_.empty()) {
            endRun(false);
            open_.pop_back();
        }
    }

    /// Ends what a truncated file leaves open.
    void endAll() {
        while (!open_.empty()) {
            end();
        }
    }

private:
    struct Open {
        std::uint32_t index;
        std::uint32_t lastChild;
    };

    std::uint32_t append(const Node& node) {
        const auto index = static_cast<std::uint32_t>(tree_.nodes.size());
        tree_.nodes.push_back(node);
        if (!open_.empty()) {
            Open& parent = open_.back();
            tree_.nodes.back().parent = parent.index;
            (parent.lastChild == none ? tree_.nodes[parent.index].first : tree_.nodes[parent.lastChild].next) = index;
            parent.lastChild = index;
        }
        return index;
    }

    /// Gives the text that has come in a row to its element, as a node of its own beside elements.
    void endRun(bool elementFollows) {
        if (!inRun_) {
            return;
        }
        inRun_ = false;
        const bool besideElements = elementFollows || open_.back().lastChild != none;
        const std::size_t length = tree_.texts.size() - runStart_;
        if (besideElements && isBlank(std::string_view(tree_.texts).substr(runStart_))) {
            tree_.texts.resize(runStart_);
        } else if (besideElements) {
            append({nullptr, none, none, none, static_cast<std::uint32_t>(length), runStart_});
        } else {
            tree_.nodes[open_.back().index].offset = runStart_;
            tree_.nodes[open_.back().index].length = static_cast<std::uint32_t>(length);
        }
    }

    XmlNodes& tree_;
    std::vector<Open> open_;
    std::size_t runStart_ = 0;
    bool inRun_ = false;
};

/// What the parser's events need while it runs.
struct Reading {
    const Progress& progress;
    std::size_t size;
    xmlParserCtxtPtr parser;
    Builder builder;
    std::size_t elements = 0;
    std::size_t entityBytes = 0;
    bool cancelled = false;
    bool limit = false;
    QString firstError = {};
};

constexpr std::size_t elementsPerProgress = 16384;

/// How many bytes of entities a file may have gone through: more than any that means well, few enough to be quick.
std::size_t entityAllowance(std::size_t fileSize) {
    return 1'000'000 + 5 * fileSize;
}

/// The reading of the file; null for the contents of an entity, which the parser only checks.
Reading* reading(void* context) {
    auto* parser = static_cast<xmlParserCtxtPtr>(context);
    auto* state = static_cast<Reading*>(parser->_private);
    return state->parser == parser ? state : nullptr;
}

void startElement(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar*, int, const xmlChar**, int,
                  int, const xmlChar**) {
    Reading* state = reading(context);
    if (!state) {
        return;
    }
    if (++state->elements % elementsPerProgress == 0 && state->progress) {
        const auto done = static_cast<std::size_t>(std::max(0L, xmlByteConsumed(state->parser)));
        if (!state->progress(std::min(done, state->size), state->size)) {
            state->cancelled = true;
            xmlStopParser(state->parser);
            return;
        }
    }
    const xmlChar* whole = prefix ? xmlDictQLookup(state->parser->dict, prefix, name) : name;
    state->builder.begin(reinterpret_cast<const char*>(whole));
}

void endElement(void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
    if (Reading* state = reading(context)) {
        state->builder.end();
    }
}

void characters(void* context, const xmlChar* text, int length) {
    if (Reading* state = reading(context)) {
        state->builder.text({reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)});
    }
}

/// The entity unless it ends the reading: its text counts at each reference, since the parser goes through it every
/// time, if only to check it, and its own limits overlook a long entity that is named often.
xmlEntityPtr counted(void* context, xmlEntityPtr entity, bool endless) {
    auto* parser = static_cast<xmlParserCtxtPtr>(context);
    auto& state = *static_cast<Reading*>(parser->_private);
    state.entityBytes += static_cast<std::size_t>(std::max(0, entity->length));
    if (!endless && state.entityBytes <= entityAllowance(state.size)) {
        return entity;
    }
    state.limit = true;
    xmlStopParser(parser);
    return nullptr;
}

xmlEntityPtr entityNamed(void* context, const xmlChar* name) {
    const xmlEntityPtr entity = xmlSAX2GetEntity(context, name);
    const bool ownText = entity && entity->etype != XML_INTERNAL_PREDEFINED_ENTITY;
    return ownText ? counted(context, entity, false) : entity;
}

/// Parameter entities, which the parser would expand, stay unresolved like the others. Those that name further ones
/// end the reading: they serve to multiply each other, and libxml2 2.9 can loop for ever over them.
xmlEntityPtr parameterEntityNamed(void* context, const xmlChar* name) {
    if (const xmlEntityPtr entity = xmlSAX2GetParameterEntity(context, name)) {
        counted(context, entity, xmlStrchr(entity->content, '%') != nullptr);
    }
    return nullptr;
}

void noteError(void* context, xmlErrorPtr error) {
    auto& state = *static_cast<Reading*>(static_cast<xmlParserCtxtPtr>(context)->_private);
    state.limit = state.limit || error->code == XML_ERR_ENTITY_LOOP || error->code == XML_ERR_NO_MEMORY;
    if (state.firstError.isEmpty() && error->message) {
        state.firstError = QString::fromUtf8(error->message).trimmed();
        if (error->line > 0) {
            state.firstError += QStringLiteral(", %1:%2").arg(error->line).arg(error->int2);
        }
    }
}

/// The parser's events come to the builder. Those of declarations stay with libxml2, which needs them to watch
/// entities.
void listen(xmlSAXHandler& events) {
    events.startElementNs = startElement;
    events.endElementNs = endElement;
    events.characters = characters;
    events.ignorableWhitespace = characters;
    events.cdataBlock = characters;
    events.getEntity = entityNamed;
    events.getParameterEntity = parameterEntityNamed;
    events.reference = nullptr;
    events.comment = nullptr;
    events.processingInstruction = nullptr;
    events.serror = noteError;
}

/// While it lives the library prints nothing of its own, as it would about characters that it cannot convert.
class Silence {
public:
    Silence() : handler_(xmlStructuredError), context_(xmlStructuredErrorContext) {
        xmlSetStructuredErrorFunc(nullptr, [](void*, xmlErrorPtr) {});
    }
    ~Silence() { xmlSetStructuredErrorFunc(context_, handler_); }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    xmlStructuredErrorFunc handler_;
    void* context_;
};

struct FreeParser {
    void operator()(xmlParserCtxt* parser) const {
        xmlFreeDoc(parser->myDoc);
        xmlFreeParserCtxt(parser);
    }
};

}  // namespace

XmlElement XmlElement::matching(const char* name) const {
    XmlElement element = *this;
    while (!element.isNull() && !(element.node().name && std::strcmp(element.node().name, name) == 0)) {
        element = at(element.node().next);
    }
    return element;
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
        const Node& here = tree_->nodes[index];
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

void XmlTree::Free::operator()(void* names) const {
    xmlDictFree(static_cast<xmlDictPtr>(names));
}

Expected<XmlTree> XmlTree::parse(QByteArrayView bytes, const Progress& progress) {
    const std::unique_ptr<xmlParserCtxt, FreeParser> parser(xmlNewParserCtxt());
    if (bytes.size() > std::numeric_limits<int>::max() || !parser) {
        return failure(text("Main", "XML file too large"));
    }
    XmlTree tree;
    xmlDictReference(parser->dict);
    tree.names_.reset(parser->dict);

    const Silence silence;
    Reading state{progress, static_cast<std::size_t>(bytes.size()), parser.get(), Builder(*tree.nodes_)};
    parser->_private = &state;
    listen(*parser->sax);
    // Without XML_PARSE_NOENT, XML_PARSE_DTDLOAD and XML_PARSE_HUGE: nothing is resolved and the limits hold.
    constexpr int options = XML_PARSE_RECOVER | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
    parser->myDoc =
        xmlCtxtReadMemory(parser.get(), bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr, options);
    state.builder.endAll();
    if (state.cancelled) {
        return failure(text("Main", "Cancelled"));
    }
    // A parser that recovers from errors disables its events only when it gives up.
    if (state.limit || parser->disableSAX != 0) {
        return failure(text("Main", "XML file beyond limits"), state.firstError);
    }
    if (tree.root().isNull()) {
        return failure(text("Main", "XML file without elements"), state.firstError);
    }
    return tree;
}

}  // namespace tavrel
